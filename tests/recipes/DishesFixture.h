#pragma once

#include "RecipesFixture.h"

#include "components/BarButtonItem.h"
#include "recipes/DishDetailViewController.h"
#include "recipes/DishesViewController.h"

namespace kesto::test
{

/// Seven salads, one soup.
class DishesFixture : public RecipesWindow
{
protected:
    DishesFixture()
    {
        for (const auto &[nameRU, phases] :
             {std::pair("ж", "0, 1"), {"б", "0"}, {"в", "1"}, {"а", "2"}, {"д", "3"}, {"е", "12"}, {"г", ""}})
            program.addDish(QString::fromUtf8(nameRU), QString::fromUtf8(phases));
        program.addDish(QStringLiteral("суп"), QStringLiteral("0"), 2);
        program.save();
    }
    static QString titles(DishesViewController &screen)
    {
        QStringList list;
        for (const DishTile &tile : screen.tiles()->tiles())
            list.append(tile.title + (tile.checked ? QStringLiteral("!") : QString()));
        return list.join(u' ');
    }
    static int rowOf(DishesViewController &screen, const char *title)
    {
        const QList<DishTile> &tiles = screen.tiles()->tiles();
        return static_cast<int>(
            std::find_if(tiles.begin(), tiles.end(),
                         [&](const DishTile &tile) { return tile.title == QString::fromUtf8(title); }) -
            tiles.begin());
    }
    [[nodiscard]] DishDetailViewController &opened() const
    {
        return dynamic_cast<DishDetailViewController &>(*stack->topViewController());
    }
    [[nodiscard]] bool isSelected() const
    {
        return opened().rightBarButtonItems().value(0)->image() == QStringLiteral("checkmarkButton_selected.png");
    }
    void touchCheckMark() const { opened().rightBarButtonItems().value(0)->trigger(); }
};

} // namespace kesto::test
