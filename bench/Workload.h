#pragma once

#include <QtGlobal>

#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kesto::bench
{

/// What a trial knows better than who runs it, because it goes on in another process.
struct Told
{
    std::optional<double> nanoseconds = {}; ///< of the last run()
    std::optional<double> kilobytes = {};   ///< of memory, after it
    std::optional<int> statements = {};     ///< of the last run()
};

/// One contender's turn in one round: made ready in its constructor, outside the measurement, and measured in run().
class Trial
{
public:
    virtual ~Trial() = default;
    virtual void run() = 0;
    /// Of what was read or written, taken outside the measurement; all contenders must agree.
    [[nodiscard]] virtual quint64 checksum() = 0;
    /// Asked after each run(), outside the measurement.
    [[nodiscard]] virtual Told told() { return {}; }
};

struct Contender
{
    std::string name;
    std::function<std::unique_ptr<Trial>()> prepare;
    bool onlyCounted = false; ///< takes no part in the rounds; its statements are compared with ours
};

/// What a workload is to reach.
struct Bar
{
    enum class Kind {
        TimesContender,       ///< our median over that of the contender named in `against`
        MemoryTimesContender, ///< likewise, of memory
        NanosecondsEach,      ///< our median for one item
        StatementsAtMost,
        StatementsAsFor, ///< as many as the contender named in `against`
        SyncsExactly,
        Share99AtMost, ///< nanoseconds that 99 of 100 samples stay below
        LongestAtMost, ///< nanoseconds of the longest sample
    };
    Kind kind;
    double limit = 0;
    std::string against = {};
};

struct Workload
{
    std::string name;
    std::vector<Contender> contenders; ///< ours first
    std::vector<Bar> bars;             ///< contenders without a bar are shown, too
    int items = 1;                     ///< done by one run(); times are shown for one
    int repeats = 1;                   ///< run() in turn this often in a round; the round's time is the median
    int mostRounds = std::numeric_limits<int>::max(); ///< for what takes long
    /// Nanoseconds of each item, where the runs collect them: of all runs of ours, the ones that warm up as well.
    std::shared_ptr<std::vector<double>> samples = {};
};

template <class T, class... Arguments>
Contender contender(std::string name, Arguments &...arguments)
{
    return {std::move(name), [&arguments...] { return std::make_unique<T>(arguments...); }};
}

} // namespace kesto::bench
