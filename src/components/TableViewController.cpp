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
    const ShownPath shown = shownPath(path);
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
    const ShownPath shown = shownPath(path);
    if (shown.section < table_.numberOfSections() && shown.row <= table_.numberOfRowsInSection(shown.section))
        table_.insertRow(shown, cellForRow(path));
}

void TableViewController::deleteRow(const IndexPath &path)
{
    const ShownPath shown = shownPath(path);
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

ShownPath TableViewController::shownPath(const IndexPath &content) const { return {content.section, content.row}; }

std::optional<IndexPath> TableViewController::contentPath(const ShownPath &shown) const
{
    return IndexPath{shown.section, shown.row};
}

std::optional<TableViewController::Touched> TableViewController::touched(const ShownPath &path) const
{
    if (!table_.contains(path) || !table_.rowAt(path).enabled)
        return std::nullopt;
    const std::optional<IndexPath> content = contentPath(path);
    if (!content)
        return std::nullopt;
    const TableRow &row = table_.rowAt(path);
    return Touched{.row = &row, .path = *content, .id = row.id.isSet() ? row.id : RowId(content->row)};
}

std::optional<TableViewController::Touched>
TableViewController::touchedField(const std::optional<ShownPath> &path) const
{
    const std::optional<Touched> found = path ? touched(*path) : std::nullopt;
    return found && (found->row->hasField() || found->row->kind == TableRow::Kind::Custom) ? found : std::nullopt;
}

bool TableViewController::activateRow(int section, int row)
{
    const ShownPath path{section, row};
    if (!table_.contains(path) || !table_.rowAt(path).enabled)
        return true;
    const TableRow &activated = table_.rowAt(path);
    if (activated.hasField() || activated.kind == TableRow::Kind::Picker)
        return false;
    if (activated.kind == TableRow::Kind::Switch)
        turnSwitch(section, row, !activated.on);
    else if (activated.selectable)
        selectRow(section, row);
    else
        touchAccessory(section, row);
    return true;
}

void TableViewController::selectRow(int section, int row)
{
    const std::optional<Touched> found = touched({section, row});
    if (found && found->row->selectable && !editing_)
        didSelectRow(found->path, found->id);
}

void TableViewController::editingTextChanged(int section, const QString &id, const QString &text)
{
    if (const std::optional<Touched> found = touchedField(table_.pathOf(section, id)))
        textFieldTextDidChange(found->path, found->id, text);
}

void TableViewController::endEditingText(int section, const QString &id, const QString &text)
{
    const std::optional<ShownPath> path = table_.pathOf(section, id);
    const std::optional<Touched> found = touchedField(path);
    if (!found)
        return;
    TableRow edited = *found->row;
    edited.text = text;
    table_.setRow(*path, edited);
    textFieldDidEndEditing(found->path, found->id, text);
}

void TableViewController::turnSwitch(int section, int row, bool on)
{
    const std::optional<Touched> found = touched({section, row});
    if (!found || found->row->kind != TableRow::Kind::Switch || found->row->on == on)
        return;
    TableRow turned = *found->row;
    turned.on = on;
    table_.setRow({section, row}, turned);
    switchChanged(found->path, found->id, on);
}

void TableViewController::touchAccessory(int section, int row)
{
    if (const std::optional<Touched> found = touched({section, row}); found && found->row->hasButton())
        accessoryTouched(found->path, found->id);
}

void TableViewController::deleteRowByUser(int section, int row)
{
    if (const std::optional<Touched> found = touched({section, row}); found && found->row->canDelete)
        commitDelete(found->path, found->id);
}

bool TableViewController::canMoveRowByUser(int fromSection, int fromRow, int toSection, int toRow) const
{
    const std::optional<Touched> moved = touched({fromSection, fromRow});
    if (!moved || !moved->row->canMove || !editing_ || ShownPath{fromSection, fromRow} == ShownPath{toSection, toRow} ||
        toSection < 0 || toSection >= table_.numberOfSections() || toRow < 0)
        return false;
    const int places = table_.numberOfRowsInSection(toSection) + (fromSection == toSection ? 0 : 1);
    const std::optional<IndexPath> to = contentPath({toSection, toRow});
    return toRow < places && to && canMoveRow(moved->path, *to);
}

void TableViewController::moveRowByUser(int fromSection, int fromRow, int toSection, int toRow)
{
    if (!canMoveRowByUser(fromSection, fromRow, toSection, toRow))
        return;
    const IndexPath from = *contentPath({fromSection, fromRow});
    const IndexPath to = *contentPath({toSection, toRow});
    table_.moveRow({fromSection, fromRow}, {toSection, toRow});
    moveRow(from, to);
}

bool TableViewController::canMoveRow(const IndexPath &from, const IndexPath &to) const
{
    return from.section == to.section;
}

void TableViewController::didSelectRow(const IndexPath &, const RowId &) {}
void TableViewController::textFieldTextDidChange(const IndexPath &, const RowId &, const QString &) {}
void TableViewController::textFieldDidEndEditing(const IndexPath &, const RowId &, const QString &) {}
void TableViewController::switchChanged(const IndexPath &, const RowId &, bool) {}
void TableViewController::accessoryTouched(const IndexPath &, const RowId &) {}
void TableViewController::commitDelete(const IndexPath &, const RowId &) {}
void TableViewController::moveRow(const IndexPath &, const IndexPath &) {}

} // namespace kesto
