#pragma once

#include "components/NavigationController.h"
#include "components/Shell.h"
#include "components/Window.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/DishesCategory.h"
#include "model/JornalDay.h"
#include "model/TimeRow.h"
#include "recipes/DishDelegates.h"
#include "recipes/DishList.h"
#include "store/StoreFixture.h"

#include <map>

namespace kesto::test
{

/// A program with a catalogue of its own making.
class RecipesFixture : public StoreFixture
{
public:
    using StoreFixture::StoreFixture;

    DishesCategory &category(int index)
    {
        if (DishesCategory *known = manager().dishesCategoryForIndex(index))
            return *known;
        auto &made = context().insert<DishesCategory>();
        made.setNameRU(QString::number(index));
        made.setDisplayOrder(static_cast<quint32>(index));
        return made;
    }
    Dish &addDish(const QString &nameRU, const QString &dietPeriod, int index = 0, const QString &nameENG = {})
    {
        auto &dish = context().insert<Dish>();
        dish.setNameRU(nameRU);
        dish.setNameENG(nameENG);
        dish.setDietPeriod(dietPeriod);
        category(index).addDishes(dish);
        return dish;
    }
    [[nodiscard]] Dish &dish(const char *nameRU)
    {
        return *Dish::dishWithRusName(QString::fromUtf8(nameRU), context());
    }
    void save() { ASSERT_TRUE(context().save()); }

    /// The day of 7 March, with a journal.
    DietDay &day()
    {
        DietDay &found = *DietDay::dietDatWithDate(platform.date(2024, 3, 7), context()).value();
        if (found.jornalDay() == nullptr)
            context().insert<JornalDay>().setDay(&found);
        return found;
    }
    /// Into a new row of the day's journal.
    void placeInJournal(Dish &dish)
    {
        auto &row = context().insert<TimeRow>();
        row.setJoranlDay(day().jornalDay());
        auto &placed = context().insert<DishInDietDay>();
        placed.setDish(&dish);
        placed.setJornalTimeRow(&row);
    }
    void plan(Dish &dish)
    {
        auto &placed = context().insert<DishInDietDay>();
        placed.setDish(&dish);
        placed.setDietDays(&day());
    }
};

/// Recipes in a window.
class RecipesWindow : public testing::Test
{
protected:
    ~RecipesWindow() override
    {
        Window::sharedWindow().setRootViewController(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// On a stack of its own.
    template <class Screen>
    Screen &show(std::unique_ptr<Screen> screen)
    {
        Screen &shown = *screen;
        auto root = std::make_unique<NavigationController>(std::move(screen));
        stack = root.get();
        Window::sharedWindow().setRootViewController(std::move(root));
        return shown;
    }

    RecipesFixture program;
    NavigationController *stack = nullptr;
};

/// Puts what it is given into the journal or into the plan of the day, once each, or refuses.
struct AddingDelegate : AddDishDelegate
{
    enum class Into { Journal, Plan, Nothing };

    AddingDelegate(RecipesFixture &fixture, Into place)
        : program(fixture)
        , into(place)
    {
    }
    void addDish(Dish &dish) override
    {
        added.append(dish.nameRU());
        if (into == Into::Journal)
            program.placeInJournal(dish);
        else if (into == Into::Plan)
            program.plan(dish);
    }

    RecipesFixture &program;
    Into into;
    QStringList added;
};

/// Keeps the screen that becomes the main content.
class DetailShell : public Shell
{
public:
    void openDetailViewController(std::unique_ptr<ViewController> controller) override
    {
        detail = std::make_unique<NavigationController>(std::move(controller));
    }
    void openHome() override {}
    void openCalendar() override {}

    std::unique_ptr<NavigationController> detail;
};

inline QString names(const QVariantList &items)
{
    QStringList list;
    for (const QVariant &item : items)
        list.append(dishOf(item)->nameRU());
    return list.join(u' ');
}

} // namespace kesto::test
