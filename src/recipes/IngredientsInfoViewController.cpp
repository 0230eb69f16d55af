#include "recipes/IngredientsInfoViewController.h"

#include "recipes/IngredientsViewController.h"
#include "store/CoreDataManager.h"

namespace kesto
{

namespace
{

constexpr int kinds = 4;
constexpr int periods = 4;

} // namespace

int IngredientsInfoViewController::numberOfRowsInSection(int) const { return kinds + periods; }

TableRow IngredientsInfoViewController::cellForRow(const IndexPath &path) const
{
    TableRow row{.kind = TableRow::Kind::Custom, .selectable = false, .cell = QStringLiteral("IngredientInfoCell")};
    if (path.row < kinds) {
        row.title = IngredientsViewController::nameOfKind(path.row);
        row.image = QStringLiteral("ing_cat_%1.png").arg(path.row);
        return row;
    }
    const int period = path.row - kinds;
    row.title = CoreDataManager::periodNameForDietPeriod(period);
    row.badges = {{IngredientsViewController::abriviatureForPeriod(period), *CoreDataManager::colorForPeriod(period)}};
    return row;
}

} // namespace kesto
