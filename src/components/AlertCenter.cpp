#include "components/AlertCenter.h"

#include "platform/Platform.h"
#include "platform/StringTables.h"

#include <algorithm>
#include <utility>

namespace kesto
{

ShownAlert::ShownAlert(Alert alert)
    : alert_(std::move(alert))
{
    if (alert_.textField)
        text_ = alert_.textField->text;
    if (alert_.dateField) {
        datePicker_ = std::make_unique<DatePicker>(alert_.dateField->mode, alert_.dateField->minuteInterval);
        if (alert_.dateField->date.isValid())
            datePicker_->setDate(alert_.dateField->date);
    }
}

QStringList ShownAlert::buttonTitles() const
{
    QStringList titles;
    for (const Alert::Button &button : alert_.buttons)
        titles.append(button.title);
    return titles;
}

int ShownAlert::indexOf(Alert::Role role) const
{
    for (int index = 0; index < alert_.buttons.size(); ++index) {
        if (alert_.buttons.at(index).role == role)
            return index;
    }
    return -1;
}

QString ShownAlert::placeholder() const { return alert_.textField ? alert_.textField->placeholder : QString(); }

Keyboard::Type ShownAlert::keyboard() const
{
    return alert_.textField ? alert_.textField->keyboard : Keyboard::Type::Text;
}

void ShownAlert::setText(const QString &text)
{
    if (text_ == text)
        return;
    text_ = text;
    Q_EMIT textChanged();
}

void ShownAlert::answer(int buttonIndex)
{
    if (done_ || buttonIndex < 0 || buttonIndex >= alert_.buttons.size())
        return;
    if (datePicker_)
        datePicker_->settle();
    done_ = true;
    Q_EMIT answered(buttonIndex);
}

void ShownAlert::cancel() { answer(alert_.buttons.size() == 1 ? 0 : cancelButtonIndex()); }

AlertCenter &AlertCenter::sharedCenter() { return Platform::current().shared<AlertCenter>(); }

AlertCenter::AlertCenter(Platform &) {}
AlertCenter::~AlertCenter() = default;

void AlertCenter::show(Alert alert)
{
    if (alert.buttons.isEmpty())
        alert.buttons = {{.title = localized(QStringLiteral("Ok"))}};
    const bool hasContext = alert.context != nullptr;
    const QPointer<QObject> context = alert.context;
    waiting_.push_back({std::move(alert), hasContext, context});
    if (!current_ && waiting_.size() == 1)
        showNext();
}

bool AlertCenter::isPointless(const Entry &entry)
{
    return entry.hasContext && !entry.context && entry.alert.buttons.size() > 1;
}

void AlertCenter::showNext()
{
    shown_ = std::move(waiting_.front());
    waiting_.pop_front();
    shown_.alert.context = shown_.context; // it may have gone while the alert waited
    current_ = std::make_unique<ShownAlert>(shown_.alert);
    connect(current_.get(), &ShownAlert::answered, this, &AlertCenter::finish);
    Q_EMIT currentChanged();
}

void AlertCenter::finish(int buttonIndex)
{
    const Entry shown = std::exchange(shown_, {});
    waiting_.erase(std::remove_if(waiting_.begin(), waiting_.end(), &AlertCenter::isPointless), waiting_.end());
    ShownAlert *alert = current_.release();
    alert->deleteLater(); // it is the one that calls
    const Alert::Button &button = shown.alert.buttons.at(buttonIndex);
    AlertAnswer answer{.buttonIndex = buttonIndex,
                       .buttonTitle = button.title,
                       .isCancel = button.role == Alert::Role::Cancel,
                       .text = alert->text()};
    if (alert->datePicker())
        answer.date = alert->datePicker()->date();
    if (waiting_.empty())
        Q_EMIT currentChanged();
    if (shown.alert.answered && (!shown.hasContext || shown.context))
        shown.alert.answered(answer);
    if (!current_ && !waiting_.empty())
        showNext();
}

void showAlert(const QString &title, const QString &message) { showAlert(title, message, nullptr, {}); }

void showAlert(const QString &title, const QString &message, QObject *context,
               std::function<void(const AlertAnswer &)> answered)
{
    AlertCenter::sharedCenter().show(
        {.title = title, .message = message, .context = context, .answered = std::move(answered)});
}

} // namespace kesto
