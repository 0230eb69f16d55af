#include "components/TableViewController.h"

#include "platform/StringTables.h"

namespace kesto
{

TableViewController::TableViewController(QObject *parent)
    : ViewController(parent)
{
}

QString TableViewController::titleForHeaderInSection(int) const { return {}; }
QString TableViewController::titleForFooterInSection(int) const { return {}; }

void TableViewController::contentDidLoad()
{
    filled_ = true;
    reloadData();
}

TableSection TableViewController::makeSection(int section) const
{
    TableSection made{.header = titleForHeaderInSection(section), .footer = titleForFooterInSection(section)};
    const int count = numberOfRowsInSection(section);
    made.rows.reserve(count);
    for (int row = 0; row < count; ++row)
        made.rows.append(cellForRow({section, row}));
    return made;
}

void TableViewController::reloadData()
{
    if (!filled_)
        return;
    QList<TableSection> sections;
    const int count = numberOfSections();
    sections.reserve(count);
    for (int section = 0; section < count; ++section)
        sections.append(makeSection(section));
    table_.setSections(sections);
}

void TableViewController::reloadRow(const IndexPath &path)
{
    const IndexPath shown = shownPath(path);
    if (table_.contains(shown))
        table_.setRow(shown, cellForRow(path));
}

void TableViewController::reloadSection(int section)
{
    if (section >= 0 && section < table_.numberOfSections())
        table_.replaceSection(section, makeSection(section));
}

void TableViewController::insertRow(const IndexPath &path)
{
    const IndexPath shown = shownPath(path);
    if (shown.section < table_.numberOfSections() && shown.row <= table_.numberOfRowsInSection(shown.section))
        table_.insertRow(shown, cellForRow(path));
}

void TableViewController::deleteRow(const IndexPath &path)
{
    const IndexPath shown = shownPath(path);
    if (table_.contains(shown))
        table_.removeRow(shown);
}

void TableViewController::insertSection(int section)
{
    if (filled_ && section <= table_.numberOfSections())
        table_.insertSection(section, makeSection(section));
}

void TableViewController::deleteSection(int section)
{
    if (section < table_.numberOfSections())
        table_.removeSection(section);
}

void TableViewController::setEditing(bool editing)
{
    if (editing_ == editing)
        return;
    editing_ = editing;
    Q_EMIT editingChanged();
}

std::unique_ptr<BarButtonItem> TableViewController::editButtonItem()
{
    auto item = BarButtonItem::withTitle({}, [this] { setEditing(!editing_); });
    const auto name = [this, button = item.get()] {
        button->setTitle(localized(editing_ ? QStringLiteral("Done") : QStringLiteral("Edit")));
    };
    name();
    connect(this, &TableViewController::editingChanged, item.get(), name);
    return item;
}

const TableRow *TableViewController::touchedRow(int section, int row) const
{
    const IndexPath shown{section, row};
    if (!table_.contains(shown) || !table_.rowAt(shown).enabled || !contentPath(shown))
        return nullptr;
    return &table_.rowAt(shown);
}

void TableViewController::selectRow(int section, int row)
{
    const TableRow *touched = touchedRow(section, row);
    if (touched && touched->selectable && !editing_)
        didSelectRow(*contentPath({section, row}));
}

void TableViewController::editingTextChanged(int section, int row, const QString &text)
{
    if (const TableRow *touched = touchedRow(section, row); touched && touched->kind == TableRow::Kind::Editable)
        textFieldTextDidChange(*contentPath({section, row}), touched->tag, text);
}

void TableViewController::endEditingText(int section, int row, const QString &text)
{
    const TableRow *touched = touchedRow(section, row);
    if (!touched || (touched->kind != TableRow::Kind::Editable && touched->kind != TableRow::Kind::Editor &&
                     touched->kind != TableRow::Kind::Custom))
        return;
    TableRow edited = *touched;
    edited.text = text;
    table_.setRow({section, row}, edited);
    textFieldDidEndEditing(*contentPath({section, row}), edited.tag, text);
}

void TableViewController::turnSwitch(int section, int row, bool on)
{
    const TableRow *touched = touchedRow(section, row);
    if (!touched || touched->kind != TableRow::Kind::Switch || touched->on == on)
        return;
    TableRow turned = *touched;
    turned.on = on;
    table_.setRow({section, row}, turned);
    switchChanged(*contentPath({section, row}), on);
}

void TableViewController::touchAccessory(int section, int row)
{
    const TableRow *touched = touchedRow(section, row);
    if (touched && (touched->accessory == TableRow::Accessory::CheckButton ||
                    touched->accessory == TableRow::Accessory::InfoButton))
        accessoryTouched(*contentPath({section, row}));
}

void TableViewController::deleteRowByUser(int section, int row)
{
    const TableRow *touched = touchedRow(section, row);
    if (touched && touched->canDelete)
        commitDelete(*contentPath({section, row}));
}

bool TableViewController::canMoveRowByUser(int fromSection, int fromRow, int toSection, int toRow) const
{
    const IndexPath from{fromSection, fromRow};
    const IndexPath to{toSection, toRow};
    const TableRow *touched = touchedRow(fromSection, fromRow);
    if (!touched || !touched->canMove || !editing_ || from == to || toSection < 0 ||
        toSection >= table_.numberOfSections() || toRow < 0)
        return false;
    const int places = table_.numberOfRowsInSection(toSection) + (fromSection == toSection ? 0 : 1);
    return toRow < places && canMoveRow(from, to);
}

void TableViewController::moveRowByUser(int fromSection, int fromRow, int toSection, int toRow)
{
    if (!canMoveRowByUser(fromSection, fromRow, toSection, toRow))
        return;
    const IndexPath from{fromSection, fromRow};
    const IndexPath to{toSection, toRow};
    table_.moveRow(from, to);
    moveRow(from, to);
}

bool TableViewController::canMoveRow(const IndexPath &from, const IndexPath &to) const
{
    return from.section == to.section;
}

void TableViewController::didSelectRow(const IndexPath &) {}
void TableViewController::textFieldTextDidChange(const IndexPath &, int, const QString &) {}
void TableViewController::textFieldDidEndEditing(const IndexPath &, int, const QString &) {}
void TableViewController::switchChanged(const IndexPath &, bool) {}
void TableViewController::accessoryTouched(const IndexPath &) {}
void TableViewController::commitDelete(const IndexPath &) {}
void TableViewController::moveRow(const IndexPath &, const IndexPath &) {}

} // namespace kesto
