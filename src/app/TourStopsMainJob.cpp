#include "app/TourStopsMainJob.h"

#include "app/RootViewConrollerViewController.h"
#include "app/TourGuide.h"
#include "app/TourStopsPlan.h"
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
#include <memory>

namespace kesto
{

namespace
{

using Day = DietDayDetailViewController;

constexpr int cartRow = 8;
constexpr int soups = 2;
constexpr int ninetyTwo = 52; // the wheel begins at 40

/// What the screens of the job show when it is done with them.
struct Seen
{
    QStringList figures;
    QStringList month;
    QStringList plan;
    QStringList list;
};

QStringList textsOf(const TableModel &table)
{
    QStringList texts;
    for (int section = 0; section < table.numberOfSections(); ++section) {
        for (const TableRow &row : table.section(section).rows) {
            if (row.kind != TableRow::Kind::Picker)
                texts.append(QStringList{row.title, row.detail, row.text,
                                         row.selected ? QStringLiteral("selected") : QString(),
                                         row.checked ? QStringLiteral("checked") : QString()}
                                 .join(u'|'));
        }
    }
    return texts;
}

QStringList textsOf(const CalendarMonth &month)
{
    QStringList texts{month.title()};
    for (int i = 0; i < month.rowCount(); ++i)
        texts.append(month.data(month.index(i), CalendarMonth::AccessibleNameRole).toString());
    return texts;
}

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

void startToday(TourGuide &guide, Seen &seen)
{
    auto *screen = guide.screenOf<CalculatorViewController>();
    if (screen == nullptr)
        return;
    seen.figures = textsOf(*screen->table());
    screen->startDietIntro();
    pressLastButton();
    guide.settle(std::chrono::milliseconds(500)); // the calendar comes a moment later
    if (auto *calendar = guide.screenOf<CalendarViewController>())
        seen.month = textsOf(*calendar->month());
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

void likeAndBuy(TourGuide &guide, Seen &seen)
{
    auto *day = guide.screenOf<Day>();
    if (day == nullptr)
        return;
    day->setEditing(false);
    seen.plan = textsOf(*day->table());
    day->selectRow(Day::DishesSection, 0);
    guide.settle();
    if (auto *dish = guide.screenOf<DishDetailViewController>()) {
        dish->rightBarButtonItems().constFirst()->trigger();
        dish->rightBarButtonItems().constLast()->trigger();
    }
}

void shop(TourGuide &guide, Seen &seen)
{
    guide.openRow(cartRow);
    guide.settle();
    auto *cart = guide.screenOf<CartViewController>();
    if (cart == nullptr)
        return;
    cart->endEditingText(0, 0, QStringLiteral("2"));
    cart->selectRow(0, 0);
    cart->selectRow(0, 1);
    cart->selectRow(1, 0);
    if (ShownAlert *alert = AlertCenter::sharedCenter().current()) {
        alert->setText(localized(QStringLiteral("Вода")));
        pressLastButton();
    }
    cart->deleteRowByUser(0, 3);
    seen.list = textsOf(*cart->table());
}

void startAgain(TourGuide &guide)
{
    if (guide.startProgram() && !guide.waitUntilNothingIsPresented())
        guide.complain(QStringLiteral("The second start did not come to an end."));
}

void compare(TourGuide &guide, const QStringList &before, const QStringList &after)
{
    if (before.isEmpty())
        guide.complain(QStringLiteral("A screen of the main job did not open."));
    for (qsizetype i = 0; i < std::max(before.size(), after.size()); ++i) {
        if (before.value(i) != after.value(i))
            guide.complain(QStringLiteral("After the second start there is \"%2\" instead of \"%1\".")
                               .arg(before.value(i), after.value(i)));
    }
}

/// Ends at the shopping list.
void compareAll(TourGuide &guide, const Seen &before)
{
    Seen after;
    guide.openRow(RootViewConrollerViewController::calculatorRow);
    guide.settle();
    if (auto *calculator = guide.screenOf<CalculatorViewController>())
        after.figures = textsOf(*calculator->table());
    if (Day *day = openToday(guide))
        after.plan = textsOf(*day->table());
    if (auto *calendar = guide.screenOf<CalendarViewController>())
        after.month = textsOf(*calendar->month());
    guide.openRow(cartRow);
    guide.settle();
    if (auto *cart = guide.screenOf<CartViewController>())
        after.list = textsOf(*cart->table());
    compare(guide, before.figures, after.figures);
    compare(guide, before.month, after.month);
    compare(guide, before.plan, after.plan);
    compare(guide, before.list, after.list);
}

} // namespace

QList<TourStop> mainJobTourStops()
{
    const auto seen = std::make_shared<Seen>();
    const auto with = [seen](auto act) { return [seen, act](TourGuide &guide) { act(guide, *seen); }; };
    return {
        {QStringLiteral("job-weight"), weigh},
        {QStringLiteral("job-started"), with(startToday)},
        {QStringLiteral("job-day-filled"), fillToday},
        {QStringLiteral("job-day-changed"), changeToday},
        {QStringLiteral("job-dish"), with(likeAndBuy)},
        {QStringLiteral("job-shopping-list"), with(shop)},
        {QStringLiteral("job-again-calendar"), startAgain},
        {QStringLiteral("job-again-day"), [](TourGuide &guide) { (void)openToday(guide); }},
        {QStringLiteral("job-again-shopping-list"), with(compareAll)},
    };
}

} // namespace kesto
