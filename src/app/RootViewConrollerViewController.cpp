#include "app/RootViewConrollerViewController.h"

#include "components/AlertCenter.h"
#include "components/NavigationController.h"
#include "components/SideMenuContainer.h"
#include "components/SplitViewController.h"
#include "platform/StringFormat.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "recipes/FavoritesManager.h"
#include "store/Keys.h"

#include <array>
#include <utility>

namespace kesto
{

namespace
{

enum class Opens { AsDetail, OnMenuStack };

struct MenuRow
{
    const char16_t *title;
    ScreenName screen;
    Opens opens = Opens::AsDetail;
    bool titled = true; ///< the screen gets the row's title
};

constexpr std::array rows{
    MenuRow{u"О Диета Кесто", ScreenName::AboutDiet},
    MenuRow{u"Этапы диеты", ScreenName::DietPhases},
    MenuRow{u"Допустимые продукты", ScreenName::AllowedProducts},
    MenuRow{u"Рецепты Блюд", ScreenName::DishesCategories, Opens::OnMenuStack, false},
    MenuRow{u"Калькулятор веса по Кесто", ScreenName::Calculator},
    MenuRow{u"График контроля веса", ScreenName::Graph},
    MenuRow{u"Календарь диеты", ScreenName::Calendar},
    MenuRow{u"Дневник Диеты", ScreenName::JornalForToday},
    MenuRow{u"Список покупок", ScreenName::Cart},
    MenuRow{u"Избранные рецепты", ScreenName::Favorites},
    MenuRow{u"Пришлите свой рецепт", ScreenName::SendDish},
    MenuRow{u"Полезные советы", ScreenName::UsefulTips, Opens::OnMenuStack},
};

QString titleOf(const MenuRow &row) { return localized(QString::fromUtf16(row.title)); }

UserDefaults &defaults() { return Platform::current().userDefaults(); }

/// Why a row has nothing to show; null when it has.
QString refusal(int row)
{
    if (row == RootViewConrollerViewController::calendarRow &&
        !defaults().valueForKey(Keys::kStartDietDateKey).isValid())
        return localized(QStringLiteral("ошибка календарь"));
    if (row == RootViewConrollerViewController::favoritesRow && FavoritesManager::sharedManager().count() == 0)
        return localized(QStringLiteral("У вас нет избранных рецептов"));
    return {};
}

} // namespace

RootViewConrollerViewController::RootViewConrollerViewController(QObject *parent)
    : TableViewController(parent)
{
    setTitle(localized(QStringLiteral("Диета Кесто")));
}

void RootViewConrollerViewController::viewDidLoad()
{
    setLeftBarButtonItem(BarButtonItem::withImage(QStringLiteral("info_icon.png"), [this] { showInfo(); }));
    setRightBarButtonItem(BarButtonItem::withImage(QStringLiteral("seting.png"), [this] { showSettings(); }));
}

void RootViewConrollerViewController::viewWillAppear()
{
    if (!std::exchange(loaded_, true))
        openFirstSection();
}

// The detail side of a tablet is never empty; a phone has a screen in the centre already.
void RootViewConrollerViewController::openFirstSection()
{
    if (enclosing<SplitViewController>() != nullptr)
        openHome();
}

void RootViewConrollerViewController::openHome()
{
    openRow(defaults().valueForKey(Keys::kStartDietDateKey).isValid() ? calendarRow : calculatorRow);
}

int RootViewConrollerViewController::numberOfRowsInSection(int) const { return static_cast<int>(rows.size()); }

TableRow RootViewConrollerViewController::cellForRow(const IndexPath &path) const
{
    TableRow row;
    row.title = titleOf(rows.at(static_cast<size_t>(path.row)));
    row.image = stringWithFormat("%ld.png", path.row);
    row.accessory = TableRow::Accessory::Disclosure;
    row.selected = path.row == selectedRow_;
    return row;
}

void RootViewConrollerViewController::didSelectRow(const IndexPath &path, const RowId &) { openRow(path.row); }

void RootViewConrollerViewController::openRow(int row)
{
    const MenuRow &chosen = rows.at(static_cast<size_t>(row));
    if (const QString reason = refusal(row); !reason.isNull()) {
        showAlert({}, reason);
        return;
    }
    std::unique_ptr<ViewController> screen = ScreenFactory::make(chosen.screen, *this);
    if (screen == nullptr)
        return; // a journal that cannot be read
    if (chosen.opens == Opens::OnMenuStack) {
        if (chosen.titled)
            screen->setTitle(titleOf(chosen));
        rowOnStack_ = row;
        navigationController()->pushViewController(std::move(screen), true);
        return;
    }
    if (enclosing<SplitViewController>() != nullptr)
        screen = ScreenFactory::inTabletContainer(chosen.screen, std::move(screen));
    screen->setTitle(titleOf(chosen));
    openInDetail(std::move(screen), row);
}

// On a tablet the menu stays in sight beside what was chosen in it.
void RootViewConrollerViewController::selectRowOfTablet(int row)
{
    if (enclosing<SplitViewController>() == nullptr)
        return;
    const int before = std::exchange(selectedRow_, row);
    for (const int each : {before, row}) {
        if (each >= 0 && isViewLoaded())
            reloadRow({0, each});
    }
}

// It comes from a screen that a row opened on the menu's stack, which may be gone again.
void RootViewConrollerViewController::openDetailViewController(std::unique_ptr<ViewController> controller)
{
    openInDetail(std::move(controller), rowOnStack_);
}

void RootViewConrollerViewController::openInDetail(std::unique_ptr<ViewController> controller, int row)
{
    selectRowOfTablet(row);
    ViewController &screen = *controller;
    if (auto *split = enclosing<SplitViewController>(); split != nullptr) {
        if (split->isMasterHidden())
            screen.setMenuBarButtonItem(split->displayModeButtonItem());
        split->setDetail(std::make_unique<NavigationController>(std::move(controller)));
        split->setMenuPopoverOpen(false);
    } else if (auto *container = enclosing<SideMenuContainer>(); container != nullptr) {
        screen.setShowsMenuIcon(true);
        container->setCenterViewController(std::make_unique<NavigationController>(std::move(controller)));
    }
}

void RootViewConrollerViewController::showInfo() { presentScreen(ScreenName::Info); }

void RootViewConrollerViewController::showSettings() { presentScreen(ScreenName::Settings); }

void RootViewConrollerViewController::presentScreen(ScreenName name)
{
    std::unique_ptr<ViewController> made = ScreenFactory::make(name, *this);
    ViewController *screen = made.get();
    screen->loadViewIfNeeded();
    if (screen->leftBarButtonItems().isEmpty())
        screen->setLeftBarButtonItem(
            BarButtonItem::withImage(QStringLiteral("Plus.png"), [screen] { screen->close(); }));
    presentViewController(std::make_unique<NavigationController>(std::move(made)), true);
}

void RootViewConrollerViewController::dishSucsesfullySended()
{
    if (defaults().valueForKey(Keys::kDishSendedKey).isValid())
        return;
    showAlert(localized(QStringLiteral("Спасибо")),
              localized(QStringLiteral("Большое спасибо за ваше сотрудничество")));
    defaults().setBool(true, Keys::kDishSendedKey);
}

} // namespace kesto
