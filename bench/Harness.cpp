#include "Harness.h"

#include "BaselineDatabase.h"
#include "Probe.h"

#include <algorithm>
#include <chrono>
#include <numeric>

namespace kesto::bench
{

namespace
{

struct Turn
{
    const Contender *contender;
    std::unique_ptr<Trial> trial;
    std::vector<double> nanoseconds = {};
    std::vector<double> kilobytes = {};
};

void takeTurn(Turn &turn)
{
    const auto start = std::chrono::steady_clock::now();
    turn.trial->run();
    const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
    const Told told = turn.trial->told();
    turn.nanoseconds.push_back(told.nanoseconds.value_or(taken.count()));
    if (told.kilobytes)
        turn.kilobytes.push_back(*told.kilobytes);
}

} // namespace

Measurement Harness::measure(const Workload &workload)
{
    Measurement measurement;
    count(workload, measurement);
    runRound(workload, nullptr); // the first round warms up
    for (int round = 0; round < std::min(rounds_, workload.mostRounds); ++round)
        runRound(workload, &measurement);
    return measurement;
}

void Harness::count(const Workload &workload, Measurement &measurement) const
{
    Probe probe;
    for (const Contender &contender : workload.contenders) {
        const std::unique_ptr<Trial> trial = contender.prepare();
        probe.reset();
        trial->run();
        measurement.counts[contender.name] = {trial->told().statements.value_or(probe.statements()), probe.syncs()};
    }
}

void Harness::runRound(const Workload &workload, Measurement *measurement)
{
    std::vector<Turn> turns;
    for (const Contender &contender : workload.contenders) {
        if (!contender.onlyCounted)
            turns.push_back({&contender, nullptr});
    }
    std::shuffle(turns.begin(), turns.end(), random_);
    if (workload.repeats == 1) {
        // Prepared right before it runs, so that every contender meets the same warm caches.
        std::optional<quint64> agreed;
        for (Turn &turn : turns) {
            turn.trial = turn.contender->prepare();
            takeTurn(turn);
            const quint64 checksum = turn.trial->checksum();
            if (agreed.value_or(checksum) != checksum)
                fail(QString::fromStdString(workload.name + ": the contenders disagree"));
            agreed = checksum;
            turn.trial.reset();
        }
    } else {
        for (Turn &turn : turns)
            turn.trial = turn.contender->prepare();
        std::vector<size_t> order(turns.size());
        std::iota(order.begin(), order.end(), 0U);
        for (int repeat = 0; repeat < workload.repeats; ++repeat) {
            std::shuffle(order.begin(), order.end(), random_);
            for (const size_t i : order)
                takeTurn(turns[i]);
        }
        const quint64 checksum = turns.front().trial->checksum();
        for (size_t i = 1; i < turns.size(); ++i) {
            if (turns[i].trial->checksum() != checksum)
                fail(QString::fromStdString(workload.name + ": the contenders disagree"));
        }
    }
    if (measurement != nullptr) {
        for (const Turn &turn : turns) {
            measurement->nanoseconds[turn.contender->name].push_back(median(turn.nanoseconds));
            if (!turn.kilobytes.empty())
                measurement->kilobytes[turn.contender->name].push_back(median(turn.kilobytes));
        }
    }
}

double median(std::vector<double> values) { return quantile(std::move(values), 0.5); }

double quantile(std::vector<double> values, double share)
{
    std::sort(values.begin(), values.end());
    return values[static_cast<size_t>(share * static_cast<double>(values.size() - 1) + 0.5)];
}

} // namespace kesto::bench
