#include "DietDayFixture.h"

#include <cmath>

namespace kesto::test
{
namespace
{

TEST_F(DietDayScreenTest, OffersWhatThePhaseAllows)
{
    const QStringList add = texts({"Добавить блюдо", "Добавить блюдо из избранного", "Добавить быстрое блюдо"});
    for (const auto &[period, kindRows, fill] :
         {std::tuple(attack, 1, "Автонаполнение Атаки"), std::tuple(cruise, 2, "Автонаполнение Круиза"),
          std::tuple(consolidation, 3, ""), std::tuple(3, 3, "")}) {
        open(period);
        EXPECT_EQ(titles(0), texts({"Вес", "Чистый белок", "Белок и овощи", "Пир"}).mid(0, 1 + kindRows));
        EXPECT_EQ(titles(2), *fill != '\0' ? add + texts({fill}) : add);
        EXPECT_EQ(screen->title(), QStringLiteral("07 марта"));
    }
    open(-1);
    EXPECT_EQ(screen->numberOfRowsInSection(0), 3);
    open(3);
    QStringList images;
    for (int row = 0; row < 4; ++row)
        images.append(shown(0, row).image);
    EXPECT_EQ(images, texts({"weight.png", "protein.png", "protein_vegetables.png", "feast.png"}));
    EXPECT_EQ(program.days(), texts({"2024-03-07 00:00"})) << "the day is made, without a kind";
}

TEST_F(DietDayScreenTest, ADayBeforeTheStartShowsNothing)
{
    open();
    plan({"A"});
    screen->setDisbledDay(true);
    EXPECT_EQ(screen->table()->rowCount(), 0);
    EXPECT_TRUE(screen->title().isEmpty());
    EXPECT_FALSE(screen->rightBarButtonItems().first()->isVisible());
    screen->setDate(march(2), -1);
    EXPECT_EQ(record(2), nullptr);
    screen->setDisbledDay(false);
    screen->setDate(march(7), attack);
    EXPECT_EQ(dishes(), "A");
    EXPECT_EQ(screen->title(), QStringLiteral("07 марта"));

    Screen without(&delegate);
    without.loadViewIfNeeded();
    EXPECT_EQ(without.table()->rowCount(), 0);
    without.addDish(catalogueDish("B"));
    without.autoFillDay();
}

TEST_F(DietDayScreenTest, KindsExcludeEachOther)
{
    DietDay::dietDatWithDate(march(7), program.context()).value()->setChB(true);
    open(consolidation);
    EXPECT_EQ(shownKinds(), "100");
    for (const auto &[row, stored, visible] :
         {std::tuple(2, "-+-", "010"), std::tuple(2, "---", "000"), std::tuple(3, "--+", "001"),
          std::tuple(1, "+--", "100"), std::tuple(2, "-+-", "010")}) {
        screen->selectRow(Screen::DaySection, row);
        EXPECT_EQ(kinds(), stored);
        EXPECT_EQ(shownKinds(), visible);
    }
    EXPECT_EQ(delegate.updates, 0) << "nobody is beside it on a phone";
    reopen(consolidation);
    EXPECT_EQ(kinds(), "-+-");

    openOnTablet(consolidation);
    screen->selectRow(Screen::DaySection, Screen::weightRow);
    ASSERT_TRUE(screen->hasInlinePicker());
    screen->selectRow(Screen::DaySection, 1); // the wheels' own row
    EXPECT_EQ(kinds(), "-+-");
    screen->selectRow(Screen::DaySection, 1 + 3);
    EXPECT_EQ(kinds(), "--+") << "counted without the row of the wheels";
    EXPECT_TRUE(screen->hasInlinePicker());
    EXPECT_EQ(delegate.updates, 1);
}

TEST_F(DietDayScreenTest, WheelsShowALastWeightWithoutStoringIt)
{
    const auto wheels = [this] {
        screen->selectRow(Screen::DaySection, Screen::weightRow);
        const Picker &picker = *screen->picker();
        EXPECT_EQ(picker.components().size(), 2);
        const auto title = [&](int component) {
            return picker.components()[component]->titles()[picker.selectedRow(component)].toStdString();
        };
        const std::string text = title(0) + '.' + title(1);
        screen->selectRow(Screen::DaySection, Screen::weightRow);
        return text;
    };
    open();
    EXPECT_EQ(shown(0, 0).detail, QStringLiteral("-"));
    EXPECT_EQ(wheels(), "60.0");
    program.defaults().setFloat(91.3F, QStringLiteral("Вес"));
    EXPECT_EQ(wheels(), "91.3");
    program.weigh(march(3), 82.4F);
    program.weigh(march(5), 80.6F);
    program.weigh(march(9), 75);
    EXPECT_EQ(wheels(), "80.6");
    EXPECT_FALSE(record()->weight().has_value());
    for (const auto &[weight, text] :
         {std::pair(70.2F, "70.2"), std::pair(12.0F, "40.0"), std::pair(400.0F, "190.9"), std::pair(0.0F, "40.0")}) {
        record()->setWeight(weight);
        EXPECT_EQ(wheels(), text);
        EXPECT_EQ(record()->weight(), weight) << "looking changes nothing";
    }
}

TEST_F(DietDayScreenTest, OneTouchRecordsTheWeightThatTheWheelsOpenOn)
{
    program.weigh(march(5), 80.6F);
    open();
    screen->selectRow(Screen::DaySection, Screen::weightRow);
    screen->picker()->components()[1]->select(screen->picker()->selectedRow(1));
    EXPECT_EQ(record()->weight(), 80.6F);
    EXPECT_EQ(shown(0, 0).detail, QStringLiteral("80.6 кг"));
    reopen();
    EXPECT_EQ(record()->weight(), 80.6F);
}

TEST_F(DietDayScreenTest, WheelsStoreKilograms)
{
    for (const bool metric : {true, false}) {
        program.manager().setMetrickSystem(metric);
        open();
        int told = 0;
        QObject::connect(screen, &Screen::weightChanged, [&] { ++told; });
        screen->selectRow(Screen::DaySection, Screen::weightRow);
        const QList<PickerComponent *> wheels = screen->picker()->components();
        ASSERT_EQ(wheels[0]->titles().size(), metric ? 151 : 301);
        EXPECT_EQ(wheels[0]->titles().first(), metric ? QStringLiteral("40") : QStringLiteral("100"));
        EXPECT_EQ(wheels[0]->titles().last(), metric ? QStringLiteral("190") : QStringLiteral("400"));
        ASSERT_EQ(wheels[1]->titles().size(), 10);
        wheels[0]->select(metric ? 38 : 100);
        wheels[1]->select(metric ? 4 : 0);
        EXPECT_GE(told, 1);
        const float expected = metric ? 78.4F : static_cast<float>(200.0F * 0.45359236);
        EXPECT_EQ(record()->weight(), expected);
        EXPECT_EQ(shown(0, 0).detail, metric ? QStringLiteral("78.4 кг") : QStringLiteral("200.0 lbs"));
        reopen();
        program.manager().setMetrickSystem(metric);
        open();
        EXPECT_EQ(record()->weight(), expected);
        EXPECT_EQ(shown(0, 0).detail, metric ? QStringLiteral("78.4 кг") : QStringLiteral("200.0 lbs"));
    }
}

TEST_F(DietDayScreenTest, LoadsAnotherDayIntoTheOpenScreen)
{
    open();
    plan({"A"});
    screen->selectRow(Screen::DaySection, Screen::weightRow);
    screen->setDate(march(7), attack);
    EXPECT_TRUE(screen->hasInlinePicker()) << "the same day again";
    screen->setDate(march(9), consolidation);
    EXPECT_EQ(titles(0).size(), 4);
    EXPECT_EQ(titles(2).size(), 3);
    EXPECT_EQ(dishes(), "");
    screen->setDate(march(7), attack);
    screen->setEditing(true);
    screen->setDate(march(10), attack);
    EXPECT_FALSE(screen->isEditing());
}

TEST_F(DietDayScreenTest, SurvivesWhatIsDeletedElsewhere)
{
    open();
    plan({"A", "B"});
    program.context().deleteObject(*record());
    EXPECT_EQ(record(), nullptr);
    screen->selectRow(Screen::DaySection, 1);
    ASSERT_NE(record(), nullptr);
    EXPECT_EQ(kinds(), "+--");
    screen->setDate(march(7), attack);
    EXPECT_EQ(dishes(), "");

    plan({"C", "D"});
    stack->pushViewController(std::make_unique<ViewController>(), false);
    program.context().deleteObject(*screen->content()[0]->dish());
    EXPECT_EQ(screen->cellForRow({Screen::DishesSection, 0}).title, QStringLiteral("-"));
    stack->popViewController(false);
    EXPECT_EQ(dishes(), "D");

    plan({"E"});
    program.context().deleteObject(*screen->content()[0]->dish());
    screen->selectRow(Screen::DishesSection, 0);
    EXPECT_EQ(stack->viewControllers().size(), 1) << "there is nothing to open";
    screen->deleteRowByUser(Screen::DishesSection, 0);
    EXPECT_EQ(dishes(), "E");

    openOnTablet();
    screen->selectRow(Screen::AddSection, Screen::AddDishRow);
    program.context().deleteObject(*screen->content()[0]->dish());
    plan({"F"});
    EXPECT_EQ(stored(), "0F");
    program.context().deleteObject(*screen->content()[0]->dish());
    screen->dismissPopover();
    EXPECT_EQ(dishes(), "");
}

TEST_F(DietDayScreenTest, BesideTheMonthBothShowTheSame)
{
    CalendarViewController &calendar = openBesideTheMonth();
    const auto touch = [&](int number) { calendar.touchCell(calendar.month()->indexOf(march(number))); };
    const auto kindOf = [&](int number) {
        return calendar.month()->cells()[calendar.month()->indexOf(march(number))].kind;
    };
    EXPECT_EQ(screen->date(), march(7));
    EXPECT_EQ(screen->titleForHeaderInSection(0), QStringLiteral("07 марта"));
    touch(9);
    EXPECT_EQ(screen->date(), march(9));
    EXPECT_EQ(screen->dietPeriod(), cruise);
    screen->selectRow(Screen::DaySection, 2);
    EXPECT_EQ(kindOf(9), QStringLiteral("Б/О"));
    EXPECT_TRUE(calendar.footer()->kindButtons()[1]->isSelected());
    calendar.footer()->buttonTouched(0);
    EXPECT_EQ(shownKinds(), "10");

    calendar.footer()->endEditing(0, QStringLiteral("81,2"));
    EXPECT_EQ(shown(0, 0).detail, QStringLiteral("81.2 кг"));
    screen->selectRow(Screen::DaySection, Screen::weightRow);
    screen->picker()->components()[1]->select(9);
    EXPECT_EQ(calendar.currentWeight(), QStringLiteral("81.9 кг"));
    EXPECT_EQ(calendar.footer()->fields()[0]->text(), QStringLiteral("81.9"));

    // The last value in the footer takes the day and its dishes along; the screen goes on with a new one.
    plan({"A"});
    calendar.footer()->endEditing(0, {});
    EXPECT_EQ(dishes(), "A");
    calendar.footer()->buttonTouched(0);
    EXPECT_EQ(dishes(), "");
    plan({"B"});
    EXPECT_EQ(dishes(), "B");

    // The bar above both has the button of the day.
    const auto *container = screen->parentViewController();
    ASSERT_EQ(container->rightBarButtonItems().size(), 1);
    EXPECT_TRUE(container->rightBarButtonItems().first()->isVisible());
    container->rightBarButtonItems().first()->trigger();
    EXPECT_TRUE(screen->isEditing());
    calendar.updateUIForDate(march(1), -1);
    EXPECT_EQ(screen->table()->rowCount(), 0);
    EXPECT_FALSE(container->rightBarButtonItems().first()->isVisible());
    EXPECT_EQ(record(1), nullptr);
}

} // namespace
} // namespace kesto::test
