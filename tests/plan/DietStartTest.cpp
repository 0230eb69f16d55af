#include "PlanFixture.h"

#include "platform/PropertyList.h"

#include <QElapsedTimer>
#include <QTest>

namespace kesto::test
{
namespace
{

/// A calculator in a program whose first day is 7 March 2024, 10:30 by the clock.
struct Start
{
    explicit Start(TestPlatform::Options options = {}, bool metric = true)
        : program(std::move(options), metric)
        , shell(std::make_unique<TestShell>())
        , screen(std::make_unique<CalculatorViewController>())
    {
        screen->loadViewIfNeeded();
    }

    [[nodiscard]] static ShownAlert *alert() { return AlertCenter::sharedCenter().current(); }

    /// Opens the dialog, turns its picker to a date and presses a button.
    void startOn(const QDateTime &date, int button = 1) const
    {
        screen->selectRow(CalculatorViewController::StartSection, 0);
        ASSERT_NE(alert(), nullptr);
        alert()->datePicker()->setDate(date);
        alert()->answer(button);
    }

    PlanFixture program;
    std::unique_ptr<TestShell> shell;
    std::unique_ptr<CalculatorViewController> screen;
};

TEST(DietStart, LeadsFromAFreshProgramToTheCalendar)
{
    for (const auto &[language, metric, title, cancel, go, period, weight] :
         {std::tuple("ru", true, "Начать диету с", "Отменить", "Начать", "Атака", "кг"),
          std::tuple("en", false, "Start the diet on", "Cancel", "Start", "Attack", "lbs")}) {
        Start start({.language = QLatin1String(language), .cloud = true}, metric);
        start.screen->endEditingText(2, QStringLiteral("201"), QStringLiteral("33"));
        start.screen->selectRow(0, 0);

        start.screen->startDietIntro();
        ASSERT_NE(Start::alert(), nullptr);
        EXPECT_EQ(Start::alert()->title(), QString::fromUtf8(title));
        EXPECT_EQ(Start::alert()->buttonTitles(), texts({cancel, go}));
        EXPECT_EQ(Start::alert()->cancelButtonIndex(), 0);
        EXPECT_EQ(Start::alert()->datePicker()->mode(), DatePicker::Mode::Date);
        LogCapture log;
        Start::alert()->answer(1);
        EXPECT_THAT(log.take(), testing::Contains(QStringLiteral("start starting diet")));
        EXPECT_EQ(Start::alert(), nullptr) << "no earlier day, no question";
        EXPECT_FALSE(start.screen->hasInlinePicker());

        const QDateTime first = start.program.dayStart(2024, 3, 7);
        EXPECT_EQ(start.program.manager().startDietDay(), first);
        EXPECT_EQ(start.program.days(), texts({"2024-03-07 00:00 chB", "2024-03-08 00:00 chB"}));
        const QVariantMap &cloud = start.program.platform.cloudStore().values();
        EXPECT_EQ(cloud[Keys::kStartDietDateKey].toDateTime(), first);
        EXPECT_EQ(cloud[Keys::kPeriod2Key].toInt(), 33);
        EXPECT_EQ(cloud[Keys::kIdealWidth].toFloat(), 62);

        ASSERT_NE(start.shell->calendar, nullptr) << "the calendar comes by itself";
        CalendarViewController &calendar = *start.shell->calendar;
        EXPECT_EQ(calendar.currentDate(), first);
        EXPECT_EQ(calendar.periodName(), QString::fromUtf8(period));
        EXPECT_EQ(calendar.footer()->fields()[0]->unit(), QString::fromUtf8(weight));
        EXPECT_TRUE(calendar.footer()->kindButtons()[0]->isSelected());

        start.screen.reset();
        start.shell.reset();
        start.program.restart();
        EXPECT_EQ(start.program.manager().startDietDay(), first);
        EXPECT_EQ(start.program.defaults().integerForKey(Keys::kPeriod1Key), 2);
        EXPECT_EQ(start.program.defaults().integerForKey(Keys::kPeriod2Key), 33);
        EXPECT_EQ(start.program.defaults().integerForKey(Keys::kPeriod3Key), -20);
        EXPECT_EQ(start.program.defaults().floatForKey(Keys::kIdealWidth), 62);
        EXPECT_EQ(start.program.days(), texts({"2024-03-07 00:00 chB", "2024-03-08 00:00 chB"}));
    }
}

TEST(DietStart, AsksBeforeEarlierDaysGo)
{
    Start start;
    PlanFixture &program = start.program;
    program.weigh(program.dayStart(2024, 3, 6), 80);
    program.weigh(program.dayStart(2024, 3, 7), 79);
    program.weigh(program.dayStart(2024, 3, 8), 78);

    start.startOn(program.platform.clock().now(), 0);
    EXPECT_FALSE(start.screen->startDiedDate().has_value());

    start.startOn(program.platform.clock().now());
    EXPECT_EQ(start.screen->startDiedDate(), program.platform.clock().now());
    EXPECT_EQ(Start::alert(), nullptr) << "not at once";
    QElapsedTimer waited;
    waited.start();
    ASSERT_TRUE(QTest::qWaitFor([] { return Start::alert() != nullptr; }));
    EXPECT_GE(waited.elapsed(), 250); // timers may be early by a twentieth
    EXPECT_TRUE(Start::alert()->title().isNull());
    EXPECT_EQ(
        Start::alert()->message(),
        localized(QStringLiteral("Все данные внесенные до начала новго старта диеты будут удалены, начать диету?")));
    EXPECT_EQ(Start::alert()->buttonTitles(), texts({"Отменить", "Начать"}));
    Start::alert()->answer(0);
    EXPECT_EQ(program.days().size(), 3);
    EXPECT_FALSE(program.manager().startDietDay().has_value());
    EXPECT_FALSE(start.screen->startDiedDate().has_value());
    EXPECT_EQ(start.shell->calendar, nullptr);

    start.startOn(program.platform.clock().now());
    ASSERT_TRUE(QTest::qWaitFor([] { return Start::alert() != nullptr; }));
    Start::alert()->answer(1);
    EXPECT_NE(start.shell->calendar, nullptr);
    // What lies before the picked moment goes, also the beginning of its own day; what comes later stays.
    EXPECT_EQ(program.days(), texts({"2024-03-07 00:00 chB", "2024-03-08 00:00 chB"}));
    EXPECT_FALSE(program.weight(program.dayStart(2024, 3, 7)).has_value());
    EXPECT_EQ(program.weight(program.dayStart(2024, 3, 8)), 78);
}

TEST(DietStart, KeepsTheDayAtThePickedMomentItself)
{
    Start start;
    PlanFixture &program = start.program;
    const QDateTime first = program.dayStart(2024, 3, 10);
    program.weigh(first, 77);
    start.startOn(first);
    EXPECT_EQ(Start::alert(), nullptr) << "it is no earlier day";
    EXPECT_NE(start.shell->calendar, nullptr);
    EXPECT_EQ(program.days(), texts({"2024-03-10 00:00 chB", "2024-03-11 00:00 chB"}));
    EXPECT_EQ(program.weight(first), 77);
}

TEST(DietStart, ThePlanIsOnDiskAtOnce)
{
    Start start;
    const QDateTime first = start.program.dayStart(2024, 3, 10);
    start.screen->startDietOn(first);
    // No event loop has turned since: what would be written then is not there yet.
    const QVariantMap stored = PropertyList::read(start.program.platform.defaultsPath()).value_or(QVariant()).toMap();
    EXPECT_EQ(stored[Keys::kStartDietDateKey].toDateTime(), first);
    EXPECT_EQ(stored[Keys::kPeriod1Key], QVariant(2LL));
    EXPECT_EQ(stored[Keys::kPeriod2Key], QVariant(-14LL));
    EXPECT_EQ(stored[Keys::kPeriod3Key], QVariant(-20LL));
    EXPECT_EQ(stored[Keys::kIdealWidth].toFloat(), 62);
}

TEST(DietStart, TakesDatesYearsAwayAndTheLongestAttack)
{
    Start start;
    start.screen->endEditingText(2, QStringLiteral("200"), QStringLiteral("4000000000"));
    start.startOn(start.program.dayStart(2123, 7, 1));
    EXPECT_EQ(start.program.manager().startDietDay(), start.program.dayStart(2123, 7, 1));
    EXPECT_EQ(start.program.days().size(), CalculatorViewController::longestAttack);
    ASSERT_NE(start.shell->calendar, nullptr);
    EXPECT_TRUE(start.shell->calendar->isDayDisabled()) << "today is long before";
    EXPECT_FALSE(start.shell->calendar->footer()->isEnabled());
}

TEST(DietStart, EndsWithTheScreen)
{
    Start start;
    start.program.weigh(start.program.dayStart(2024, 3, 1), 80);
    start.startOn(start.program.dayStart(2024, 3, 7));
    start.screen.reset();
    QTest::qWait(350);
    EXPECT_EQ(Start::alert(), nullptr);
}

} // namespace
} // namespace kesto::test
