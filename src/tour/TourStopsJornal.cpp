#include "tour/TourStopsJornal.h"

#include "components/AlertCenter.h"
#include "journal/JornalSheduleRootViewController.h"
#include "journal/JornalTabBarController.h"
#include "journal/TimeRowDetailViewController.h"
#include "model/TimeRow.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"
#include "tour/TourGuide.h"

#include <chrono>

namespace kesto
{

namespace
{

constexpr int jornalRow = 7;
enum Place { Breakfast, SecondBreakfast, Noon, Lunch, Evening, Night }; // of the hours that every day has
constexpr int daysOfAttack = 5;

using Editor = TimeRowDetailViewController;

JornalTabBarController *openJornal(TourGuide &guide)
{
    guide.openRow(jornalRow);
    guide.settle();
    return guide.screenOf<JornalTabBarController>();
}

/// A day of the first phase, which can be filled automatically.
void startDietToday(TourGuide &guide)
{
    const Calendar &calendar = guide.platform().calendar();
    const QDateTime today = calendar.startOfDay(calendar.dayOf(guide.platform().clock().now()));
    UserDefaults &defaults = guide.platform().userDefaults();
    defaults.setValue(today, Keys::kStartDietDateKey);
    defaults.setInteger(daysOfAttack, Keys::kPeriod1Key);
    CoreDataManager::sharedManager().setStartDietDay(today);
}

Editor *openRow(TourGuide &guide, JornalTabBarController &jornal, int row)
{
    jornal.shedule()->selectRow(0, row);
    guide.settle(std::chrono::milliseconds(500));
    return guide.screenOf<Editor>();
}

/// Today with dishes, items, two rows that are done and one that reminds.
template <class Act>
std::function<void(TourGuide &)> inFilledDay(Act act)
{
    return [act](TourGuide &guide) {
        startDietToday(guide);
        JornalTabBarController *jornal = openJornal(guide);
        if (jornal == nullptr)
            return;
        JornalSheduleRootViewController &shedule = *jornal->shedule();
        if (shedule.content().front()->dishesInDietDay().empty()) {
            shedule.autoFillDay();
            for (const int done : {Breakfast, SecondBreakfast})
                shedule.compleateButtonTouchedInRow(done);
            Editor lunch(*shedule.content()[Lunch]);
            lunch.waterValueChanged(2);
            lunch.endEditing(5, QStringLiteral("2,5"));
            lunch.endEditing(105, QStringLiteral("35"));
            lunch.endEditing(Editor::otherTag, QStringLiteral("Vitamin D"));
            lunch.switchReminding(true); // where it is later than that the alert says so
            if (ShownAlert *refusal = AlertCenter::sharedCenter().current())
                refusal->answer(0);
            shedule.reloadData();
        }
        act(guide, *jornal);
    };
}

/// In the editor of the row at lunch.
template <class Act>
std::function<void(TourGuide &)> inEditor(Act act, int row = Lunch)
{
    return inFilledDay([act, row](TourGuide &guide, JornalTabBarController &jornal) {
        if (Editor *editor = openRow(guide, jornal, row))
            act(*editor);
    });
}

} // namespace

QList<TourStop> jornalTourStops()
{
    constexpr int aType = 3;
    return {
        {QStringLiteral("journal-empty"), [](TourGuide &guide) { (void)openJornal(guide); }},
        {QStringLiteral("journal"), inFilledDay([](TourGuide &, JornalTabBarController &) {})},
        {QStringLiteral("journal-add-time"),
         inFilledDay([](TourGuide &, JornalTabBarController &jornal) { jornal.shedule()->addTimeRow(); })},
        {QStringLiteral("journal-same-time"), inFilledDay([](TourGuide &guide, JornalTabBarController &jornal) {
             jornal.shedule()->showErrorAlert();
             guide.settle(std::chrono::milliseconds(800));
         })},
        {QStringLiteral("journal-row"), inEditor([](Editor &) {})},
        {QStringLiteral("journal-row-empty"), inEditor([](Editor &) {}, Night)},
        {QStringLiteral("journal-row-time"), inEditor([](Editor &editor) { editor.changeTime(); })},
        {QStringLiteral("journal-row-info"), inEditor([](Editor &editor) { editor.touchAccessory(0, aType); })},
        {QStringLiteral("journal-row-dish"),
         inEditor([](Editor &editor) { editor.selectRow(0, Editor::SecondDishRow); })},
        {QStringLiteral("journal-row-past"), inFilledDay([](TourGuide &guide, JornalTabBarController &jornal) {
             jornal.helper()->goToPrevisiousDay();
             if (Editor *editor = openRow(guide, jornal, Lunch)) {
                 editor->waterValueChanged(1);
                 editor->turnSwitch(0, Editor::ReminderRow, true);
             }
         })},
    };
}

} // namespace kesto
