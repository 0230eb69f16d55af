#pragma once

#include "components/Picker.h"
#include "components/TableViewController.h"

namespace kesto
{

/// A table with at most one picker, in a row of its own directly below the row that opened it. The picker's row is not
/// content: subclasses never see it in a path or a count.
class TableViewControllerWithEcternalPicker : public TableViewController
{
    Q_OBJECT
public:
    explicit TableViewControllerWithEcternalPicker(QObject *parent = nullptr);

    [[nodiscard]] bool hasInlinePicker() const { return owner_.has_value(); }
    /// Where the table shows the picker; nothing without one.
    [[nodiscard]] std::optional<ShownPath> pickerIndexPath() const;
    /// The row of the content that opened it.
    [[nodiscard]] std::optional<IndexPath> pickerOwner() const { return owner_; }
    /// Opens the picker below a row of the content, moves it there, or closes it when it is there.
    void displayPickerForIndexPath(const IndexPath &path);
    /// What its wheels are at counts for the row that opened it.
    void closePicker();
    /// Asks for the picker's content anew and turns the wheels to it.
    void updatePicker();
    /// Each opening has one of its own: wheels of an earlier one that still turn are not heard.
    [[nodiscard]] Picker *picker() { return picker_.get(); }

    void reloadData() override;
    void reloadSection(int section) override;
    void insertRow(const IndexPath &path) override;
    void deleteRow(const IndexPath &path) override;
    void insertSection(int section) override;
    void deleteSection(int section) override;
    /// Closes the picker.
    void setEditing(bool editing) override;

protected:
    void viewWillDisappear() override;
    /// Asked for the picker of pickerOwner().
    [[nodiscard]] virtual int numberOfComponentsInPicker() const { return 1; }
    [[nodiscard]] virtual int numberOfRowsInComponent(int component) const = 0;
    [[nodiscard]] virtual QString titleForRow(int row, int component) const = 0;
    [[nodiscard]] virtual int selectedRowInComponent(int component) const = 0;
    /// The user chose a row of a wheel; picker()->selectedRow() tells where all stand.
    virtual void pickerDidSelectRow(int row, int component) = 0;

    [[nodiscard]] ShownPath shownPath(const IndexPath &content) const override;
    [[nodiscard]] std::optional<IndexPath> contentPath(const ShownPath &shown) const override;
    [[nodiscard]] TableSection makeSection(int section) const override;

private:
    [[nodiscard]] TableRow pickerRow() const;
    void dropLostOwner();
    void renewPicker();

    std::unique_ptr<Picker> picker_;
    std::optional<IndexPath> owner_;
};

} // namespace kesto
