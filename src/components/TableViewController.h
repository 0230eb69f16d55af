#pragma once

#include "components/TableModel.h"
#include "components/ViewController.h"

namespace kesto
{

/// A screen that is a table. A subclass answers for its content as it is now (numberOf…, cellForRow) and reloads what
/// changed; what the user does arrives in the hooks. Their index paths are the content's, whatever else the table
/// shows. The table is filled after viewDidLoad.
class TableViewController : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(kesto::TableModel *table READ table CONSTANT)
    Q_PROPERTY(bool editing READ isEditing WRITE setEditing NOTIFY editingChanged)
public:
    explicit TableViewController(QObject *parent = nullptr);

    [[nodiscard]] TableModel *table() { return &table_; }
    [[nodiscard]] const TableModel *table() const { return &table_; }

    [[nodiscard]] virtual int numberOfSections() const { return 1; }
    [[nodiscard]] virtual int numberOfRowsInSection(int section) const = 0;
    [[nodiscard]] virtual TableRow cellForRow(const IndexPath &path) const = 0;
    /// Null: none.
    [[nodiscard]] virtual QString titleForHeaderInSection(int section) const;
    [[nodiscard]] virtual QString titleForFooterInSection(int section) const;

    /// Nothing happens before the table is filled for the first time, with these and the following. Rows and sections
    /// that the table does not have are left out.
    virtual void reloadData();
    void reloadRow(const IndexPath &path);
    virtual void reloadSection(int section);
    /// The content has the row, or has it no more; the table follows.
    virtual void insertRow(const IndexPath &path);
    virtual void deleteRow(const IndexPath &path);
    virtual void insertSection(int section);
    virtual void deleteSection(int section);

    [[nodiscard]] bool isEditing() const { return editing_; }
    virtual void setEditing(bool editing);
    /// A button that turns editing on and off and reads "Edit" or "Done".
    [[nodiscard]] std::unique_ptr<BarButtonItem> editButtonItem();

    /// What the view calls, with the path as the table shows it. Paths that do not exist, and what a row does not
    /// offer, are ignored. A row keeps the text or the state that the user gave it until it is reloaded.
    /// Not while editing.
    Q_INVOKABLE void selectRow(int section, int row);
    /// While the user types; endEditingText() follows with what is typed in the end, if anything.
    Q_INVOKABLE void editingTextChanged(int section, int row, const QString &text);
    Q_INVOKABLE void endEditingText(int section, int row, const QString &text);
    Q_INVOKABLE void turnSwitch(int section, int row, bool on);
    Q_INVOKABLE void touchAccessory(int section, int row);
    Q_INVOKABLE void deleteRowByUser(int section, int row);
    /// While editing. To the place that the row has when it was taken out; where canMoveRow() lets it.
    Q_INVOKABLE void moveRowByUser(int fromSection, int fromRow, int toSection, int toRow);
    Q_INVOKABLE [[nodiscard]] bool canMoveRowByUser(int fromSection, int fromRow, int toSection, int toRow) const;

Q_SIGNALS:
    void editingChanged();

protected:
    virtual void didSelectRow(const IndexPath &path);
    /// Nothing is to be stored yet. Also told when the user gives up, with what the field held.
    virtual void textFieldTextDidChange(const IndexPath &path, int tag, const QString &text);
    virtual void textFieldDidEndEditing(const IndexPath &path, int tag, const QString &text);
    virtual void switchChanged(const IndexPath &path, bool on);
    virtual void accessoryTouched(const IndexPath &path);
    /// The content loses the row and calls deleteRow() or reloads.
    virtual void commitDelete(const IndexPath &path);
    /// Whether a row may be let go there; by default within its section.
    [[nodiscard]] virtual bool canMoveRow(const IndexPath &from, const IndexPath &to) const;
    /// The table has moved the row already; the content follows.
    virtual void moveRow(const IndexPath &from, const IndexPath &to);

    /// Where a row of the content is in the table, and back; nothing for what is not content.
    [[nodiscard]] virtual IndexPath shownPath(const IndexPath &content) const { return content; }
    [[nodiscard]] virtual std::optional<IndexPath> contentPath(const IndexPath &shown) const { return shown; }
    /// A section as the table shows it.
    [[nodiscard]] virtual TableSection makeSection(int section) const;
    [[nodiscard]] bool isFilled() const { return filled_; }
    void contentDidLoad() override;

private:
    [[nodiscard]] const TableRow *touchedRow(int section, int row) const;

    TableModel table_;
    bool editing_ = false;
    bool filled_ = false;
};

} // namespace kesto
