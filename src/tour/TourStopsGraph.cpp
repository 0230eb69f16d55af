#include "tour/TourStopsGraph.h"

#include "model/DietDay.h"
#include "plan/GraphViewController.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"
#include "tour/TourGuide.h"

#include <cmath>

namespace kesto
{

namespace
{

constexpr int graphRow = 5;
constexpr int attackDays = 5;
constexpr int cruiseDays = 90;
constexpr int consolidationDays = 120;

/// A person who lost weight quickly at first and more slowly later, with the ups and downs of single days.
float weightOf(int day)
{
    const auto at = static_cast<float>(day);
    return 64 + 21 * std::exp(-at / 110) + 0.5F * std::sin(at * 1.7F) + 0.4F * std::sin(at * 0.6F);
}

/// As if the weight had been recorded on the last days up to today, and nothing before.
GraphViewController *openGraph(TourGuide &guide, int days, bool metric = true)
{
    Platform &platform = guide.platform();
    const Calendar &calendar = platform.calendar();
    const QDate today = calendar.dayOf(platform.clock().now());
    CoreDataManager &manager = CoreDataManager::sharedManager();
    ManagedObjectContext &context = *manager.managedObjectContext();
    for (int ago = 365; ago >= 0; --ago) {
        const Result<DietDay *> found = DietDay::dietDatWithDate(calendar.startOfDay(today.addDays(-ago)), context);
        if (!found) {
            guide.complain(found.error().message());
            return nullptr;
        }
        DietDay &day = **found;
        const bool recorded = ago < days;
        const int number = days - 1 - ago;
        day.setWeight(recorded ? std::optional(weightOf(number)) : std::nullopt);
        day.setWaist(recorded && number % 7 == 0 ? std::optional(weightOf(number) + 12) : std::nullopt);
    }
    const QDateTime start = calendar.startOfDay(today.addDays(1 - days));
    platform.userDefaults().setValue(start, Keys::kStartDietDateKey);
    platform.userDefaults().setInteger(attackDays, Keys::kPeriod1Key);
    platform.userDefaults().setInteger(cruiseDays, Keys::kPeriod2Key);
    platform.userDefaults().setInteger(consolidationDays, Keys::kPeriod3Key);
    platform.userDefaults().setFloat(68, Keys::kIdealWidth);
    platform.userDefaults().setBool(false, Keys::kGraphTrendKey);
    manager.setStartDietDay(start);
    manager.setMetrickSystem(metric);
    guide.openRow(graphRow);
    guide.settle();
    auto *screen = guide.screenOf<GraphViewController>();
    if (screen != nullptr && days > 7)
        screen->setSelectedRange(static_cast<int>(screen->rangeTitles().size()) - 1);
    return screen;
}

std::function<void(TourGuide &)> graphOf(int days)
{
    return [days](TourGuide &guide) { (void)openGraph(guide, days); };
}

void graphInPounds(TourGuide &guide) { (void)openGraph(guide, 60, false); }

void graphWithFlag(TourGuide &guide)
{
    if (GraphViewController *screen = openGraph(guide, 150)) {
        screen->setTrendShown(true);
        screen->setSelectedPoint(40);
    }
}

void graphOfMonth(TourGuide &guide)
{
    if (GraphViewController *screen = openGraph(guide, 40)) {
        screen->setSelectedRange(1);
        screen->setTrendShown(true);
    }
}

void graphOfWaist(TourGuide &guide)
{
    if (GraphViewController *screen = openGraph(guide, 100))
        screen->setSelectedMeasure(1);
}

void tableOfValues(TourGuide &guide)
{
    if (GraphViewController *screen = openGraph(guide, 30))
        screen->showTable();
}

} // namespace

QList<TourStop> graphTourStops()
{
    return {
        {QStringLiteral("graph-too-few"), graphOf(1)},  {QStringLiteral("graph-2"), graphOf(2)},
        {QStringLiteral("graph-month"), graphOfMonth},  {QStringLiteral("graph-60"), graphOf(60)},
        {QStringLiteral("graph-100"), graphOf(100)},    {QStringLiteral("graph-150"), graphOf(150)},
        {QStringLiteral("graph-365"), graphOf(365)},    {QStringLiteral("graph-pounds"), graphInPounds},
        {QStringLiteral("graph-flag"), graphWithFlag},  {QStringLiteral("graph-waist"), graphOfWaist},
        {QStringLiteral("graph-table"), tableOfValues},
    };
}

} // namespace kesto
