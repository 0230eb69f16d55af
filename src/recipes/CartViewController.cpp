#include "recipes/CartViewController.h"

#include "components/AlertCenter.h"
#include "model/Ingredient.h"
#include "model/PurhaseIngredient.h"
#include "platform/StringTables.h"
#include "store/CoreDataManager.h"

#include <algorithm>

namespace kesto
{

namespace
{

constexpr qreal emptyHeaderHeight = 20;

CoreDataManager &manager() { return CoreDataManager::sharedManager(); }

void save(const PurhaseIngredient &line) { line.managedObjectContext().saveOrKeepChanges(); }

QString clearTitle() { return localized(QStringLiteral("Отчистить корзину")); }

} // namespace

CartViewController::CartViewController()
{
    setTitle(localized(QStringLiteral("Список покупок")));
    BarButtonItems items;
    items.push_back(BarButtonItem::withTitle(clearTitle(), [this] { clearCartIntro(); }));
    setToolbarItems(std::move(items)); // a toolbar centres its buttons
}

void CartViewController::viewWillAppear()
{
    TableViewController::viewWillAppear();
    reloadData();
}

void CartViewController::reloadData()
{
    content_ = manager().purhaseIngredients();
    TableViewController::reloadData();
    if (content_.empty())
        setEditing(false);
    updateRightBBI();
    Q_EMIT contentChanged();
}

void CartViewController::updateRightBBI()
{
    if (content_.empty())
        setRightBarButtonItem(nullptr);
    else if (rightBarButtonItems().isEmpty())
        setRightBarButtonItem(editButtonItem());
}

int CartViewController::numberOfRowsInSection(int section) const
{
    return section == LinesSection ? static_cast<int>(content_.size()) : 1;
}

PurhaseIngredient *CartViewController::pIngAtIndexPath(const IndexPath &path) const
{
    if (path.section != LinesSection || path.row < 0 || path.row >= static_cast<int>(content_.size()))
        return nullptr;
    PurhaseIngredient *line = content_[static_cast<size_t>(path.row)];
    return line->isDeleted() ? nullptr : line;
}

TableRow CartViewController::cellForRow(const IndexPath &path) const
{
    if (path.section == AddSection)
        return {.kind = TableRow::Kind::Button,
                .title = localized(QStringLiteral("Добавить свой продукт")),
                .image = QStringLiteral("plus_circle")};
    const PurhaseIngredient *line = pIngAtIndexPath(path);
    if (line == nullptr)
        return {.enabled = false, .selectable = false};
    const Ingredient *product = line->ingredient();
    const bool purchased = line->purchased().value_or(false);
    return {.id = QString::number(line->objectID()),
            .kind = TableRow::Kind::Custom,
            .title = product != nullptr ? product->name() : QString(),
            .checked = purchased,
            .struckThrough = purchased,
            .canDelete = true,
            .text = line->count(),
            .placeholder = QStringLiteral("#"),
            .cell = QStringLiteral("PurhaseIngredientCell")};
}

qreal CartViewController::heightForHeaderInSection(int section) const
{
    return section == LinesSection && content_.empty() ? emptyHeaderHeight : standard;
}

QString CartViewController::emptyTitle() const
{
    return content_.empty() ? localized(QStringLiteral("Nothing to buy")) : QString();
}

QString CartViewController::emptyMessage() const
{
    return content_.empty() ? localized(QStringLiteral("How the list fills")) : QString();
}

void CartViewController::setEditing(bool editing)
{
    if (isEditing() == editing || (editing && content_.empty()))
        return;
    TableViewController::setEditing(editing);
    if (editing)
        deleteSection(AddSection);
    else
        insertSection(AddSection);
}

void CartViewController::didSelectRow(const IndexPath &path, const RowId &)
{
    if (path.section == AddSection) {
        addProduct();
        return;
    }
    PurhaseIngredient *line = pIngAtIndexPath(path);
    if (line == nullptr)
        return;
    line->setPurchased(!line->purchased().value_or(false));
    save(*line);
    reloadRow(path);
}

void CartViewController::addProduct()
{
    const QString title = localized(QStringLiteral("Добавить свой продукт"));
    AlertCenter::sharedCenter().show({.title = title,
                                      .buttons = {{localized(QStringLiteral("Отменить")), Alert::Role::Cancel},
                                                  {localized(QStringLiteral("Добавить"))}},
                                      .textField = Alert::TextField{},
                                      .context = this,
                                      .answered = [this](const AlertAnswer &answer) {
                                          if (answer.isCancel || answer.text.isEmpty())
                                              return;
                                          manager().addIngredientToCard(answer.text);
                                          reloadData();
                                      }});
}

void CartViewController::textFieldDidEndEditing(const IndexPath &path, const RowId &, const QString &text)
{
    PurhaseIngredient *line = pIngAtIndexPath(path);
    if (line == nullptr)
        return;
    // An empty text is stored, too.
    line->setCount(text.isNull() ? QStringLiteral("") : text);
    save(*line);
    reloadRow(path);
}

void CartViewController::commitDelete(const IndexPath &path, const RowId &)
{
    if (path.section != LinesSection || path.row >= static_cast<int>(content_.size()))
        return;
    PurhaseIngredient &line = *content_[static_cast<size_t>(path.row)];
    content_.erase(content_.begin() + path.row);
    manager().removePurchaseIngredientFromCard(line);
    deleteRow(path);
    if (content_.empty())
        becomeEmpty();
}

void CartViewController::becomeEmpty()
{
    setEditing(false);
    updateRightBBI();
    Q_EMIT contentChanged();
}

void CartViewController::clearCartIntro()
{
    AlertCenter::sharedCenter().show({.style = Alert::Style::ActionSheet,
                                      .title = localized(QStringLiteral("Вы действительно хотите отчистить корзину?")),
                                      .buttons = {{localized(QStringLiteral("Отменить")), Alert::Role::Cancel},
                                                  {localized(QStringLiteral("Отчистить")), Alert::Role::Destructive}},
                                      .anchor = QStringLiteral("bar/") + clearTitle(),
                                      .context = this,
                                      .answered = [this](const AlertAnswer &answer) {
                                          if (!answer.isCancel)
                                              clearCart();
                                      }});
}

void CartViewController::clearCart()
{
    manager().removeAllPurchaseIngredientsFromCard();
    content_.clear();
    reloadSection(LinesSection);
    becomeEmpty();
}

} // namespace kesto
