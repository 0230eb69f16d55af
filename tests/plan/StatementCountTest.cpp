// Lists are read with a number of statements that does not depend on their length.

#include "PlanFixture.h"

#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/DishesCategory.h"
#include "model/JornalDay.h"
#include "model/TimeRow.h"
#include "objectgraph/StatementLog.h"
#include "plan/DietDayDetailViewController.h"
#include "recipes/CartViewController.h"
#include "recipes/DishesViewController.h"
#include "recipes/FavoritesManager.h"
#include "recipes/FavoritesViewController.h"

namespace kesto::test
{
namespace
{

struct ListCase
{
    const char *name;
    int size; ///< of the long list
    void (*fill)(PlanFixture &program, int size);
    /// Reads the list; returns how much it found.
    size_t (*read)(PlanFixture &program);
    int most; ///< SELECT statements
};

QDateTime today(PlanFixture &program) { return program.dayStart(2024, 3, 7); }

DietDay &day(PlanFixture &program) { return *DietDay::dietDatWithDate(today(program), program.context()).value(); }

Dish &addDish(PlanFixture &program, int number, DishesCategory *category)
{
    auto &dish = program.context().insert<Dish>();
    dish.setNameRU(QString::number(number));
    dish.setDietPeriod(QStringLiteral("0"));
    dish.setDishCategory(category);
    return dish;
}

/// Every dish of the first category is a favourite, planned for today, and in a row of today's journal.
void fillCatalogue(PlanFixture &program, int size)
{
    DietDay &planDay = day(program);
    auto &journal = program.context().insert<JornalDay>();
    journal.setDay(&planDay);
    for (quint32 order = 0; order < 9; ++order) {
        auto &category = program.context().insert<DishesCategory>();
        category.setDisplayOrder(order);
        for (int i = 0; i < size; ++i) {
            Dish &dish = addDish(program, i, &category);
            if (order > 0)
                continue;
            auto &planned = program.context().insert<DishInDietDay>();
            planned.setDisplayOrder(i);
            planned.setDish(&dish);
            planDay.addDishes(planned);
            auto &row = program.context().insert<TimeRow>();
            row.setJoranlDay(&journal);
            auto &placed = program.context().insert<DishInDietDay>();
            placed.setDish(&dish);
            placed.setJornalTimeRow(&row);
            FavoritesManager::sharedManager().addDishToFavorite(dish);
        }
    }
}

void fillCart(PlanFixture &program, int size) { program.fillShoppingList(size); }

void fillCalendar(PlanFixture &program, int size)
{
    for (int i = 0; i < size; ++i) {
        auto &each = program.context().insert<DietDay>();
        each.setDate(program.calendar().startOfDay(QDate(2024, 3, 7).addDays(-i)));
        program.context().insert<JornalDay>().setDay(&each);
    }
}

const ListCase cases[] = {
    {"automatic filling", 100, fillCatalogue,
     [](PlanFixture &program) {
         program.platform.random().set({0, 1});
         return program.manager().autoFilledDishesForPeriod(0).size() - 6;
     },
     3},
    {"day screen", 60, fillCatalogue,
     [](PlanFixture &program) {
         DietDayDetailViewController screen(today(program), 0, nullptr);
         screen.loadViewIfNeeded();
         return screen.content().size();
     },
     4},
    {"grid of dishes", 100, fillCatalogue,
     [](PlanFixture &program) {
         DishesViewController screen(0, &day(program), 0);
         screen.updateToPeriod(1);
         return static_cast<size_t>(screen.content().size());
     },
     7},
    {"favourites", 100, fillCatalogue,
     [](PlanFixture &program) {
         FavoritesViewController screen;
         screen.setIsAddMode(true);
         screen.setDay(&day(program));
         screen.loadViewIfNeeded();
         EXPECT_TRUE(screen.table()->rowAt({0, 0}).checked);
         return FavoritesManager::sharedManager().favoritiesDishes().size();
     },
     5},
    {"shopping list", 1000, fillCart,
     [](PlanFixture &program) {
         CartViewController screen;
         screen.loadViewIfNeeded();
         screen.selectRow(CartViewController::LinesSection, 1);
         return program.manager().purhaseIngredients().size();
     },
     8},
    {"clearing the shopping list", 1000, fillCart,
     [](PlanFixture &program) {
         const size_t size = program.manager().purhaseIngredients().size();
         program.manager().removeAllPurchaseIngredientsFromCard();
         EXPECT_TRUE(program.manager().purhaseIngredients().empty());
         return size;
     },
     8},
    {"calendar", 365, fillCalendar,
     [](PlanFixture &program) {
         CalendarMonth month;
         month.showMonth(QDate(2024, 3, 1));
         EXPECT_TRUE(month.cells()[month.indexOfToday()].hasJornal);
         return program.context().fetch<DietDay>()->size();
     },
     3},
};

TEST(StatementCount, DoesNotDependOnTheLengthOfAList)
{
    for (const ListCase &each : cases) {
        SCOPED_TRACE(each.name);
        QList<qsizetype> counts;
        for (const int size : {3, each.size}) {
            StatementLog log;
            PlanFixture program;
            program.storePlan(today(program), 7, 100, 100);
            each.fill(program, size);
            ASSERT_TRUE(program.context().save());
            program.restart();
            (void)program.context();
            program.settle();
            (void)log.take();
            const size_t found = each.read(program);
            counts.append(log.take().filter(QStringLiteral("SELECT")).size());
            EXPECT_TRUE(found == static_cast<size_t>(size) || found == 0) << found;
        }
        EXPECT_EQ(counts[0], counts[1]);
        EXPECT_LE(counts[1], each.most);
        EXPECT_GT(counts[1], 0);
    }
}

} // namespace
} // namespace kesto::test
