#pragma once

#include "components/TableModel.h"
#include "components/ViewController.h"

namespace kesto
{

/// A screen that is a table. A subclass describes its content as it is now (numberOf…, cellForRow) and reloads what
/// changed. What the user does arrives in the hooks, with the row's place in the content and its identity: the id that
/// cellForRow() gave it, or else its place in its section. The table is filled after viewDidLoad.
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

    /// These do nothing before the table is filled for the first time, and with a row or section that it does not have.
    virtual void reloadData();
    void reloadRow(const IndexPath &path);
    virtual void reloadSection(int section);
    /// To be called when the content has the row or section, or has it no more.
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
    /// As by a touch: turns its switch, or selects it, or presses its button. False when the view has to give the row
    /// the keyboard focus, because it has a field or wheels. Ignored while editing.
    Q_INVOKABLE bool activateRow(int section, int row);
    Q_INVOKABLE void selectRow(int section, int row);
    /// Of the row that the field was opened for, by its identity: rows may change their places meanwhile, and one that
    /// is gone is ignored. The first while the user types, the second with the text in the end, if they typed any.
    Q_INVOKABLE void editingTextChanged(int section, const QString &id, const QString &text);
    Q_INVOKABLE void endEditingText(int section, const QString &id, const QString &text);
    Q_INVOKABLE void turnSwitch(int section, int row, bool on);
    Q_INVOKABLE void touchAccessory(int section, int row);
    Q_INVOKABLE void deleteRowByUser(int section, int row);
    /// While editing. To the place that the row has when it was taken out; where canMoveRow() lets it.
    Q_INVOKABLE void moveRowByUser(int fromSection, int fromRow, int toSection, int toRow);
    Q_INVOKABLE [[nodiscard]] bool canMoveRowByUser(int fromSection, int fromRow, int toSection, int toRow) const;

Q_SIGNALS:
    void editingChanged();

protected:
    virtual void didSelectRow(const IndexPath &path, const RowId &id);
    /// Not to be stored yet. Also called when the user presses Escape, with the text that the field had.
    virtual void textFieldTextDidChange(const IndexPath &path, const RowId &id, const QString &text);
    virtual void textFieldDidEndEditing(const IndexPath &path, const RowId &id, const QString &text);
    virtual void switchChanged(const IndexPath &path, const RowId &id, bool on);
    virtual void accessoryTouched(const IndexPath &path, const RowId &id);
    /// The content loses the row and calls deleteRow() or reloads.
    virtual void commitDelete(const IndexPath &path, const RowId &id);
    /// Whether a row may be let go there; by default within its section.
    [[nodiscard]] virtual bool canMoveRow(const IndexPath &from, const IndexPath &to) const;
    /// The table has moved the row already; the content follows.
    virtual void moveRow(const IndexPath &from, const IndexPath &to);

    /// Where a row of the content is in the table, and back; nothing for a row that is not content.
    [[nodiscard]] virtual ShownPath shownPath(const IndexPath &content) const;
    [[nodiscard]] virtual std::optional<IndexPath> contentPath(const ShownPath &shown) const;
    /// A section as the table shows it.
    [[nodiscard]] virtual TableSection makeSection(int section) const;
    [[nodiscard]] bool isFilled() const { return filled_; }
    void contentDidLoad() override;

private:
    /// A row of the content that the user can touch.
    struct Touched
    {
        const TableRow *row;
        IndexPath path; ///< in the content
        RowId id;
    };
    [[nodiscard]] std::optional<Touched> touched(const ShownPath &path) const;
    [[nodiscard]] std::optional<Touched> touchedField(const std::optional<ShownPath> &path) const;

    TableModel table_;
    bool editing_ = false;
    bool filled_ = false;
};

} // namespace kesto
