#include "SampleScreens.h"

#include "platform/StringTables.h"

namespace kesto::test
{

namespace
{
QString weight(int kilograms, int tenths) { return QStringLiteral("%1.%2").arg(kilograms + 40).arg(tenths); }
} // namespace

SampleTable::SampleTable(bool longTexts)
    : long_(longTexts)
    , products_({localized(QStringLiteral("Атака")), localized(QStringLiteral("Круиз")),
                 localized(QStringLiteral("Консолидация")), localized(QStringLiteral("Пир"))})
{
    setTitle(localized(long_ ? QStringLiteral("Калькулятор веса по Кесто") : QStringLiteral("Список покупок")));
}

void SampleTable::viewDidLoad()
{
    setRightBarButtonItem(editButtonItem());
    BarButtonItems tools;
    tools.push_back(BarButtonItem::withTitle(localized(QStringLiteral("Отчистить корзину")),
                                             [this] { hear(QStringLiteral("cleared")); }));
    setToolbarItems(std::move(tools));
}

void SampleTable::hear(const QString &line)
{
    heard_.append(line);
    Q_EMIT heardChanged();
}

QString SampleTable::titleForHeaderInSection(int section) const
{
    switch (section) {
    case Fields:
        return localized(QStringLiteral("Система измерения"));
    case Products:
        return localized(QStringLiteral("Список покупок"));
    default:
        return {};
    }
}

QString SampleTable::titleForFooterInSection(int section) const
{
    return section == Choices ? localized(QStringLiteral("Все данные внесенные до начала новго старта диеты будут "
                                                         "удалены, начать диету?"))
                              : QString();
}

int SampleTable::numberOfRowsInSection(int section) const
{
    switch (section) {
    case Fields:
        return 4;
    case Choices:
        return 5;
    case Products:
        return int(products_.size());
    default:
        return 1;
    }
}

TableRow SampleTable::cellForRow(const IndexPath &path) const
{
    TableRow row;
    switch (path.section) {
    case Fields:
        if (path.row == 0) {
            row.kind = TableRow::Kind::Value;
            row.title = localized(long_ ? QStringLiteral("Ваш идеальный вес") : QStringLiteral("Вес"));
            row.image = QStringLiteral("weight.png");
            row.detail = weight(kilograms_, tenths_) + u' ' + localized(QStringLiteral("кг"));
        } else if (path.row == 1) {
            row.kind = TableRow::Kind::Editable;
            row.title = localized(long_ ? QStringLiteral("Вам нужно сбросить") : QStringLiteral("Атака"));
            row.text = days_;
            row.unit = localized(QStringLiteral("дней"));
            row.keyboard = Keyboard::Type::Decimal;
            row.id = 200;
        } else if (path.row == 2) {
            row.kind = TableRow::Kind::Editable;
            row.text = name_;
            row.placeholder = localized(QStringLiteral("Название блюда"));
            row.id = 201;
        } else {
            row.kind = TableRow::Kind::Editor;
            row.title = localized(QStringLiteral("Рецепт"));
            row.placeholder = localized(QStringLiteral("Введите данные"));
        }
        return row;
    case Choices:
        return choice(path.row);
    case Products:
        row.title = products_.at(path.row);
        row.struckThrough = bought_.contains(row.title);
        row.id = row.title;
        row.canDelete = true;
        row.canMove = true;
        return row;
    default:
        row.kind = TableRow::Kind::Button;
        row.title = localized(QStringLiteral("Начать Диету"));
        return row;
    }
}

TableRow SampleTable::choice(int index) const
{
    TableRow row;
    switch (index) {
    case 0:
        row.title = QStringLiteral("Use iCloud");
        row.title = localized(row.title);
        row.image = QStringLiteral("cloud");
        row.kind = TableRow::Kind::Switch;
        row.on = on_;
        break;
    case 1:
        row.title = localized(QStringLiteral("Русский"));
        row.image = QStringLiteral("language");
        row.accessory = TableRow::Accessory::Checkmark;
        break;
    case 2:
        row.title = localized(QStringLiteral("Change passcode"));
        row.image = QStringLiteral("password");
        row.accessory = TableRow::Accessory::Disclosure;
        row.enabled = false;
        break;
    case 3:
        row.title = localized(QStringLiteral("Добавить блюдо"));
        row.subtitle = localized(QStringLiteral("Автонаполнение Круиза"));
        row.image = QStringLiteral("add_dish.png");
        row.accessory = TableRow::Accessory::CheckButton;
        row.badges = {{localized(QStringLiteral("Атака")), QColor(0xc7, 0x4b, 0x50)},
                      {localized(QStringLiteral("Консолидация")), QColor(0x4b, 0x8e, 0xc7)}};
        break;
    default:
        row.title = localized(QStringLiteral("Удалить блюдо"));
        row.image = QStringLiteral("delete");
        row.destructive = true;
    }
    return row;
}

void SampleTable::didSelectRow(const IndexPath &path, const RowId &)
{
    hear(QStringLiteral("selected %1.%2").arg(path.section).arg(path.row));
    if (path == IndexPath{Fields, 0})
        displayPickerForIndexPath(path);
    if (path.section != Products)
        return;
    const QString &product = products_.at(path.row);
    if (!bought_.removeOne(product))
        bought_.append(product);
    reloadRow(path);
}

void SampleTable::textFieldDidEndEditing(const IndexPath &path, const RowId &id, const QString &text)
{
    hear(QStringLiteral("%1: %2").arg(id.text(), text));
    if (id == 200)
        days_ = text.toInt() < 1 ? QStringLiteral("1") : text;
    else if (id == 201)
        name_ = text;
    reloadRow(path);
}

void SampleTable::switchChanged(const IndexPath &, const RowId &, bool on)
{
    hear(on ? QStringLiteral("on") : QStringLiteral("off"));
    on_ = on;
}

void SampleTable::accessoryTouched(const IndexPath &path, const RowId &)
{
    hear(QStringLiteral("accessory %1.%2").arg(path.section).arg(path.row));
}

void SampleTable::commitDelete(const IndexPath &path, const RowId &)
{
    hear(QStringLiteral("deleted ") + products_.takeAt(path.row));
    deleteRow(path);
}

void SampleTable::moveRow(const IndexPath &from, const IndexPath &to)
{
    hear(QStringLiteral("moved %1 to %2").arg(from.row).arg(to.row));
    products_.move(from.row, to.row);
}

QString SampleTable::titleForRow(int row, int component) const
{
    return QString::number(component == 0 ? row + 40 : row);
}

int SampleTable::selectedRowInComponent(int component) const { return component == 0 ? kilograms_ : tenths_; }

void SampleTable::pickerDidSelectRow(int row, int component)
{
    (component == 0 ? kilograms_ : tenths_) = row;
    hear(weight(kilograms_, tenths_));
    reloadRow({Fields, 0});
}

SampleList::SampleList()
{
    setTitle(localized(QStringLiteral("Допустимые продукты")));
    setPeriodsScopes(true);
}

void SampleList::viewDidLoad()
{
    QVariantList names;
    for (const char *key : {"Атака", "Круиз", "Консолидация", "Cтабилизация", "Чистый Белок", "Белок и овощи", "Пир",
                            "Вес", "Рост", "Возраст", "Пол", "Мужской", "Женский", "Язык", "Русский", "Английский"})
        names.append(localized(QString::fromUtf8(key)));
    setContent(names);
    setShowsMenuIcon(true);
    setRightBarButtonItem(BarButtonItem::withImage(QStringLiteral("question")));
}

TableRow SampleList::cellForRow(const IndexPath &path) const
{
    TableRow row;
    row.title = items().at(path.row).toString();
    row.image = QStringLiteral("ing_cat_%1.png").arg(path.row % 4);
    row.accessory = TableRow::Accessory::Disclosure;
    return row;
}

QVariantList SampleList::searchWithString(const QString &text, int) const
{
    QVariantList found;
    for (const QVariant &each : content()) {
        if (each.toString().contains(text, Qt::CaseInsensitive))
            found.append(each);
    }
    return found;
}

} // namespace kesto::test
