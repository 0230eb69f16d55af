#include "BaselineDatabase.h"
#include "ChildProcess.h"
#include "DataFolder.h"
#include "Fixtures.h"
#include "Workloads.h"

#include <optional>

namespace kesto::bench
{

namespace
{

const QString kInterface = QStringLiteral(KESTO_BENCH_INTERFACE);

constexpr DataOptions kNew{};
constexpr DataOptions kStarted{.started = true};
constexpr DataOptions kTenYears{.started = true, .daysBefore = kDays / 2, .daysAfter = kDays / 2};
constexpr int kMonths = 24;
constexpr DataOptions kShownMonths{.started = true, .daysBefore = 0, .daysAfter = (kMonths + 3) * 31};

/// From the start of a process to its first frame. Its memory when it has settled.
class Start : public Trial
{
public:
    void run() override
    {
        process_->start();
        size_ = process_->hear("frame");
    }
    quint64 checksum() override { return size_.value(0).toULongLong() << 32U | size_.value(1).toULongLong(); }
    Told told() override { return {.kilobytes = process_->kilobytes()}; }

protected:
    std::optional<ChildProcess> process_;

private:
    QList<QByteArray> size_;
};

constexpr ChildProcess::Screen kNoScreen = ChildProcess::Screen::None;
constexpr ChildProcess::Screen kDisplay = ChildProcess::Screen::Display;

class EmptyWindow final : public Start
{
public:
    explicit EmptyWindow(ChildProcess::Screen screen)
    {
        process_.emplace(QStringLiteral(KESTO_BENCH_EMPTY), QStringList(), screen);
    }
};

class Menu final : public Start
{
public:
    Menu(const DataOptions &options, ChildProcess::Screen screen)
        : folder_(options)
    {
        process_.emplace(kInterface, QStringList{folder_.path(), QStringLiteral("menu")}, screen);
    }
    ~Menu() override { process_.reset(); } // before the folder goes

private:
    DataFolder folder_;
};

/// The running calendar; one run() shows the next month.
class Calendar final : public Trial
{
public:
    explicit Calendar(const DataOptions &options)
        : folder_(options)
        , process_(kInterface, {folder_.path(), QStringLiteral("months")})
    {
        process_.start();
        (void)process_.hear("frame");
    }
    void run() override
    {
        process_.tell("next");
        const QList<QByteArray> words = process_.hear("month");
        if (words.size() != 3)
            fail(QStringLiteral("the calendar says something else"));
        told_.nanoseconds = words[0].toDouble();
        told_.statements = words[1].toInt();
        month_ = words[2].toULongLong();
    }
    quint64 checksum() override { return month_; }
    Told told() override { return told_; }

private:
    DataFolder folder_;
    ChildProcess process_;
    Told told_;
    quint64 month_ = 0;
};

} // namespace

namespace
{

/// Both over the calculator, with the catalogue imported.
Workload menu(std::string name, const ChildProcess::Screen &screen)
{
    return {.name = std::move(name),
            .contenders = {contender<Menu>("ours", kNew, screen), contender<EmptyWindow>("an empty window", screen)},
            .bars = {{Bar::Kind::TimesContender, 2.2, "an empty window"},
                     {Bar::Kind::MemoryTimesContender, 1.5, "an empty window"}}};
}

} // namespace

Workload menuOnDisplay(Fixtures &)
{
    return menu("start to the first frame on a display: the menu, the catalogue imported", kDisplay);
}

Workload menuAtStart(Fixtures &)
{
    return menu("start to the first frame without a screen: the menu, the catalogue imported", kNoScreen);
}

Workload menuWithTenYears(Fixtures &)
{
    return {
        .name = "the same over the calendar with 3,650 days and 20,000 time rows, without a screen",
        .contenders = {contender<Menu>("ours", kTenYears, kNoScreen), contender<Menu>("no days", kStarted, kNoScreen)},
        .bars = {{Bar::Kind::TimesContender, 1.1, "no days"}, {Bar::Kind::MemoryTimesContender, 1.1, "no days"}}};
}

Workload monthChange(Fixtures &)
{
    return {.name =
                "the calendar's next month until it is drawn, 3,650 days and 20,000 time rows: work of the processor",
            .contenders = {contender<Calendar>("ours", kTenYears),
                           contender<Calendar>("the shown months alone", kShownMonths),
                           contender<Calendar>("no days", kStarted)},
            .bars = {{Bar::Kind::NanosecondsEach, 16e6},
                     {Bar::Kind::TimesContender, 1.1, "the shown months alone"},
                     {Bar::Kind::TimesContender, 1.1, "no days"},
                     {Bar::Kind::StatementsAsFor, 0, "no days"}},

            .repeats = kMonths};
}

} // namespace kesto::bench
