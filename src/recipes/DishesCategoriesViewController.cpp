#include "recipes/DishesCategoriesViewController.h"

#include "components/NavigationController.h"
#include "components/Shell.h"
#include "components/SplitViewController.h"
#include "platform/StringFormat.h"
#include "platform/StringTables.h"
#include "recipes/DishesViewController.h"

#include <array>
#include <utility>

namespace kesto
{

namespace
{

// By the categories' displayOrder, which is also a row's identity.
constexpr std::array titles{u"Салаты",  u"Закуски и бутерброды", u"Первые блюда", u"Вторые блюда", u"Несладкая выпечка",
                            u"Десерты", u"Блины, Оладьи",        u"Напитки",      u"Соусы"};

QString titleOf(int category) { return localized(QString::fromUtf16(titles.at(static_cast<size_t>(category)))); }

} // namespace

DishesCategoriesViewController::DishesCategoriesViewController() { setTitle(localized(QStringLiteral("Рецепты"))); }

DishesCategoriesViewController::DishesCategoriesViewController(DietDay *day, int dietPeriod)
    : day_(day)
    , period_(dietPeriod)
    , addDishMode_(true)
{
    setTitle(localized(QStringLiteral("Добавить блюдо")));
}

void DishesCategoriesViewController::viewDidLoad()
{
    if (addDishMode_)
        setLeftBarButtonItem(BarButtonItem::withImage(QStringLiteral("Plus.png"), [this] { close(); }));
}

int DishesCategoriesViewController::numberOfRowsInSection(int) const { return static_cast<int>(titles.size()); }

TableRow DishesCategoriesViewController::cellForRow(const IndexPath &path) const
{
    return {.id = path.row,
            .title = titleOf(path.row),
            .image = stringWithFormat("%ld_recipes_icon", path.row),
            .accessory = TableRow::Accessory::Disclosure,
            .selected = path.row == selectedRow_};
}

void DishesCategoriesViewController::didSelectRow(const IndexPath &, const RowId &id)
{
    const int category = id.number();
    if (!addDishMode_) {
        browse(category);
        return;
    }
    auto screen = std::make_unique<DishesViewController>(category, day_, period_);
    screen->setTitle(titleOf(category));
    screen->setDelegate(delegate_);
    if (NavigationController *stack = navigationController())
        stack->pushViewController(std::move(screen), true);
}

void DishesCategoriesViewController::browse(int category)
{
    if (enclosing<SplitViewController>() != nullptr) {
        const int before = std::exchange(selectedRow_, category);
        if (before >= 0)
            reloadRow({0, before});
        reloadRow({0, category});
    }
    auto screen = std::make_unique<DishesViewController>(category);
    screen->setTitle(titleOf(category));
    if (Shell *shell = Shell::current())
        shell->openDetailViewController(std::move(screen));
}

} // namespace kesto
