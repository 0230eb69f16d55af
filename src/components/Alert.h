#pragma once

#include "components/DatePicker.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace kesto
{

/// Keyboards for typed text, the same for alerts and table rows.
class Keyboard
{
    Q_GADGET
public:
    enum class Type { Text, Decimal, Number, Email };
    Q_ENUM(Type)
};

/// What the user did with an alert.
struct AlertAnswer
{
    int buttonIndex = 0;
    QString buttonTitle{};
    bool isCancel = false;
    QString text{};   ///< of the text field; empty without one
    QDateTime date{}; ///< of the date picker, UTC; invalid without one
};

/// A question, or a message, that is shown over everything until it is answered. Texts are localised already.
class Alert
{
    Q_GADGET
public:
    enum class Style { Alert, ActionSheet };
    Q_ENUM(Style)
    enum class Role { Normal, Cancel, Destructive };
    Q_ENUM(Role)

    struct Button
    {
        QString title{};
        Role role = Role::Normal;
    };
    struct TextField
    {
        QString placeholder{};
        QString text{};
        Keyboard::Type keyboard = Keyboard::Type::Text;
    };
    struct DateField
    {
        DatePicker::Mode mode = DatePicker::Mode::Date;
        QDateTime date{}; ///< now when invalid
        int minuteInterval = 1;
    };

    Style style = Style::Alert;
    QString title{};
    QString message{};
    QList<Button> buttons{}; ///< "Ok" when there are none; at most one cancels
    std::optional<TextField> textField{};
    std::optional<DateField> dateField{};
    QString anchor{};                                    ///< what an action sheet of a tablet points at
    QObject *context = nullptr;                          ///< who asks; when it is gone the answer is dropped
    std::function<void(const AlertAnswer &)> answered{}; ///< may show the next alert
};

} // namespace kesto
