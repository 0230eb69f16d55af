#include "DietDayFixture.h"

#include "model/Ingredient.h"
#include "model/PurhaseIngredient.h"
#include "recipes/FavoritesManager.h"

namespace kesto::test
{
namespace
{

TEST_F(DietDayScreenTest, QuickDishesLiveAndDieWithTheirDay)
{
    open();
    screen->selectRow(Screen::AddSection, Screen::AddQuickDishRow);
    ShownAlert *alert = AlertCenter::sharedCenter().current();
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->title(), QStringLiteral("Добавить быстрое блюдо"));
    EXPECT_EQ(alert->placeholder(), QStringLiteral("Название блюда"));
    EXPECT_EQ(alert->buttonTitles(), texts({"Отменить", "Добавить", "Добавить и внести в корзину"}));
    alert->answer(1);
    answerQuickDish(0, QStringLiteral("Нет"));
    answerQuickDish(2, {});
    EXPECT_EQ(dishCount(), 0);
    EXPECT_EQ(dishes(), "");

    answerQuickDish(1, QStringLiteral("Яблоко"));
    answerQuickDish(2, QStringLiteral("Творог - 200 г"));
    plan({"Суп"});
    reopen();
    EXPECT_EQ(dishes(), "Яблоко Творог - 200 г Суп");
    ASSERT_EQ(screen->content().size(), 3U);
    const Dish *quick = screen->content()[0]->dish();
    EXPECT_EQ(quick->nameENG(), QStringLiteral("Яблоко"));
    EXPECT_EQ(quick->dishCategory(), nullptr);
    const auto cart = program.manager().purhaseIngredients();
    ASSERT_EQ(cart.size(), 1U);
    EXPECT_EQ(cart[0]->ingredient()->name(), QStringLiteral("Творог"));

    // The same quick dish in another day goes with it, too.
    screen->setDate(march(8), attack);
    screen->addDish(*const_cast<Dish *>(quick));
    screen->setDate(march(7), attack);
    screen->deleteRowByUser(Screen::DishesSection, 0);
    screen->deleteRowByUser(Screen::DishesSection, 1);
    EXPECT_EQ(dishes(), "Творог - 200 г");
    reopen();
    EXPECT_EQ(dishes(), "Творог - 200 г");
    EXPECT_EQ(dishCount(), 2);
    screen->setDate(march(8), attack);
    EXPECT_EQ(dishes(), "");
    EXPECT_EQ(program.context().fetchOrLog<DishInDietDay>().size(), 1U);
}

TEST_F(DietDayScreenTest, AQuickDishNeedsATextAndItsScreen)
{
    open();
    answerQuickDish(1, QStringLiteral("  "));
    ASSERT_EQ(screen->content().size(), 1U) << "a blank is a text, too";
    EXPECT_EQ(screen->content()[0]->dish()->nameENG(), QStringLiteral("  "));

    screen->selectRow(Screen::AddSection, Screen::AddQuickDishRow);
    close();
    ShownAlert *alert = AlertCenter::sharedCenter().current();
    ASSERT_NE(alert, nullptr);
    alert->setText(QStringLiteral("Яблоко"));
    alert->answer(1);
    EXPECT_EQ(dishCount(), 1) << "nobody waits for the answer any more";
}

TEST_F(DietDayScreenTest, TheNextDishComesLastWhateverWasRemoved)
{
    open();
    EXPECT_FALSE(screen->rightBarButtonItems().first()->isVisible()) << "there is nothing to edit";
    plan({"A", "B", "C", "D", "E", "F"});
    EXPECT_TRUE(screen->rightBarButtonItems().first()->isVisible());
    EXPECT_EQ(stored(), "0A 1B 2C 3D 4E 5F");
    EXPECT_FALSE(program.context().hasChanges());
    screen->deleteRowByUser(Screen::DishesSection, 1);
    screen->deleteRowByUser(Screen::DishesSection, 0);
    EXPECT_EQ(stored(), "0C 1D 2E 3F");
    EXPECT_FALSE(program.context().hasChanges());
    plan({"G"});
    EXPECT_EQ(dishes(), "C D E F G");
    reopen();
    EXPECT_EQ(dishes(), "C D E F G");
    EXPECT_EQ(dishCount(), 7) << "a dish of the catalogue stays";

    // Gaps that are stored already, or come with a dish that is deleted elsewhere.
    for (int i = 0; DishInDietDay * planned : screen->content())
        planned->setDisplayOrder(i += 2);
    ASSERT_TRUE(program.context().save());
    reopen();
    plan({"H"});
    EXPECT_EQ(stored(), "0C 1D 2E 3F 4G 5H");

    offerProposals();
    while (screen->content().size() > 3)
        screen->deleteRowByUser(Screen::DishesSection, 1);
    program.context().deleteObject(*screen->content()[0]->dish());
    screen->setDate(march(7), attack);
    EXPECT_EQ(dishes(), "G H");
    screen->autoFillDay();
    EXPECT_EQ(dishes(), "G H 1a 2b 3a 5b 7a 1b");
    reopen();
    EXPECT_EQ(dishes(), "G H 1a 2b 3a 5b 7a 1b") << "as it was shown";
    EXPECT_EQ(stored(), "0G 1H 21a 32b 43a 55b 67a 71b");
}

TEST_F(DietDayScreenTest, AQuickDishLeavesItsProductsOnTheShoppingList)
{
    open();
    answerQuickDish(1, QStringLiteral("Каша"));
    for (const char *name : {"Овёс", "Соль"}) {
        auto &line = program.context().insert<Ingredient>();
        line.setName(QString::fromUtf8(name));
        line.setDishRU(screen->content()[0]->dish());
    }
    ASSERT_TRUE(program.context().save());
    program.manager().addIngredientToCard(QStringLiteral("Овёс"));
    screen->deleteRowByUser(Screen::DishesSection, 0);
    reopen();
    EXPECT_EQ(dishCount(), 0);
    const auto cart = program.manager().purhaseIngredients();
    ASSERT_EQ(cart.size(), 1U);
    ASSERT_NE(cart[0]->ingredient(), nullptr);
    EXPECT_EQ(cart[0]->ingredient()->name(), QStringLiteral("Овёс"));
    EXPECT_EQ(program.context().fetchOrLog<Ingredient>().size(), 1U) << "the others go with their dish";
}

TEST_F(DietDayScreenTest, EditingMovesAndRemoves)
{
    open();
    plan({"A", "B", "C", "D"});
    screen->selectRow(Screen::DaySection, Screen::weightRow);
    screen->rightBarButtonItems().first()->trigger();
    EXPECT_TRUE(screen->isEditing());
    EXPECT_FALSE(screen->hasInlinePicker());
    EXPECT_EQ(screen->table()->numberOfSections(), 2);
    screen->selectRow(Screen::DaySection, 1);
    EXPECT_EQ(kinds(), "...") << "no touch counts while editing";
    for (const auto &[from, to, expected] :
         {std::tuple(0, 2, "B C A D"), std::tuple(3, 0, "D B C A"), std::tuple(1, 2, "D C B A"),
          std::tuple(0, 3, "C B A D"), std::tuple(0, 4, "C B A D"), std::tuple(0, -1, "C B A D")}) {
        screen->moveRowByUser(Screen::DishesSection, from, Screen::DishesSection, to);
        EXPECT_EQ(dishes(), expected);
        EXPECT_FALSE(program.context().hasChanges());
    }
    screen->moveRowByUser(Screen::DishesSection, 0, Screen::DaySection, 0);
    screen->moveRowByUser(Screen::DaySection, 0, Screen::DaySection, 1);
    EXPECT_EQ(stored(), "0C 1B 2A 3D");
    screen->deleteRowByUser(Screen::DishesSection, 1);
    screen->deleteRowByUser(Screen::DaySection, 0);
    screen->setEditing(false);
    EXPECT_EQ(screen->table()->numberOfSections(), 3);
    EXPECT_EQ(titles(Screen::AddSection).size(), 4);
    screen->moveRowByUser(Screen::DishesSection, 0, Screen::DishesSection, 1);
    EXPECT_EQ(dishes(), "C A D") << "only while editing";
    reopen();
    EXPECT_EQ(stored(), "0C 1A 2D");
    EXPECT_EQ(dishes(), "C A D");

    screen->setEditing(true);
    for (const bool more : {true, true, false}) {
        screen->deleteRowByUser(Screen::DishesSection, 0);
        EXPECT_EQ(screen->isEditing(), more) << "as long as there is something to edit";
    }
    EXPECT_EQ(titles(Screen::AddSection).size(), 4);
}

TEST_F(DietDayScreenTest, FillsADayAutomatically)
{
    offerProposals();
    LogCapture capture;
    open();
    plan({"A", "B"});
    capture.take();
    screen->selectRow(Screen::AddSection, Screen::AutoFillRow);
    EXPECT_EQ(dishes(), "A B 1a 2b 3a 5b 7a 1b");
    EXPECT_TRUE(program.context().hasChanges()) << "what was proposed is not saved by itself";
    EXPECT_EQ(capture.lines().first(), QStringLiteral("start autofilin"));
    EXPECT_EQ(capture.lines().last(), QStringLiteral("end autofilin"));
    screen->selectRow(Screen::AddSection, Screen::AutoFillRow);
    EXPECT_EQ(screen->content().size(), 8U) << "full enough";
    EXPECT_EQ(capture.lines().last(), QStringLiteral("start autofilin"));
    reopen(); // leaving the screen saves
    EXPECT_EQ(stored(), "0A 1B 21a 32b 43a 55b 67a 71b");

    screen->setDate(march(8), cruise);
    screen->autoFillDay();
    EXPECT_EQ(dishes(), "") << "no dish of this phase";
    screen->setDate(march(9), attack);
    plan({"C", "D", "E"});
    screen->autoFillDay();
    EXPECT_EQ(screen->content().size(), 9U);
    screen->setDate(march(7), attack);
    EXPECT_FALSE(program.context().hasChanges()) << "leaving the day saves, too";
    screen->setDate(march(10), attack);
    plan({"C", "D", "E", "F"});
    screen->autoFillDay();
    EXPECT_EQ(dishes(), "C D E F");
    screen->setDate(march(9), attack);
    screen->moveRowByUser(Screen::DishesSection, 0, Screen::DishesSection, 1);
    EXPECT_EQ(screen->content().size(), 9U);
    reopen();
    screen->setDate(march(9), attack);
    EXPECT_EQ(screen->content().size(), 9U);
}

TEST_F(DietDayScreenTest, NamesOfDishesMayBeAnything)
{
    open();
    auto &nameless = program.context().insert<Dish>();
    auto &english = program.context().insert<Dish>();
    english.setNameENG(QStringLiteral("Soup"));
    screen->addDish(nameless);
    screen->addDish(english);
    program.context().insert<DishInDietDay>().setDietDays(record()); // its dish is lost
    const QString longName(5000, QChar(u'ж'));
    answerQuickDish(1, longName);
    answerQuickDish(1, QStringLiteral("🍲 مرق"));
    screen->setDate(march(7), attack);
    EXPECT_EQ(titles(Screen::DishesSection), (QStringList{QStringLiteral("-"), QStringLiteral("-"),
                                                          QStringLiteral("Soup"), longName, QStringLiteral("🍲 مرق")}));
    program.storePlan(march(5), 3, 10, 10);
    CalendarViewController calendar;
    calendar.loadViewIfNeeded();
    EXPECT_EQ(calendar.dishes(), titles(Screen::DishesSection)) << "the calendar lists them by the same names";
    EXPECT_FALSE(shown(Screen::DishesSection, 1).selectable && shown(Screen::DishesSection, 0).selectable);
    reopen();
    EXPECT_EQ(screen->content().size(), 5U);
    EXPECT_TRUE(titles(Screen::DishesSection).contains(longName));
}

TEST_F(DietDayScreenTest, LeadsToTheListsAndTheDish)
{
    open();
    plan({"A"});
    screen->selectRow(Screen::AddSection, Screen::AddFavoriteRow);
    ASSERT_NE(AlertCenter::sharedCenter().current(), nullptr);
    EXPECT_EQ(AlertCenter::sharedCenter().current()->message(), QStringLiteral("У вас нет избранных рецептов"));
    EXPECT_EQ(AlertCenter::sharedCenter().current()->buttonTitles(), texts({"ОК"}));
    AlertCenter::sharedCenter().current()->answer(0);
    FavoritesManager::sharedManager().addDishToFavorite(*screen->content()[0]->dish());

    const auto opened = [this](int section, int row) {
        screen->selectRow(section, row);
        ViewController *top = stack->topViewController();
        if (screen->popover() != nullptr)
            top = qobject_cast<NavigationController *>(screen->popover()->content())->topViewController();
        const std::string name = top->metaObject()->className();
        screen->dismissPopover();
        stack->popToViewController(screen, false);
        return name;
    };
    for (const bool tablet : {false, true}) {
        if (tablet)
            openOnTablet();
        EXPECT_EQ(opened(Screen::AddSection, Screen::AddDishRow), "kesto::DishesCategoriesViewController");
        EXPECT_EQ(opened(Screen::AddSection, Screen::AddFavoriteRow), "kesto::FavoritesViewController");
        EXPECT_EQ(opened(Screen::DishesSection, 0), "kesto::DishDetailViewController");
    }
    screen->selectRow(Screen::AddSection, Screen::AddFavoriteRow);
    ASSERT_NE(screen->popover(), nullptr);
    EXPECT_EQ(screen->popover()->anchor(), QStringLiteral("row/2/1"));
    plan({"B"});
    EXPECT_EQ(dishes(), "A B") << "seen beside the open list";
    ASSERT_NE(screen->popover(), nullptr);
}

} // namespace
} // namespace kesto::test
