#include "Report.h"

#include <QString>
#include <QSysInfo>
#include <QtGlobal>

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <cstdio>

namespace kesto::bench
{

namespace
{

std::string formatted(const char *format, double value)
{
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), format, value);
    return text.data();
}

std::string duration(double nanoseconds)
{
    if (nanoseconds < 1e3)
        return formatted("%.1f ns", nanoseconds);
    if (nanoseconds < 1e6)
        return formatted("%.2f µs", nanoseconds / 1e3);
    return formatted("%.2f ms", nanoseconds / 1e6);
}

std::string number(double value) { return formatted("%g", value); }

const char *verdict(bool reached) { return reached ? "reached" : "not reached"; }

/// Characters, not bytes.
size_t width(const std::string &text)
{
    return static_cast<size_t>(std::count_if(text.begin(), text.end(),
                                             [](char byte) { return (static_cast<unsigned>(byte) & 0xc0U) != 0x80; }));
}

std::vector<double> ratios(const std::vector<double> &ours, const std::vector<double> &others)
{
    std::vector<double> values;
    for (size_t round = 0; round < ours.size(); ++round)
        values.push_back(ours[round] / others[round]); // within a round: a machine that slows down slows both
    return values;
}

std::string withQuartiles(const std::vector<double> &values)
{
    return formatted("%.2f", median(values)) + formatted(" (%.2f", quantile(values, 0.25)) +
           formatted(" … %.2f)", quantile(values, 0.75));
}

} // namespace

void Report::add(const Workload &workload, const Measurement &measurement)
{
    const std::string ours = workload.contenders.front().name;
    const Measurement::Counts counts = measurement.counts.at(ours);
    for (const Contender &contender : workload.contenders) {
        if (contender.name == ours || contender.onlyCounted)
            continue;
        double limit = 0;
        for (const Bar &bar : workload.bars) {
            if (bar.kind == Bar::Kind::TimesContender && bar.against == contender.name)
                limit = bar.limit;
        }
        addRatio(workload, measurement, contender.name, limit);
    }
    for (const Bar &bar : workload.bars) {
        switch (bar.kind) {
        case Bar::Kind::TimesContender:
            break;
        case Bar::Kind::MemoryTimesContender:
            addMemory(workload, measurement, bar);
            break;
        case Bar::Kind::NanosecondsEach: {
            const double each = median(measurement.nanoseconds.at(ours)) / workload.items;
            addRow(workload, {.ours = duration(each),
                              .measured = "time",
                              .value = duration(each),
                              .bar = "≤ " + duration(bar.limit),
                              .verdict = verdict(each <= bar.limit)});
            break;
        }
        case Bar::Kind::StatementsAtMost:
            addRow(workload, {.measured = "statements",
                              .value = std::to_string(counts.statements),
                              .bar = "≤ " + number(bar.limit),
                              .verdict = verdict(counts.statements <= bar.limit)});
            break;
        case Bar::Kind::StatementsAsFor: {
            const int other = measurement.counts.at(bar.against).statements;
            addRow(workload, {.measured = "statements",
                              .value = std::to_string(counts.statements),
                              .bar = "as for " + bar.against + ": " + std::to_string(other),
                              .verdict = verdict(counts.statements == other)});
            break;
        }
        case Bar::Kind::SyncsExactly:
            addRow(workload, {.measured = "syncs",
                              .value = std::to_string(counts.syncs),
                              .bar = "= " + number(bar.limit),
                              .verdict = verdict(counts.syncs == bar.limit)});
            break;
        case Bar::Kind::Share99AtMost:
        case Bar::Kind::LongestAtMost: {
            const bool longest = bar.kind == Bar::Kind::LongestAtMost;
            const double value = quantile(*workload.samples, longest ? 1 : 0.99);
            addRow(workload, {.ours = duration(median(*workload.samples)),
                              .measured = longest ? "longest" : "99 of 100 below",
                              .value = duration(value),
                              .bar = "≤ " + duration(bar.limit),
                              .verdict = verdict(value <= bar.limit)});
            break;
        }
        }
    }
}

void Report::addRatio(const Workload &workload, const Measurement &measurement, const std::string &against,
                      double limit)
{
    const std::vector<double> &ours = measurement.nanoseconds.at(workload.contenders.front().name);
    const std::vector<double> values = ratios(ours, measurement.nanoseconds.at(against));
    addRow(workload, {.ours = duration(median(ours) / workload.items),
                      .measured = "× " + against,
                      .value = withQuartiles(values),
                      .bar = limit > 0 ? "≤ " + number(limit) : "",
                      .verdict = limit > 0 ? verdict(median(values) <= limit) : ""});
}

void Report::addMemory(const Workload &workload, const Measurement &measurement, const Bar &bar)
{
    const std::vector<double> &ours = measurement.kilobytes.at(workload.contenders.front().name);
    const std::vector<double> values = ratios(ours, measurement.kilobytes.at(bar.against));
    addRow(workload, {.ours = formatted("%.1f MB", median(ours) / 1024),
                      .measured = "memory × " + bar.against,
                      .value = withQuartiles(values),
                      .bar = "≤ " + number(bar.limit),
                      .verdict = verdict(median(values) <= bar.limit)});
}

void Report::addRow(const Workload &workload, Row row)
{
    const auto first =
        std::find_if(rows_.begin(), rows_.end(), [&](const Row &other) { return other.workload == workload.name; });
    if (first == rows_.end())
        row.workload = workload.name;
    else if (row.ours == first->ours)
        row.ours.clear();
    rows_.push_back(std::move(row));
}

std::string Report::markdown() const
{
    const Row head{"Workload", "Ours", "Measured", "Value (quartiles of the rounds)", "Bar", ""};
    const std::array columns{&Row::workload, &Row::ours, &Row::measured, &Row::value, &Row::bar, &Row::verdict};
    std::array<size_t, columns.size()> widths{};
    for (size_t column = 0; column < columns.size(); ++column) {
        widths[column] = std::max<size_t>(3, width(head.*columns[column]));
        for (const Row &row : rows_)
            widths[column] = std::max(widths[column], width(row.*columns[column]));
    }
    std::string text = "Medians of " + std::to_string(rounds_) +
                       " interleaved rounds, each contender once a round; SQLite " + sqlite3_libversion() + ", Qt " +
                       qVersion() + ", " + QSysInfo::currentCpuArchitecture().toStdString() + ".\n\n";
    const auto line = [&](const auto &cell) {
        text += '|';
        for (size_t column = 0; column < columns.size(); ++column)
            text += ' ' + cell(column) + " |";
        text += '\n';
    };
    const auto padded = [&](const Row &row) {
        return [&](size_t column) {
            const std::string &value = row.*columns[column];
            return value + std::string(widths[column] - width(value), ' ');
        };
    };
    line(padded(head));
    line([&](size_t column) { return std::string(widths[column], '-'); });
    for (const Row &row : rows_)
        line(padded(row));
    return text;
}

} // namespace kesto::bench
