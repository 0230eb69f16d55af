#include "tour/TourStops.h"

#include "app/RootViewConrollerViewController.h"
#include "app/StoreAlert.h"
#include "components/BKPasscodeLockScreenManager.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "store/Keys.h"
#include "tour/TourGuide.h"
#include "tour/TourStopsBalance.h"
#include "tour/TourStopsCart.h"
#include "tour/TourStopsGraph.h"
#include "tour/TourStopsJornal.h"
#include "tour/TourStopsPlan.h"
#include "tour/TourStopsRecipes.h"

namespace kesto
{

namespace
{

std::function<void(TourGuide &)> row(int number)
{
    return [number](TourGuide &guide) { guide.openRow(number); };
}

void lockScreen(TourGuide &guide)
{
    guide.platform().userDefaults().setValue(QStringLiteral("0000"), Keys::kPasscodeKey);
    BKPasscodeLockScreenManager::sharedManager().showLockScreen(false);
}

void damagedStore(TourGuide &guide)
{
    const QString path = guide.platform().documentsFolder() + QStringLiteral("/Diet.sqlite");
    showStoreProblem({.kind = StoreProblem::Kind::Damaged, .path = path}, [](StoreAnswer) {});
}

} // namespace

QList<TourStop> tourStops()
{
    QList<TourStop> stops{
        {QStringLiteral("start"), [](TourGuide &) {}},
        {QStringLiteral("menu"), [](TourGuide &guide) { guide.openMenu(); }},
        {QStringLiteral("calendar-not-yet"), row(RootViewConrollerViewController::calendarRow)},
        {QStringLiteral("no-favourites"), row(RootViewConrollerViewController::favoritesRow)},
        {QStringLiteral("empty-shopping-list"), row(8)},
        {QStringLiteral("about-diet"), row(0)},
        {QStringLiteral("phases"), row(1)},
    };
    stops += calculatorTourStops();
    stops += graphTourStops();
    stops += calendarTourStops();
    stops += QList<TourStop>{
        {QStringLiteral("journal"), row(7)},
    };
    stops += balanceTourStops();
    stops += jornalTourStops(); // with what was drunk and eaten there
    stops += productTourStops();
    stops += catalogueTourStops();
    stops += dishTourStops();
    stops += cartTourStops();
    stops += favouriteTourStops();
    stops += QList<TourStop>{
        {QStringLiteral("send-recipe"), row(10)},
        {QStringLiteral("tips"), row(11)},
        {QStringLiteral("info"), [](TourGuide &guide) { guide.menu().showInfo(); }},
        {QStringLiteral("settings"), [](TourGuide &guide) { guide.menu().showSettings(); }},
        {QStringLiteral("damaged-store"), damagedStore},
        {QStringLiteral("lock"), lockScreen}, // last: nothing but the passcode closes it
    };
    return stops;
}

} // namespace kesto
