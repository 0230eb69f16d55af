#pragma once

#include "components/Alert.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

#include <type_traits>
#include <utility>

namespace kesto
{

/// What a row stands for, wherever it is: a number, usually an enumerator, or a text, such as a key of the store.
/// Unique within its section.
class RowId
{
public:
    RowId() = default; ///< none
    RowId(int number)  // NOLINT(google-explicit-constructor): .id = WeightRow
        : text_(QString::number(number))
    {
    }
    template <class Enum>
    requires std::is_enum_v<Enum> RowId(Enum value) // NOLINT(google-explicit-constructor)
        : RowId(static_cast<int>(value))
    {
    }
    RowId(QString text) // NOLINT(google-explicit-constructor)
        : text_(std::move(text))
    {
    }

    [[nodiscard]] bool isSet() const { return !text_.isEmpty(); }
    /// 0 for a text.
    [[nodiscard]] int number() const { return text_.toInt(); }
    template <class Enum>
    [[nodiscard]] Enum as() const
    {
        return static_cast<Enum>(number());
    }
    [[nodiscard]] const QString &text() const { return text_; }

    bool operator==(const RowId &) const = default;

private:
    QString text_;
};

/// What a row of a table shows. Texts are localised and formatted already.
class TableRow
{
    Q_GADGET
public:
    enum class Kind {
        Text,     ///< picture, title, subtitle, accessory
        Value,    ///< the same and a value (detail) at the right
        Editable, ///< title, a field (text, placeholder, keyboard) and its unit
        Editor,   ///< a field of several lines
        Switch,   ///< title and a switch
        Button,   ///< a title that acts
        Picker,   ///< the wheels of picker
        Picture,  ///< a large picture
        Custom    ///< a row of one feature: its view is named by cell, its data are in value
    };
    Q_ENUM(Kind)
    enum class Accessory { None, Disclosure, Checkmark, CheckButton, InfoButton };
    Q_ENUM(Accessory)

    struct Badge
    {
        QString text{};
        QColor color{};
        bool operator==(const Badge &) const = default;
    };

    RowId id{}; ///< none: the row stands for its place in its section
    Kind kind = Kind::Text;
    QString title{};
    QString subtitle{};
    QString detail{};
    QString image{};
    Accessory accessory = Accessory::None;
    bool checked = false;   ///< state of a check button
    bool on = false;        ///< state of a switch
    bool selected = false;  ///< stands out as the one chosen
    bool enabled = true;    ///< when false, grey and without effect
    bool selectable = true; ///< a touch selects it
    bool destructive = false;
    bool struckThrough = false;
    bool canDelete = false;
    bool canMove = false;
    QString text{}; ///< of a field
    QString placeholder{};
    QString unit{}; ///< label of a field
    Keyboard::Type keyboard = Keyboard::Type::Text;
    QColor color{}; ///< of the title where it has a meaning; invalid otherwise
    QList<Badge> badges{};
    QString cell{};
    QVariant value{};
    Picker *picker = nullptr; ///< not owned; outlives the row

    bool operator==(const TableRow &) const = default;

    [[nodiscard]] bool hasField() const { return kind == Kind::Editable || kind == Kind::Editor; }
    /// Whether a touch on its accessory does something.
    [[nodiscard]] bool hasButton() const
    {
        return accessory == Accessory::CheckButton || accessory == Accessory::InfoButton;
    }
};

/// One line of a table as its view reads it: a row, or the header or footer of a section, which shows a title only. All
/// properties are declared here, because compiled QML of Qt 6.4 misreads those that a value type inherits.
struct TableLine : TableRow
{
    Q_GADGET
    Q_PROPERTY(int kind READ kindNumber FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString subtitle MEMBER subtitle FINAL)
    Q_PROPERTY(QString detail MEMBER detail FINAL)
    Q_PROPERTY(QString image MEMBER image FINAL)
    Q_PROPERTY(int accessory READ accessoryNumber FINAL)
    Q_PROPERTY(bool checked MEMBER checked FINAL)
    Q_PROPERTY(bool on MEMBER on FINAL)
    Q_PROPERTY(bool selected MEMBER selected FINAL)
    Q_PROPERTY(bool enabled MEMBER enabled FINAL)
    Q_PROPERTY(bool selectable MEMBER selectable FINAL)
    Q_PROPERTY(bool destructive MEMBER destructive FINAL)
    Q_PROPERTY(bool struckThrough MEMBER struckThrough FINAL)
    Q_PROPERTY(bool canDelete MEMBER canDelete FINAL)
    Q_PROPERTY(bool canMove MEMBER canMove FINAL)
    Q_PROPERTY(QString text MEMBER text FINAL)
    Q_PROPERTY(QString placeholder MEMBER placeholder FINAL)
    Q_PROPERTY(QString unit MEMBER unit FINAL)
    Q_PROPERTY(int keyboard READ keyboardNumber FINAL)
    Q_PROPERTY(QVariant color READ colorIfValid FINAL)     ///< undefined when it has no meaning
    Q_PROPERTY(QVariantList badges READ badgeValues FINAL) ///< of {text, color}
    Q_PROPERTY(QString cell MEMBER cell FINAL)
    Q_PROPERTY(QVariant value MEMBER value FINAL)
    Q_PROPERTY(QVariantList values READ valueList FINAL) ///< the value where it is a list, otherwise empty
    Q_PROPERTY(QObject *picker READ pickerObject FINAL)  ///< a Picker or null
    Q_PROPERTY(bool hasField READ hasField FINAL)
    Q_PROPERTY(bool isRow READ isRow FINAL)
    Q_PROPERTY(bool isFooter READ isFooter FINAL)
    Q_PROPERTY(QString id READ idText FINAL)
    Q_PROPERTY(int section MEMBER section FINAL)
    Q_PROPERTY(int row MEMBER row FINAL)
    Q_PROPERTY(bool isFirst READ isFirst FINAL)
    Q_PROPERTY(bool isLast MEMBER isLast FINAL)
    Q_PROPERTY(bool followsRow MEMBER followsRow FINAL)
public:
    enum class Type { Header, Row, Footer };

    Type type = Type::Row;
    int section = 0;
    int row = -1;            ///< in its section; -1 for headers and footers
    bool isLast = false;     ///< the last row of its section
    bool followsRow = false; ///< the line before is a row, too, be it of another section

    bool operator==(const TableLine &) const = default;

    [[nodiscard]] bool isRow() const { return type == Type::Row; }
    [[nodiscard]] bool isFooter() const { return type == Type::Footer; }
    [[nodiscard]] bool isFirst() const { return row == 0; }
    [[nodiscard]] QString idText() const { return id.isSet() ? id.text() : QString::number(row); }

private:
    // As QML takes them; enumerations as numbers, which compiled QML of Qt 6.4 can compare.
    [[nodiscard]] int kindNumber() const { return static_cast<int>(kind); }
    [[nodiscard]] int accessoryNumber() const { return static_cast<int>(accessory); }
    [[nodiscard]] int keyboardNumber() const { return static_cast<int>(keyboard); }
    [[nodiscard]] QVariant colorIfValid() const { return color.isValid() ? QVariant(color) : QVariant(); }
    [[nodiscard]] QVariantList badgeValues() const;
    [[nodiscard]] QVariantList valueList() const { return value.toList(); }
    [[nodiscard]] QObject *pickerObject() const { return picker; }
};

} // namespace kesto
