#include "PlanFixture.h"

#include "components/NavigationController.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"

namespace kesto::test
{
namespace
{

/// A plan from 5 March 2024 on: three days of Attack, then 10, then 10. Today is the 7th.
struct Calendar7March
{
    explicit Calendar7March(TestPlatform::Options options = {}, bool metric = true)
        : program(std::move(options), metric)
    {
        program.storePlan(program.dayStart(2024, 3, 5), 3, 10, 10);
        open();
    }

    void open()
    {
        screen = std::make_unique<CalendarViewController>();
        screen->loadViewIfNeeded();
    }
    void reopen()
    {
        screen.reset();
        program.restart();
        open();
    }
    [[nodiscard]] QDateTime march(int day) const { return program.dayStart(2024, 3, day); }
    void touch(int day) { screen->touchCell(screen->month()->indexOf(march(day))); }
    [[nodiscard]] DietDay *record(int day) { return DietDay::dayWithoutCreation(march(day), program.context()); }
    [[nodiscard]] const CalendarCell &cell(int day) const
    {
        return screen->month()->cells()[screen->month()->indexOf(march(day))];
    }
    [[nodiscard]] CalFooterView &footer() { return *screen->footer(); }
    [[nodiscard]] QStringList fields()
    {
        QStringList shown;
        for (const CalFooterField *field : footer().fields())
            shown.append(field->text());
        return shown;
    }
    /// Of the visible kind buttons those that are on as their number, the others as a dot.
    [[nodiscard]] QString kinds()
    {
        QString shown;
        for (const CalKindButton *button : footer().kindButtons()) {
            if (button->isVisible())
                shown += button->isSelected() ? QString::number(button->tag()) : QStringLiteral(".");
        }
        return shown;
    }

    PlanFixture program;
    std::unique_ptr<CalendarViewController> screen;
};

TEST(Calendar, OpensOnTodayAndSelectsFromTheStartOn)
{
    Calendar7March at;
    EXPECT_EQ(at.screen->currentDate(), at.march(7));
    EXPECT_EQ(at.screen->dateText(), QStringLiteral("07 марта"));
    EXPECT_EQ(at.screen->periodName(), QStringLiteral("Атака"));
    EXPECT_TRUE(at.cell(7).selected);
    at.touch(4);
    at.touch(1);
    EXPECT_EQ(at.screen->currentDate(), at.march(7)) << "days before the start are disabled";
    at.screen->touchCell(-1);
    at.screen->touchCell(99);
    for (const auto &[day, period, color, kinds] :
         {std::tuple(5, "Атака", "#d23f3f", "."), std::tuple(8, "Круиз", "#95cbf9", ".."),
          std::tuple(18, "Консолидация", "#81b74c", "..."), std::tuple(28, "Стабилизация", "#d2bd2f", "...")}) {
        at.touch(day);
        EXPECT_EQ(at.screen->currentDate(), at.march(day));
        EXPECT_EQ(at.screen->periodName(), QString::fromUtf8(period));
        EXPECT_EQ(at.screen->periodColor().name(), QLatin1String(color));
        EXPECT_EQ(at.kinds(), QLatin1String(kinds));
        EXPECT_TRUE(at.cell(day).selected);
        EXPECT_EQ(at.footer().indexPath(), CalendarMonth::indexPathOf(at.screen->month()->indexOf(at.march(day))));
    }
    EXPECT_EQ(std::count_if(at.screen->month()->cells().begin(), at.screen->month()->cells().end(),
                            [](const auto &cell) { return cell.selected; }),
              1);
    EXPECT_TRUE(at.program.days().isEmpty()) << "looking creates nothing";
}

TEST(Calendar, FollowsTheSystemToAnotherZoneAndFirstWeekday)
{
    Calendar7March at;
    at.touch(6);
    CalendarViewController &screen = *at.screen;
    const InWindow window(std::move(at.screen));
    at.program.platform.moveTo("Asia/Tokyo", Qt::Sunday);
    const CalendarMonth &month = *screen.month();
    EXPECT_EQ(screen.currentDate(), at.march(6)) << "the same day begins earlier";
    EXPECT_EQ(screen.dateText(), QStringLiteral("06 марта"));
    EXPECT_EQ(month.selectedIndex(), month.indexOf(at.march(6)));
    EXPECT_EQ(month.cells().first().day, QDate(2024, 2, 25)) << "a Sunday";
    EXPECT_EQ(month.weekdayTitles().first(), QLocale(QLocale::Russian).standaloneDayName(7, QLocale::ShortFormat));
    EXPECT_EQ(month.weeks(), 6);
}

TEST(Calendar, ShowsEveryNumberWithoutAnExponent)
{
    Calendar7March at;
    for (const auto &[typed, shown] :
         {std::pair("81", "81"), std::pair("81.5", "81.5"), std::pair("72.123456", "72.1235"),
          std::pair("0,05", "0.05"), std::pair("0.00001", "0.00001"), std::pair("999.9996", "1000"),
          std::pair("1000.25", "1000.25"), std::pair("123456.5", "123456.5"), std::pair("1234567", "1234567"),
          std::pair("16777215", "16777215"), std::pair("1e5", "100000"), std::pair("1e20", "100000000000000000000")}) {
        at.footer().endEditing(0, QString::fromUtf8(typed));
        EXPECT_EQ(at.fields()[0].toStdString(), shown);
        ASSERT_NE(at.record(7), nullptr);
        const float stored = at.record(7)->weight().value_or(0);
        at.footer().endEditing(0, at.fields()[0]);
        EXPECT_EQ(at.record(7)->weight().value_or(0), stored < 1000 ? at.fields()[0].toFloat() : stored)
            << "typing what is shown changes nothing: " << typed;
    }
}

// No program makes two records of one date, but a store may hold them.
TEST(Calendar, TakesOneOfTwoRecordsOfADateEverywhere)
{
    Calendar7March at;
    for (const auto &[kind, weight] : {std::pair("bO", 80.0F), std::pair("chB", 70.0F)}) {
        auto &day = at.program.context().insert<DietDay>();
        day.setDate(at.march(8));
        day.setWeight(weight);
        day.setValueForKey(true, QLatin1String(kind));
        ASSERT_TRUE(at.program.context().save());
    }
    at.reopen();
    at.touch(8);
    const bool first = at.fields()[0] == QStringLiteral("80");
    EXPECT_EQ(at.cell(8).kind, first ? QStringLiteral("Б/О") : QStringLiteral("Ч/Б"));
    at.screen->month()->refreshDate(at.march(8));
    EXPECT_EQ(at.cell(8).kind, first ? QStringLiteral("Б/О") : QStringLiteral("Ч/Б"));
    CalculatorViewController().makeAttackPeriodForDate(at.march(8), 1);
    EXPECT_EQ(at.record(8)->chB(), true) << "the one that is shown";
    EXPECT_EQ(at.program.days().size(), 2);
}

TEST(Calendar, TurnsMonthsAndComesBack)
{
    Calendar7March at;
    int endings = 0;
    QObject::connect(at.screen.get(), &CalendarViewController::editingShouldEnd, [&] { ++endings; });
    at.screen->nextMonth();
    EXPECT_EQ(at.screen->month()->title(), QStringLiteral("Апрель 2024"));
    EXPECT_EQ(at.screen->currentDate(), at.march(7)) << "the day stays";
    for (int i = 0; i < 12; ++i)
        at.screen->nextMonth();
    EXPECT_EQ(at.screen->month()->title(), QStringLiteral("Апрель 2025"));
    EXPECT_EQ(at.screen->month()->selectedIndex(), -1);
    for (int i = 0; i < 14; ++i)
        at.screen->previousMonth();
    EXPECT_EQ(at.screen->month()->title(), QStringLiteral("Февраль 2024"));
    at.screen->showToday();
    EXPECT_TRUE(at.cell(7).selected);
    EXPECT_EQ(endings, 28);
}

TEST(Calendar, KindsExcludeEachOtherAndEmptyDaysGo)
{
    Calendar7March at;
    at.touch(8);
    at.footer().buttonTouched(2);
    EXPECT_EQ(at.kinds(), QStringLiteral("..")) << "a feast is not offered in Cruise";
    EXPECT_TRUE(at.program.days().isEmpty());
    at.footer().buttonTouched(0);
    EXPECT_EQ(at.kinds(), QStringLiteral("0."));
    EXPECT_EQ(at.cell(8).kind, QStringLiteral("Ч/Б"));
    at.footer().buttonTouched(1);
    EXPECT_EQ(at.kinds(), QStringLiteral(".1"));
    EXPECT_EQ(at.cell(8).kind, QStringLiteral("Б/О"));
    EXPECT_EQ(at.program.days(), texts({"2024-03-08 00:00 bO"}));
    at.touch(18);
    at.footer().buttonTouched(2);
    at.reopen();
    EXPECT_EQ(at.program.days(), texts({"2024-03-08 00:00 bO", "2024-03-18 00:00 feast"}));
    EXPECT_EQ(at.cell(18).kind, QStringLiteral("Пир"));

    at.touch(8);
    EXPECT_EQ(at.kinds(), QStringLiteral(".1"));
    at.footer().buttonTouched(1);
    EXPECT_EQ(at.record(8), nullptr);
    EXPECT_EQ(at.cell(8).kind, QString());
    at.reopen();
    EXPECT_EQ(at.program.days(), texts({"2024-03-18 00:00 feast"}));

    // A kind that is told to be absent, as the screen of a day does, keeps the day until the kinds are written anew.
    DietDay::dietDatWithDate(at.march(19), at.program.context()).value()->setFeast(false);
    at.touch(19);
    at.footer().endEditing(1, {});
    EXPECT_NE(at.record(19), nullptr);
    at.footer().buttonTouched(0);
    at.footer().buttonTouched(0);
    EXPECT_EQ(at.record(19), nullptr);
}

TEST(Calendar, MeasuresAreStoredAsTyped)
{
    for (const bool metric : {true, false}) {
        Calendar7March at({}, metric);
        EXPECT_EQ(at.footer().fields()[0]->unit(), metric ? QStringLiteral("кг") : QStringLiteral("lbs"));
        EXPECT_EQ(at.footer().fields()[3]->unit(), QStringLiteral("см"));
        at.footer().endEditing(0, QStringLiteral("72,5"));
        at.footer().endEditing(1, QStringLiteral("101.25"));
        at.footer().endEditing(2, QStringLiteral("88 cm"));
        at.footer().endEditing(3, QStringLiteral("1e39"));
        ASSERT_NE(at.record(7), nullptr);
        EXPECT_EQ(at.record(7)->weight(), 72.5F) << "no conversion, in pounds neither";
        EXPECT_EQ(at.record(7)->chest(), 101.25F);
        EXPECT_EQ(at.record(7)->waist(), 88.0F);
        EXPECT_EQ(at.record(7)->hip(), std::numeric_limits<float>::max());
        at.footer().endEditing(3, QStringLiteral("96"));
        at.reopen();
        EXPECT_EQ(at.fields(), texts({"72.5", "101.25", "88", "96"}));
        EXPECT_EQ(at.screen->currentWeight(), metric ? QStringLiteral("72.5 кг") : QStringLiteral("159.8 lbs"));

        at.record(7)->setWeight(150 * 0.45359236F); // as another screen stores pounds
        at.open();
        EXPECT_EQ(at.fields()[0], QStringLiteral("68.0389"));
        at.footer().endEditing(0, QStringLiteral("68.0389"));
        EXPECT_EQ(at.record(7)->weight(), 68.0389F) << "whoever types what is on show means it";

        int told = 0;
        QObject::connect(at.footer().fields()[1], &CalFooterField::textChanged, [&] { ++told; });
        for (const char *cleared : {"0", "-4", "text", ""}) {
            at.footer().endEditing(1, QStringLiteral("90"));
            told = 0;
            at.footer().endEditing(1, QString::fromUtf8(cleared));
            EXPECT_FALSE(at.record(7)->chest().has_value()) << cleared;
            EXPECT_GT(told, 0) << "the field shows that it is empty: " << cleared;
        }
        at.footer().endEditing(0, {});
        at.footer().endEditing(2, {});
        EXPECT_NE(at.record(7), nullptr);
        at.footer().endEditing(3, QStringLiteral("0"));
        EXPECT_EQ(at.record(7), nullptr) << "the last value takes the day along";
        EXPECT_EQ(at.screen->currentWeight(), QStringLiteral("-"));
        at.reopen();
        EXPECT_TRUE(at.program.days().isEmpty());
    }
}

// Who weighs less than the ideal gets phases of negative length: all days count as Stabilization then, those before the
// start too.
TEST(Calendar, NothingIsOpenedOrRecordedBeforeTheStart)
{
    for (const auto &[cruise, consolidation, phaseOfToday] : {std::tuple(10, 10, -1), std::tuple(-14, -20, 3)}) {
        Calendar7March at;
        at.program.storePlan(at.march(14), 2, cruise, consolidation);
        QStringList opened;
        const auto open = [&opened](const QString &what, const QDateTime &date) {
            opened.append(what + date.toString(Qt::ISODate));
            return std::make_unique<ViewController>();
        };
        auto made = std::make_unique<CalendarViewController>(CalendarScreens{
            .jornal = [&](const QDateTime &date) { return open(QStringLiteral("jornal "), date); },
            .day =
                [&](const QDateTime &date, int period, DietDayDetailViewControllerDelegate *delegate) {
                    EXPECT_NE(delegate, nullptr);
                    return open(QStringLiteral("day %1 ").arg(period), date);
                },
        });
        CalendarViewController &screen = *made;
        const InWindow shown(std::make_unique<NavigationController>(std::move(made)));
        ASSERT_EQ(CoreDataManager::dietPeriodForCalendar(at.program.calendar(), at.march(7)), phaseOfToday);
        EXPECT_TRUE(screen.isDayDisabled());
        EXPECT_TRUE(screen.periodName().isNull());
        EXPECT_FALSE(screen.periodColor().isValid());
        EXPECT_FALSE(screen.footer()->isEnabled());
        screen.footer()->buttonTouched(2);
        screen.footer()->endEditing(0, QStringLiteral("70"));
        screen.footer()->openJornal();
        screen.openDaySettings();
        EXPECT_TRUE(opened.isEmpty());
        EXPECT_TRUE(at.program.days().isEmpty());

        screen.touchCell(screen.month()->indexOf(at.march(14)));
        EXPECT_FALSE(screen.isDayDisabled());
        EXPECT_TRUE(screen.footer()->isEnabled());
        screen.openDaySettings();
        screen.navigationController()->popViewController(false);
        screen.footer()->openJornal();
        EXPECT_EQ(opened, texts({"day 0 2024-03-13T23:00:00Z", "jornal 2024-03-13T23:00:00Z"}));
    }
}

TEST(Calendar, FollowsMidnightWhileItIsSeen)
{
    Calendar7March at;
    const auto today = [](CalendarViewController &screen) {
        const int index = screen.month()->indexOfToday();
        return index < 0 ? QDate() : screen.month()->cells()[index].day;
    };
    auto made = std::make_unique<CalendarViewController>();
    CalendarViewController &screen = *made;
    const InWindow shown(std::move(made));
    ASSERT_EQ(today(screen), QDate(2024, 3, 7));
    at.program.platform.clock().set(at.march(8));
    DayWatch::sharedWatch().look();
    EXPECT_EQ(today(screen), QDate(2024, 3, 8));
    EXPECT_EQ(screen.currentDate(), at.march(7)) << "what the user looks at stays";
    EXPECT_EQ(today(*at.screen), QDate(2024, 3, 7)) << "nobody sees this one";
}

TEST(Calendar, ListsTheDishesOfTheDayInTheirOrder)
{
    Calendar7March at({.language = QStringLiteral("en")});
    at.footer().buttonTouched(0);
    const auto plan = [&](int order, const char *name) {
        auto &dish = at.program.context().insert<Dish>();
        dish.setNameENG(QString::fromUtf8(name));
        auto &planned = at.program.context().insert<DishInDietDay>();
        planned.setDisplayOrder(order);
        planned.setDish(&dish);
        at.record(7)->addDishes(planned);
    };
    plan(2, "Fish");
    plan(0, "Porridge");
    plan(1, "Soup");
    ASSERT_TRUE(at.program.context().save());
    at.reopen();
    EXPECT_EQ(at.screen->dishes(), texts({"Porridge", "Soup", "Fish"}));
    at.touch(8);
    EXPECT_TRUE(at.screen->dishes().isEmpty());
    at.touch(7);
    // Planned dishes do not keep a day: they go with its last kind.
    at.footer().buttonTouched(0);
    EXPECT_TRUE(at.screen->dishes().isEmpty());
    EXPECT_TRUE(at.program.days().isEmpty());
}

} // namespace
} // namespace kesto::test
