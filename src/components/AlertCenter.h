#pragma once

#include "components/Alert.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <deque>
#include <memory>

namespace kesto
{

class Platform;

/// The alert that is shown, as its view sees it.
class ShownAlert : public QObject
{
    Q_OBJECT
    Q_PROPERTY(kesto::Alert::Style style READ style CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QString message READ message CONSTANT)
    Q_PROPERTY(QString anchor READ anchor CONSTANT)
    Q_PROPERTY(QObject *context READ context CONSTANT)
    Q_PROPERTY(QStringList buttonTitles READ buttonTitles CONSTANT)
    Q_PROPERTY(int cancelButtonIndex READ cancelButtonIndex CONSTANT)
    Q_PROPERTY(int destructiveButtonIndex READ destructiveButtonIndex CONSTANT)
    Q_PROPERTY(bool hasTextField READ hasTextField CONSTANT)
    Q_PROPERTY(QString placeholder READ placeholder CONSTANT)
    Q_PROPERTY(kesto::Keyboard::Type keyboard READ keyboard CONSTANT)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(kesto::DatePicker *datePicker READ datePicker CONSTANT)
public:
    explicit ShownAlert(Alert alert);

    [[nodiscard]] const Alert &alert() const { return alert_; }
    [[nodiscard]] Alert::Style style() const { return alert_.style; }
    [[nodiscard]] QString title() const { return alert_.title; }
    [[nodiscard]] QString message() const { return alert_.message; }
    [[nodiscard]] QString anchor() const { return alert_.anchor; }
    /// The screen that asks; alive when the alert comes up. Null without one.
    [[nodiscard]] QObject *context() const { return alert_.context; }
    [[nodiscard]] QStringList buttonTitles() const;
    /// −1 without one.
    [[nodiscard]] int cancelButtonIndex() const { return indexOf(Alert::Role::Cancel); }
    [[nodiscard]] int destructiveButtonIndex() const { return indexOf(Alert::Role::Destructive); }
    [[nodiscard]] bool hasTextField() const { return alert_.textField.has_value(); }
    [[nodiscard]] QString placeholder() const;
    [[nodiscard]] Keyboard::Type keyboard() const;
    [[nodiscard]] QString text() const { return text_; }
    void setText(const QString &text);
    /// Null without one.
    [[nodiscard]] DatePicker *datePicker() const { return datePicker_.get(); }

    /// Presses a button. Only the first press counts.
    Q_INVOKABLE void answer(int buttonIndex);
    /// As by Escape: the button that cancels, or the only one; otherwise nothing happens.
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void textChanged();
    void answered(int buttonIndex);

private:
    [[nodiscard]] int indexOf(Alert::Role role) const;

    Alert alert_;
    QString text_;
    std::unique_ptr<DatePicker> datePicker_;
    bool done_ = false;
};

/// Shows alerts one at a time, in the order they came.
class AlertCenter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(kesto::ShownAlert *current READ current NOTIFY currentChanged)
public:
    static AlertCenter &sharedCenter();
    explicit AlertCenter(Platform &platform);
    ~AlertCenter() override;

    /// Shown at once, or when those before it are answered; a question whose context went meanwhile is not asked. The
    /// answer comes when the alert is gone already, so what it shows comes after those that wait.
    void show(Alert alert);
    /// Null when nothing is shown.
    [[nodiscard]] ShownAlert *current() const { return current_.get(); }
    [[nodiscard]] int waitingCount() const { return static_cast<int>(waiting_.size()); }

Q_SIGNALS:
    void currentChanged();

private:
    struct Entry
    {
        Alert alert;
        bool hasContext = false;
        QPointer<QObject> context;
    };
    /// A question that nobody is there any more to hear the answer of.
    [[nodiscard]] static bool isPointless(const Entry &entry);
    void showNext();
    void finish(int buttonIndex);

    std::unique_ptr<ShownAlert> current_;
    Entry shown_;
    std::deque<Entry> waiting_;
};

/// A message with one button, "Ok" localised; both texts are localised already, a null one is left out.
void showAlert(const QString &title, const QString &message);
/// The same; context and answered as in Alert.
void showAlert(const QString &title, const QString &message, QObject *context,
               std::function<void(const AlertAnswer &)> answered);

} // namespace kesto
