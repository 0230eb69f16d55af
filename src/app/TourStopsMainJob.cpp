#include "app/TourStopsMainJob.h"

#include "app/RootViewConrollerViewController.h"
#include "app/TourGuide.h"
#include "components/AlertCenter.h"
#include "components/NavigationController.h"
#include "components/Window.h"
#include "plan/CalculatorViewController.h"
#include "plan/CalendarViewController.h"
#include "plan/DietDayDetailViewController.h"
#include "platform/StringTables.h"
#include "recipes/CartViewController.h"
#include "recipes/DishDetailViewController.h"
#include "recipes/DishesCategoriesViewController.h"
#include "recipes/DishesViewController.h"

#include <algorithm>

namespace kesto
{

namespace
{

using Day = DietDayDetailViewController;

constexpr int cartRow = 8;
constexpr int soups = 2;
constexpr int ninetyTwo = 52; // the wheel begins at 40

/// Presses the last button of the alert that is shown: the one that does it.
void pressLastButton()
{
    if (ShownAlert *alert = AlertCenter::sharedCenter().current())
        alert->answer(static_cast<int>(alert->buttonTitles().size()) - 1);
}

void weigh(TourGuide &guide)
{
    guide.openRow(RootViewConrollerViewController::calculatorRow);
    guide.settle();
    auto *screen = guide.screenOf<CalculatorViewController>();
    if (screen == nullptr)
        return;
    screen->displayPickerForIndexPath(
        {CalculatorViewController::InputsSection, static_cast<int>(CalculatorInput::Weight)});
    screen->picker()->components().constFirst()->select(ninetyTwo);
}

void startToday(TourGuide &guide)
{
    auto *screen = guide.screenOf<CalculatorViewController>();
    if (screen == nullptr)
        return;
    screen->startDietIntro();
    pressLastButton();
    guide.settle(std::chrono::milliseconds(500)); // the calendar comes a moment later
}

Day *openToday(TourGuide &guide)
{
    if (auto *calendar = guide.screenOf<CalendarViewController>())
        calendar->openDaySettings();
    guide.settle();
    return guide.screenOf<Day>();
}

void fillToday(TourGuide &guide)
{
    if (Day *day = openToday(guide))
        day->selectRow(Day::AddSection, Day::AutoFillRow);
}

/// Another soup in place of the first dish, and the dish after it to the end.
void changeToday(TourGuide &guide)
{
    auto *day = guide.screenOf<Day>();
    if (day == nullptr || day->content().empty())
        return;
    day->deleteRowByUser(Day::DishesSection, 0);
    day->selectRow(Day::AddSection, Day::AddDishRow);
    guide.settle();
    if (auto *categories = guide.screenOf<DishesCategoriesViewController>())
        categories->selectRow(0, soups);
    guide.settle();
    if (auto *dishes = guide.screenOf<DishesViewController>()) {
        dishes->selectDishButtonTouchedAtIndexPath(0);
        dishes->close();
    }
    guide.settle();
    if (auto *categories = guide.screenOf<DishesCategoriesViewController>())
        categories->close();
    guide.settle();
    day->setEditing(true);
    day->moveRowByUser(Day::DishesSection, 0, Day::DishesSection, static_cast<int>(day->content().size()) - 1);
}

void likeAndBuy(TourGuide &guide)
{
    auto *day = guide.screenOf<Day>();
    if (day == nullptr)
        return;
    day->setEditing(false);
    day->selectRow(Day::DishesSection, 0);
    guide.settle();
    if (auto *dish = guide.screenOf<DishDetailViewController>()) {
        dish->rightBarButtonItems().constFirst()->trigger();
        dish->rightBarButtonItems().constLast()->trigger();
    }
}

void shop(TourGuide &guide)
{
    guide.openRow(cartRow);
    guide.settle();
    auto *cart = guide.screenOf<CartViewController>();
    if (cart == nullptr)
        return;
    cart->selectRow(0, 0);
    cart->selectRow(1, 0);
    if (ShownAlert *alert = AlertCenter::sharedCenter().current()) {
        alert->setText(localized(QStringLiteral("Вода")));
        pressLastButton();
    }
    cart->deleteRowByUser(0, 2);
}

} // namespace

QList<TourStop> mainJobTourStops()
{
    return {
        {QStringLiteral("job-weight"), weigh},         {QStringLiteral("job-started"), startToday},
        {QStringLiteral("job-day-filled"), fillToday}, {QStringLiteral("job-day-changed"), changeToday},
        {QStringLiteral("job-dish"), likeAndBuy},      {QStringLiteral("job-shopping-list"), shop},
    };
}

} // namespace kesto
