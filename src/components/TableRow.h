#pragma once

#include "components/Alert.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

namespace kesto
{

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

    Kind kind = Kind::Text;
    QString title{};
    QString subtitle{};
    QString detail{};
    QString image{};
    Accessory accessory = Accessory::None;
    bool checked = false;   ///< state of a check button
    bool on = false;        ///< state of a switch
    bool selected = false;  ///< stands out as the one chosen
    bool enabled = true;    ///< grey and deaf when false
    bool selectable = true; ///< a touch selects it
    bool destructive = false;
    bool struckThrough = false;
    bool canDelete = false;
    bool canMove = false;
    int tag = 0;    ///< identifies a field
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
};

} // namespace kesto
