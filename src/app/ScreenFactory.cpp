#include "app/ScreenFactory.h"

#include "app/PlainViewController.h"
#include "app/RootViewConrollerViewController.h"
#include "journal/JornalTabBarController.h"
#include "plan/CalculatorViewController.h"
#include "plan/CalendarContainerViewController.h"
#include "plan/DietDayDetailViewController.h"
#include "plan/GraphViewController.h"
#include "platform/StringTables.h"
#include "recipes/CartViewController.h"
#include "recipes/DishesCategoriesViewController.h"
#include "recipes/FavoritesViewController.h"
#include "recipes/IngredientsViewController.h"

#include <array>
#include <utility>

namespace kesto
{

namespace
{

using Screen = std::unique_ptr<ViewController>;

struct Entry
{
    ScreenName name;
    /// What a plain screen in this place shows; the screen's own class, where there is one, knows better.
    const char16_t *title;
    const char16_t *image;
    Screen (*make)(RootViewConrollerViewController &menu) = nullptr;
    Screen (*tabletContainer)(Screen screen) = nullptr;
};

Screen makeAllowedProducts(RootViewConrollerViewController &) { return std::make_unique<IngredientsViewController>(); }

Screen makeCalculator(RootViewConrollerViewController &) { return std::make_unique<CalculatorViewController>(); }

Screen makeDay(const QDateTime &date, int period, DietDayDetailViewControllerDelegate *delegate)
{
    return std::make_unique<DietDayDetailViewController>(date, period, delegate);
}

Screen makeJornal(const QDateTime &date) { return JornalHelper::jornalTabBarVCForDate(date); }

Screen makeJornalForToday(RootViewConrollerViewController &) { return JornalHelper::jornalTabBarVCForToday(); }

Screen makeCalendar(RootViewConrollerViewController &)
{
    return std::make_unique<CalendarViewController>(CalendarScreens{.jornal = makeJornal, .day = makeDay});
}

Screen makeGraph(RootViewConrollerViewController &) { return std::make_unique<GraphViewController>(); }

Screen makeCart(RootViewConrollerViewController &) { return std::make_unique<CartViewController>(); }

Screen makeDishesCategories(RootViewConrollerViewController &)
{
    return std::make_unique<DishesCategoriesViewController>();
}

Screen makeFavorites(RootViewConrollerViewController &) { return std::make_unique<FavoritesViewController>(); }

Screen calendarContainer(Screen screen)
{
    auto *calendar = static_cast<CalendarViewController *>(screen.release()); // as makeCalendar() made it
    return std::make_unique<CalendarContainerViewController>(std::unique_ptr<CalendarViewController>(calendar),
                                                             std::make_unique<DietDayDetailViewController>(calendar));
}

constexpr std::array screens{
    Entry{ScreenName::AboutDiet, u"О Диета Кесто", u"0.png"},
    Entry{ScreenName::DietPhases, u"Этапы диеты", u"1.png"},
    Entry{ScreenName::AllowedProducts, u"Допустимые продукты", u"2.png", makeAllowedProducts},
    Entry{ScreenName::DishesCategories, u"Рецепты", u"3.png", makeDishesCategories},
    Entry{ScreenName::Calculator, u"Калькулятор веса по Кесто", u"4.png", makeCalculator},
    Entry{ScreenName::Graph, u"График контроля веса", u"5.png", makeGraph},
    Entry{ScreenName::Calendar, u"Календарь диеты", u"6.png", makeCalendar, calendarContainer},
    Entry{ScreenName::JornalForToday, u"Дневник Диеты", u"7.png", makeJornalForToday},
    Entry{ScreenName::Cart, u"Список покупок", u"8.png", makeCart},
    Entry{ScreenName::Favorites, u"Избранные рецепты", u"9.png", makeFavorites},
    Entry{ScreenName::SendDish, u"Отправить рецепт", u"10.png"},
    Entry{ScreenName::UsefulTips, u"Полезные советы", u"11.png"},
    Entry{ScreenName::Info, u"About", u"info_icon.png"},
    Entry{ScreenName::Settings, u"Настройки", u"seting.png"},
};

const Entry &entry(ScreenName name)
{
    for (const Entry &each : screens) {
        if (each.name == name)
            return each;
    }
    Q_UNREACHABLE();
}

} // namespace

std::unique_ptr<ViewController> ScreenFactory::make(ScreenName name, RootViewConrollerViewController &menu)
{
    const Entry &found = entry(name);
    if (found.make != nullptr)
        return found.make(menu);
    return std::make_unique<PlainViewController>(localized(QString::fromUtf16(found.title)),
                                                 QString::fromUtf16(found.image));
}

std::unique_ptr<ViewController> ScreenFactory::inTabletContainer(ScreenName name,
                                                                 std::unique_ptr<ViewController> screen)
{
    const Entry &found = entry(name);
    return found.tabletContainer != nullptr ? found.tabletContainer(std::move(screen)) : std::move(screen);
}

} // namespace kesto
