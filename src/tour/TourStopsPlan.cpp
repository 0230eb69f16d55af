#include "tour/TourStopsPlan.h"

#include "app/RootViewConrollerViewController.h"
#include "model/DietDay.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/JornalDay.h"
#include "plan/CalculatorViewController.h"
#include "plan/CalendarViewController.h"
#include "plan/DietDayDetailViewController.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"
#include "tour/TourGuide.h"
#include "util/MNAdditions.h"

namespace kesto
{

namespace
{

constexpr int daysSinceStart = 3;
constexpr int attackDays = 5;
constexpr int cruiseDays = 60;

CalculatorViewController *openCalculator(TourGuide &guide)
{
    UserDefaults &defaults = guide.platform().userDefaults();
    defaults.setFloat(34, QStringLiteral("Возраст"));
    defaults.setFloat(78.4F, QStringLiteral("Вес"));
    defaults.setFloat(172, QStringLiteral("Рост"));
    guide.openRow(RootViewConrollerViewController::calculatorRow);
    guide.settle();
    return guide.screenOf<CalculatorViewController>();
}

void calculatorWithWheel(TourGuide &guide)
{
    if (CalculatorViewController *screen = openCalculator(guide))
        screen->displayPickerForIndexPath(
            {CalculatorViewController::InputsSection, static_cast<int>(CalculatorInput::Weight)});
}

void startDialog(TourGuide &guide)
{
    if (CalculatorViewController *screen = openCalculator(guide))
        screen->startDietIntro();
}

/// As if the calculator had started the diet three days ago, and as if it had been kept since. The lengths are those of
/// the first phases.
void startDiet(TourGuide &guide, int attack, int cruise)
{
    UserDefaults &defaults = guide.platform().userDefaults();
    const Calendar &calendar = guide.platform().calendar();
    const QDate today = calendar.dayOf(guide.platform().clock().now());
    const QDate first = today.addDays(-daysSinceStart);
    const QDateTime start = calendar.startOfDay(first);
    defaults.setValue(start, Keys::kStartDietDateKey);
    defaults.setInteger(attack, Keys::kPeriod1Key);
    defaults.setInteger(cruise, Keys::kPeriod2Key);
    defaults.setInteger(80, Keys::kPeriod3Key);
    defaults.setFloat(64, Keys::kIdealWidth);
    CoreDataManager &manager = CoreDataManager::sharedManager();
    manager.setStartDietDay(start);

    ManagedObjectContext &context = *manager.managedObjectContext();
    for (int i = 0; i < attackDays + cruiseDays; ++i) {
        const auto found = DietDay::dietDatWithDate(calendar.startOfDay(first.addDays(i)), context);
        if (!found)
            return;
        DietDay &day = **found;
        const bool pureProtein = i < attackDays || (i - attackDays) / attackDays % 2 == 0;
        day.setChB(pureProtein ? std::optional(true) : std::nullopt);
        day.setBO(pureProtein ? std::nullopt : std::optional(true));
        if (i > daysSinceStart)
            continue;
        day.setWeight(78.4F - 0.4F * static_cast<float>(i));
        day.setChest(98);
        day.setWaist(84.5F);
        day.setHip(104);
        if (day.jornalDay() == nullptr)
            context.insert<JornalDay>().setDay(&day);
    }
    const auto found = DietDay::dietDatWithDate(calendar.startOfDay(today), context);
    if (!found)
        return;
    DietDay &day = **found;
    FetchRequest dishes;
    dishes.predicate = attribute("dietPeriod").contains(QStringLiteral("0"));
    dishes.fetchLimit = 3;
    if (day.dishes().empty()) {
        int order = 0;
        for (Dish *dish : context.fetchOrLog<Dish>(dishes)) {
            auto &planned = context.insert<DishInDietDay>();
            planned.setDisplayOrder(order++);
            planned.setDish(dish);
            day.addDishes(planned);
        }
    }
    context.saveOrKeepChanges();
}

CalendarViewController *openCalendar(TourGuide &guide, int attack = attackDays, int cruise = cruiseDays)
{
    startDiet(guide, attack, cruise);
    guide.openRow(RootViewConrollerViewController::calendarRow);
    guide.settle();
    return guide.screenOf<CalendarViewController>();
}

/// A day with measures and without dishes.
void calendarOfSecondDay(TourGuide &guide)
{
    if (CalendarViewController *screen = openCalendar(guide)) {
        const QDateTime start = *CoreDataManager::sharedManager().startDietDay();
        const QDateTime second = guide.platform().calendar().dateByAdding(1, Calendar::Unit::Day, start);
        screen->touchCell(screen->month()->indexOf(second));
    }
}

/// The month and its fifteenth, a number of months after today's.
std::function<void(TourGuide &)> calendarAfterMonths(int months)
{
    return [months](TourGuide &guide) {
        CalendarViewController *screen = openCalendar(guide);
        if (screen == nullptr)
            return;
        for (int i = 0; i < months; ++i)
            screen->nextMonth();
        const Calendar &calendar = guide.platform().calendar();
        const QDate month = screen->month()->month();
        screen->touchCell(screen->month()->indexOf(calendar.startOfDay(QDate(month.year(), month.month(), 15))));
    };
}

/// The screen of a day, counted from the first one; beside the calendar or over it.
DietDayDetailViewController *openDay(TourGuide &guide, int number)
{
    CalendarViewController *screen = openCalendar(guide);
    if (screen == nullptr)
        return nullptr;
    const Calendar &calendar = guide.platform().calendar();
    const QDateTime start = *CoreDataManager::sharedManager().startDietDay();
    const QDateTime date = calendar.dateByAdding(number, Calendar::Unit::Day, start);
    const QDate day = calendar.dayOf(date);
    while (screen->month()->month().daysTo(QDate(day.year(), day.month(), 1)) > 0)
        screen->nextMonth();
    screen->touchCell(screen->month()->indexOf(date));
    screen->openDaySettings();
    guide.settle();
    return guide.screenOf<DietDayDetailViewController>();
}

void dayOfAttack(TourGuide &guide) { (void)openDay(guide, daysSinceStart + 1); }

void dayWithWheels(TourGuide &guide)
{
    if (DietDayDetailViewController *screen = openDay(guide, daysSinceStart + 1))
        screen->displayPickerForIndexPath(
            {DietDayDetailViewController::DaySection, DietDayDetailViewController::weightRow});
}

DietDayDetailViewController *openFilledDay(TourGuide &guide)
{
    DietDayDetailViewController *screen = openDay(guide, 1);
    if (screen != nullptr)
        screen->autoFillDay();
    return screen;
}

void dayInEditing(TourGuide &guide)
{
    if (DietDayDetailViewController *screen = openFilledDay(guide))
        screen->setEditing(true);
}

void quickDish(TourGuide &guide)
{
    if (DietDayDetailViewController *screen = openDay(guide, daysSinceStart))
        screen->selectRow(DietDayDetailViewController::AddSection, DietDayDetailViewController::AddQuickDishRow);
}

void catalogueForADay(TourGuide &guide)
{
    if (DietDayDetailViewController *screen = openDay(guide, daysSinceStart))
        screen->selectRow(DietDayDetailViewController::AddSection, DietDayDetailViewController::AddDishRow);
}

void dayOfStabilization(TourGuide &guide) { (void)openDay(guide, attackDays + cruiseDays + 80 + 10); }

} // namespace

DietDayDetailViewController *openToday(TourGuide &guide)
{
    guide.openRow(RootViewConrollerViewController::calendarRow);
    guide.settle();
    auto *calendar = guide.screenOf<CalendarViewController>();
    if (calendar == nullptr)
        return nullptr;
    calendar->showToday();
    calendar->touchCell(calendar->month()->indexOfToday());
    calendar->openDaySettings();
    guide.settle();
    return guide.screenOf<DietDayDetailViewController>();
}

QList<TourStop> calculatorTourStops()
{
    return {
        {QStringLiteral("calculator"), [](TourGuide &guide) { (void)openCalculator(guide); }},
        {QStringLiteral("calculator-wheels"), calculatorWithWheel},
        {QStringLiteral("start-dialog"), startDialog},
    };
}

QList<TourStop> calendarTourStops()
{
    return {
        {QStringLiteral("calendar-attack"), [](TourGuide &guide) { (void)openCalendar(guide); }},
        {QStringLiteral("calendar-measures"), calendarOfSecondDay},
        {QStringLiteral("calendar-cruise"), calendarAfterMonths(1)},
        {QStringLiteral("calendar-consolidation"), [](TourGuide &guide) { (void)openCalendar(guide, 1, 2); }},
        {QStringLiteral("calendar-stabilization"), calendarAfterMonths(6)},
        {QStringLiteral("day-attack"), dayOfAttack},
        {QStringLiteral("day-wheels"), dayWithWheels},
        {QStringLiteral("day-filled"), [](TourGuide &guide) { (void)openFilledDay(guide); }},
        {QStringLiteral("day-editing"), dayInEditing},
        {QStringLiteral("day-quick-dish"), quickDish},
        {QStringLiteral("day-catalogue"), catalogueForADay},
        {QStringLiteral("day-stabilization"), dayOfStabilization},
    };
}

} // namespace kesto
