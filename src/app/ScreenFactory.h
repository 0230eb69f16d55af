#pragma once

#include <memory>

namespace kesto
{

class RootViewConrollerViewController;
class ViewController;

/// The screens that the menu leads to.
enum class ScreenName {
    AboutDiet,
    DietPhases,
    AllowedProducts,
    DishesCategories,
    Calculator,
    Graph,
    Calendar,
    JornalForToday,
    Cart,
    Favorites,
    SendDish,
    UsefulTips,
    Info,
    Settings
};

/// Makes the main screens. Which class a screen is, is said in one table; features join there.
class ScreenFactory
{
public:
    /// menu is the one that opens it; a screen may report back to it.
    [[nodiscard]] static std::unique_ptr<ViewController> make(ScreenName name, RootViewConrollerViewController &menu);

    /// The screen as a tablet shows it beside the menu: in a container of its own where it has one.
    [[nodiscard]] static std::unique_ptr<ViewController> inTabletContainer(ScreenName name,
                                                                           std::unique_ptr<ViewController> screen);
};

} // namespace kesto
