#pragma once

#include "components/TableModel.h"

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace kesto
{

/// What a line of a table shows, read from the model at once rather than role by role, which a delegate does dearly.
/// All of it changes with changed().
class LineItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int index READ index WRITE setIndex NOTIFY indexChanged REQUIRED FINAL)
    Q_PROPERTY(kesto::TableModel *tableModel READ tableModel WRITE setTableModel NOTIFY changed REQUIRED FINAL)
    Q_PROPERTY(int type READ type NOTIFY changed FINAL)
    Q_PROPERTY(bool isRow READ isRow NOTIFY changed FINAL)
    Q_PROPERTY(int section READ section NOTIFY changed FINAL)
    Q_PROPERTY(int row READ row NOTIFY changed FINAL)
    Q_PROPERTY(bool isFirst READ isFirst NOTIFY changed FINAL)
    Q_PROPERTY(bool isLast READ isLast NOTIFY changed FINAL)
    /// The line before is a row, too: no header stands between.
    Q_PROPERTY(bool followsRow READ followsRow NOTIFY changed FINAL)
    Q_PROPERTY(int kind READ kind NOTIFY changed FINAL)
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed FINAL)
    Q_PROPERTY(QString detail READ detail NOTIFY changed FINAL)
    Q_PROPERTY(QString image READ image NOTIFY changed FINAL)
    Q_PROPERTY(int accessory READ accessory NOTIFY changed FINAL)
    Q_PROPERTY(bool checked READ isChecked NOTIFY changed FINAL)
    Q_PROPERTY(bool on READ isOn NOTIFY changed FINAL)
    Q_PROPERTY(bool selected READ isSelected NOTIFY changed FINAL)
    /// The row's own word. An item is disabled, too, when something else is in front, and looks no different.
    Q_PROPERTY(bool available READ isAvailable NOTIFY changed FINAL)
    Q_PROPERTY(bool selectable READ isSelectable NOTIFY changed FINAL)
    Q_PROPERTY(bool destructive READ isDestructive NOTIFY changed FINAL)
    Q_PROPERTY(bool struckThrough READ isStruckThrough NOTIFY changed FINAL)
    Q_PROPERTY(bool canDelete READ canDelete NOTIFY changed FINAL)
    Q_PROPERTY(bool canMove READ canMove NOTIFY changed FINAL)
    Q_PROPERTY(QString text READ text NOTIFY changed FINAL)
    Q_PROPERTY(QString placeholder READ placeholder NOTIFY changed FINAL)
    Q_PROPERTY(QString unit READ unit NOTIFY changed FINAL)
    Q_PROPERTY(int keyboard READ keyboard NOTIFY changed FINAL)
    /// Undefined when it has no meaning.
    Q_PROPERTY(QVariant color READ color NOTIFY changed FINAL)
    /// A list of {text, color}.
    Q_PROPERTY(QVariantList badges READ badges NOTIFY changed FINAL)
    Q_PROPERTY(QString cell READ cell NOTIFY changed FINAL)
    Q_PROPERTY(QVariant value READ value NOTIFY changed FINAL)
    /// The value where it is a list, empty otherwise.
    Q_PROPERTY(QVariantList values READ values NOTIFY changed FINAL)
    /// A Picker or null.
    Q_PROPERTY(QObject *picker READ picker NOTIFY changed FINAL)

public:
    explicit LineItem(QQuickItem *parent = nullptr);

    [[nodiscard]] int index() const { return index_; }
    void setIndex(int index);
    [[nodiscard]] TableModel *tableModel() const { return model_; }
    void setTableModel(TableModel *model);
    [[nodiscard]] int type() const { return static_cast<int>(line_.type); }
    [[nodiscard]] bool isRow() const { return line_.type == TableModel::LineType::Row; }
    [[nodiscard]] int section() const { return line_.path.section; }
    [[nodiscard]] int row() const { return line_.path.row; }
    [[nodiscard]] bool isFirst() const { return line_.path.row == 0; }
    [[nodiscard]] bool isLast() const { return line_.last; }
    [[nodiscard]] bool followsRow() const { return line_.followsRow; }
    [[nodiscard]] int kind() const { return static_cast<int>(line_.shown.kind); }
    [[nodiscard]] QString title() const { return line_.shown.title; }
    [[nodiscard]] QString subtitle() const { return line_.shown.subtitle; }
    [[nodiscard]] QString detail() const { return line_.shown.detail; }
    [[nodiscard]] QString image() const { return line_.shown.image; }
    [[nodiscard]] int accessory() const { return static_cast<int>(line_.shown.accessory); }
    [[nodiscard]] bool isChecked() const { return line_.shown.checked; }
    [[nodiscard]] bool isOn() const { return line_.shown.on; }
    [[nodiscard]] bool isSelected() const { return line_.shown.selected; }
    [[nodiscard]] bool isAvailable() const { return line_.shown.enabled; }
    [[nodiscard]] bool isSelectable() const { return line_.shown.selectable; }
    [[nodiscard]] bool isDestructive() const { return line_.shown.destructive; }
    [[nodiscard]] bool isStruckThrough() const { return line_.shown.struckThrough; }
    [[nodiscard]] bool canDelete() const { return line_.shown.canDelete; }
    [[nodiscard]] bool canMove() const { return line_.shown.canMove; }
    [[nodiscard]] QString text() const { return line_.shown.text; }
    [[nodiscard]] QString placeholder() const { return line_.shown.placeholder; }
    [[nodiscard]] QString unit() const { return line_.shown.unit; }
    [[nodiscard]] int keyboard() const { return static_cast<int>(line_.shown.keyboard); }
    [[nodiscard]] QVariant color() const;
    [[nodiscard]] QVariantList badges() const;
    [[nodiscard]] QString cell() const { return line_.shown.cell; }
    [[nodiscard]] QVariant value() const { return line_.shown.value; }
    [[nodiscard]] QVariantList values() const { return line_.shown.value.toList(); }
    [[nodiscard]] QObject *picker() const { return line_.shown.picker; }

Q_SIGNALS:
    void indexChanged();
    void changed();
    /// The line shows another thing than before, not the same one changed.
    void replaced();

private:
    void read();

    int index_ = -1;
    QPointer<TableModel> model_;
    TableModel::Line line_;
};

} // namespace kesto
