#pragma once

#include "Workload.h"

#include <map>
#include <random>

namespace kesto::bench
{

/// What one workload gave.
struct Measurement
{
    struct Counts
    {
        int statements = 0;
        int syncs = 0;
    };
    std::map<std::string, std::vector<double>> nanoseconds; ///< by contender, one figure a round
    std::map<std::string, std::vector<double>> kilobytes;   ///< likewise, of those who tell
    std::map<std::string, Counts> counts;                   ///< by contender, of one run()
};

/// Runs the contenders of a workload in rounds, in another order each round. Ends the program when their results
/// differ.
class Harness
{
public:
    explicit Harness(int rounds)
        : rounds_(rounds)
    {
    }
    [[nodiscard]] Measurement measure(const Workload &workload);

private:
    void count(const Workload &workload, Measurement &measurement) const;
    void runRound(const Workload &workload, Measurement *measurement);

    int rounds_;
    std::mt19937 random_{1}; // NOLINT: only the order of the contenders
};

[[nodiscard]] double median(std::vector<double> values);
/// The value below which a share of the values lies.
[[nodiscard]] double quantile(std::vector<double> values, double share);

} // namespace kesto::bench
