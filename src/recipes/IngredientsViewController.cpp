#include "recipes/IngredientsViewController.h"

#include "components/AlertCenter.h"
#include "components/PopoverController.h"
#include "platform/StringTables.h"
#include "platform/TextOrder.h"
#include "recipes/IngredientsInfoViewController.h"
#include "store/CoreDataManager.h"
#include "util/SKHelpManager.h"

#include <QVariantMap>

#include <algorithm>
#include <iterator>

namespace kesto
{

namespace
{

QString nameOf(const QVariant &product) { return product.toMap().value(QStringLiteral("name")).toString(); }
QString periodsOf(const QVariant &product) { return product.toMap().value(QStringLiteral("Периоды")).toString(); }
int kindOf(const QVariant &product) { return product.toMap().value(QStringLiteral("Дополнительное поле")).toInt(); }

template <class Condition>
QVariantList itemsWhere(const QVariantList &items, Condition condition)
{
    QVariantList found;
    std::copy_if(items.begin(), items.end(), std::back_inserter(found), condition);
    return found;
}

} // namespace

IngredientsViewController::IngredientsViewController()
{
    setTitle(localized(QStringLiteral("Допустимые продукты")));
    setPeriodsScopes(true);
    setRightBarButtonItem(BarButtonItem::withImage(QStringLiteral("question"), [this] { showInfo(); }));
}

void IngredientsViewController::viewDidLoad()
{
    SearchBarDietTableViewController::viewDidLoad();
    setContent(SKHelpManager::arrayFromPlist(localized(QStringLiteral("ingredients plist"))).value_or(QVariantList()));
}

int IngredientsViewController::numberOfRowsInSection(int) const { return static_cast<int>(items().size()); }

QString IngredientsViewController::abriviatureForPeriod(int period)
{
    switch (period) {
    case 0:
        return QStringLiteral("A");
    case 1:
        return QStringLiteral("k");
    case 2:
        return QStringLiteral("K");
    case 3:
        return localized(QStringLiteral("stabilisation abriviature"));
    default:
        return {};
    }
}

QString IngredientsViewController::nameOfKind(int kind)
{
    switch (kind) {
    case 0:
        return localized(QStringLiteral("Разрешенные продукты"));
    case 1:
        return localized(QStringLiteral("Запрещенные продукты"));
    case 2:
        return localized(QStringLiteral("Допустимые (2 продукта в день)"));
    case 3:
        return localized(QStringLiteral("Добавки"));
    default:
        return {};
    }
}

TableRow IngredientsViewController::cellForRow(const IndexPath &path) const
{
    const QVariant &product = items().at(path.row);
    QList<TableRow::Badge> badges;
    QStringList abbreviations;
    QStringList spoken{nameOf(product), nameOfKind(kindOf(product))};
    for (const QString &piece : periodsOf(product).split(u',')) {
        bool isNumber = false;
        const int period = piece.trimmed().toInt(&isNumber);
        const QString abbreviation = isNumber ? abriviatureForPeriod(period) : QString();
        if (abbreviation.isEmpty())
            continue;
        badges.append({abbreviation, *CoreDataManager::colorForPeriod(period)});
        abbreviations.append(abbreviation);
        spoken.append(CoreDataManager::periodNameForDietPeriod(period));
    }
    return {.kind = TableRow::Kind::Custom,
            .title = nameOf(product),
            .subtitle = abbreviations.join(u' '),
            .image = QStringLiteral("ing_cat_%1.png").arg(kindOf(product)),
            .badges = badges,
            .cell = QStringLiteral("IngredientCell"),
            .value = spoken.join(QStringLiteral(", "))};
}

QVariantList IngredientsViewController::filtedItemsForPeriod(int period) const
{
    if (period <= 0)
        return content();
    const QString digit = QString::number(period - 1);
    return itemsWhere(content(), [&](const QVariant &product) { return periodsOf(product).contains(digit); });
}

QVariantList IngredientsViewController::searchWithString(const QString &text, int) const
{
    return itemsWhere(currentPeriod() == 0 ? content() : currentItems(),
                      [&](const QVariant &product) { return matchesSearch(nameOf(product), text); });
}

void IngredientsViewController::didSelectRow(const IndexPath &path, const RowId &)
{
    // The list may have changed when the answer comes.
    const QString name = nameOf(items().at(path.row));
    AlertCenter::sharedCenter().show({.style = Alert::Style::ActionSheet,
                                      .title = localized(QStringLiteral("Добавить продукт в карзину?")),
                                      .buttons = {{localized(QStringLiteral("Отменить")), Alert::Role::Cancel},
                                                  {localized(QStringLiteral("Добавить"))}},
                                      .anchor = QStringLiteral("row/%1/%2").arg(path.section).arg(path.row),
                                      .context = this,
                                      .answered = [name](const AlertAnswer &answer) {
                                          if (!answer.isCancel && !name.isEmpty())
                                              CoreDataManager::sharedManager().addIngredientToCard(name);
                                      }});
}

void IngredientsViewController::showInfo()
{
    presentPopover(std::make_unique<IngredientsInfoViewController>(), QStringLiteral("bar/question"))
        ->setSizeHint(IngredientsInfoViewController::size);
}

} // namespace kesto
