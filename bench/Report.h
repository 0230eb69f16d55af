#pragma once

#include "Harness.h"

#include <string>

namespace kesto::bench
{

/// The table, row by row: a workload's figures, its bars, and whether they are reached.
class Report
{
public:
    explicit Report(int rounds)
        : rounds_(rounds)
    {
    }
    void add(const Workload &workload, const Measurement &measurement);

    /// Padded for a terminal, and as it stands in a document.
    [[nodiscard]] std::string markdown() const;

private:
    struct Row
    {
        std::string workload = {}, ours = {}, measured = {}, value = {}, bar = {}, verdict = {};
    };
    void addRatio(const Workload &workload, const Measurement &measurement, const std::string &against, double limit);
    void addMemory(const Workload &workload, const Measurement &measurement, const Bar &bar);
    void addRow(const Workload &workload, Row row);

    int rounds_;
    std::vector<Row> rows_;
};

} // namespace kesto::bench
