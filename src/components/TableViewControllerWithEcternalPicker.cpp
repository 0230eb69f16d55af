#include "components/TableViewControllerWithEcternalPicker.h"

namespace kesto
{

TableViewControllerWithEcternalPicker::TableViewControllerWithEcternalPicker(QObject *parent)
    : TableViewController(parent)
{
    renewPicker();
}

void TableViewControllerWithEcternalPicker::renewPicker()
{
    if (picker_ != nullptr) {
        picker_->disconnect(this);
        picker_.release()->deleteLater(); // its row may still fade
    }
    picker_ = std::make_unique<Picker>();
    connect(picker_.get(), &Picker::selected, this, [this](int row, int component) {
        if (owner_)
            pickerDidSelectRow(row, component);
    });
}

void TableViewControllerWithEcternalPicker::viewWillDisappear() { picker_->settle(); }

std::optional<ShownPath> TableViewControllerWithEcternalPicker::pickerIndexPath() const
{
    return owner_ ? std::optional(ShownPath{owner_->section, owner_->row + 1}) : std::nullopt;
}

TableRow TableViewControllerWithEcternalPicker::pickerRow() const
{
    return {.kind = TableRow::Kind::Picker, .selectable = false, .picker = picker_.get()};
}

void TableViewControllerWithEcternalPicker::displayPickerForIndexPath(const IndexPath &path)
{
    const bool closesOnly = owner_ == path;
    closePicker();
    if (closesOnly || isEditing() || !table()->contains(shownPath(path)))
        return;
    owner_ = path;
    renewPicker();
    updatePicker();
    table()->insertRow(*pickerIndexPath(), pickerRow());
}

void TableViewControllerWithEcternalPicker::closePicker()
{
    if (owner_)
        picker_->settle();
    if (!owner_)
        return;
    const ShownPath shown = *pickerIndexPath();
    owner_.reset();
    table()->removeRow(shown);
}

void TableViewControllerWithEcternalPicker::updatePicker()
{
    if (!owner_)
        return;
    QList<QStringList> titles;
    QList<int> selectedRows;
    const int components = numberOfComponentsInPicker();
    for (int component = 0; component < components; ++component) {
        QStringList rows;
        const int count = numberOfRowsInComponent(component);
        rows.reserve(count);
        for (int row = 0; row < count; ++row)
            rows.append(titleForRow(row, component));
        titles.append(rows);
        selectedRows.append(selectedRowInComponent(component));
    }
    picker_->setContent(titles, selectedRows);
}

ShownPath TableViewControllerWithEcternalPicker::shownPath(const IndexPath &content) const
{
    const bool below = owner_ && owner_->section == content.section && content.row > owner_->row;
    return {content.section, content.row + (below ? 1 : 0)};
}

std::optional<IndexPath> TableViewControllerWithEcternalPicker::contentPath(const ShownPath &shown) const
{
    if (shown == pickerIndexPath())
        return std::nullopt;
    const bool below = owner_ && owner_->section == shown.section && shown.row > owner_->row;
    return IndexPath{shown.section, shown.row - (below ? 1 : 0)};
}

TableSection TableViewControllerWithEcternalPicker::makeSection(int section) const
{
    TableSection made = TableViewController::makeSection(section);
    if (owner_ && owner_->section == section)
        made.rows.insert(owner_->row + 1, pickerRow());
    return made;
}

void TableViewControllerWithEcternalPicker::dropLostOwner()
{
    if (owner_ && (owner_->section >= numberOfSections() || owner_->row >= numberOfRowsInSection(owner_->section)))
        owner_.reset();
}

void TableViewControllerWithEcternalPicker::reloadData()
{
    dropLostOwner();
    updatePicker();
    TableViewController::reloadData();
}

void TableViewControllerWithEcternalPicker::reloadSection(int section)
{
    if (owner_ && owner_->section == section) {
        dropLostOwner();
        updatePicker();
    }
    TableViewController::reloadSection(section);
}

void TableViewControllerWithEcternalPicker::insertRow(const IndexPath &path)
{
    TableViewController::insertRow(path);
    if (owner_ && owner_->section == path.section && owner_->row >= path.row)
        ++owner_->row;
}

void TableViewControllerWithEcternalPicker::deleteRow(const IndexPath &path)
{
    if (owner_ == path)
        closePicker();
    TableViewController::deleteRow(path);
    if (owner_ && owner_->section == path.section && owner_->row > path.row)
        --owner_->row;
}

void TableViewControllerWithEcternalPicker::insertSection(int section)
{
    if (owner_ && owner_->section >= section)
        ++owner_->section;
    TableViewController::insertSection(section);
}

void TableViewControllerWithEcternalPicker::deleteSection(int section)
{
    if (owner_ && owner_->section == section)
        owner_.reset();
    TableViewController::deleteSection(section);
    if (owner_ && owner_->section > section)
        --owner_->section;
}

void TableViewControllerWithEcternalPicker::setEditing(bool editing)
{
    closePicker();
    TableViewController::setEditing(editing);
}

} // namespace kesto
