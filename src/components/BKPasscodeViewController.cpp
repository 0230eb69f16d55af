#include "components/BKPasscodeViewController.h"

#include "platform/Clock.h"
#include "platform/Platform.h"
#include "platform/StringFormat.h"
#include "platform/StringTables.h"

#include <utility>

namespace kesto
{

namespace
{
constexpr int tickInterval = 1000; // milliseconds
constexpr qint64 minute = 60'000;  // milliseconds

QString localizedFormat(const QString &key, qint64 number)
{
    return stringWithFormat(localized(key).toUtf8().constData(), number);
}
} // namespace

BKPasscodeViewController::BKPasscodeViewController(Type type, BKPasscodeViewControllerDelegate *delegate)
    : type_(type)
    , delegate_(delegate)
    , step_(type == Type::New ? Step::First : Step::Existing)
{
    tick_.setInterval(tickInterval);
    connect(&tick_, &QTimer::timeout, this, &BKPasscodeViewController::updateLock);
}

QString BKPasscodeViewController::prompt() const
{
    switch (step_) {
    case Step::First:
        return localized(type_ == Type::Change ? QStringLiteral("Enter your new passcode")
                                               : QStringLiteral("Enter your passcode"));
    case Step::Second:
        return localized(QStringLiteral("Re-enter your passcode"));
    case Step::Existing:
    case Step::Done:
        break;
    }
    return localized(type_ == Type::Change ? QStringLiteral("Enter your old passcode")
                                           : QStringLiteral("Enter your passcode"));
}

void BKPasscodeViewController::digit(int digit)
{
    updateLock();
    if (digit < 0 || digit > 9 || !isInputEnabled())
        return;
    entered_.append(QString::number(digit));
    Q_EMIT stateChanged();
    if (enteredLength() == passcodeLength())
        complete();
}

void BKPasscodeViewController::deleteDigit()
{
    if (entered_.isEmpty() || !isInputEnabled())
        return;
    entered_.chop(1);
    Q_EMIT stateChanged();
}

void BKPasscodeViewController::complete()
{
    const QString passcode = entered_;
    switch (step_) {
    case Step::Existing: {
        if (!delegate_)
            return restart(Step::Existing, {});
        waiting_ = true;
        Q_EMIT stateChanged();
        const QPointer<BKPasscodeViewController> self(this);
        delegate_->passcodeViewController(*this, passcode, [self, attempt = ++attempt_, passcode](bool right) {
            if (self && self->waiting_ && self->attempt_ == attempt)
                self->authenticated(right, passcode);
        });
        return;
    }
    case Step::First:
        if (type_ == Type::Change && passcode == existing_) {
            restart(Step::First,
                    localized(QStringLiteral("Enter a different passcode. Cannot re-use the same passcode.")));
            return shake();
        }
        first_ = passcode;
        return restart(Step::Second, {});
    case Step::Second:
        if (passcode == first_)
            return finish(passcode);
        restart(Step::First, localized(QStringLiteral("Passcodes did not match. Try again.")));
        return shake();
    case Step::Done:
        return;
    }
}

void BKPasscodeViewController::authenticated(bool right, const QString &passcode)
{
    waiting_ = false;
    if (right && type_ == Type::Check)
        return finish(passcode);
    if (right) {
        existing_ = passcode;
        return restart(Step::First, {});
    }
    restart(Step::Existing, {});
    shake();
    if (delegate_)
        delegate_->passcodeViewControllerDidFailAttempt(*this);
    showFailures();
}

void BKPasscodeViewController::restart(Step step, const QString &message)
{
    step_ = step;
    entered_.clear();
    message_ = message;
    failure_ = false;
    Q_EMIT stateChanged();
}

void BKPasscodeViewController::finish(const QString &passcode)
{
    existing_.clear();
    first_.clear();
    restart(Step::Done, {});
    if (delegate_)
        delegate_->passcodeViewController(*this, passcode);
}

void BKPasscodeViewController::showFailures()
{
    if (step_ == Step::Existing) {
        const unsigned failures = delegate_ ? delegate_->passcodeViewControllerNumberOfFailedAttempts(*this) : 0;
        failure_ = failures > 0;
        message_ = failure_ ? localizedFormat(QStringLiteral("Failed attempts: %ld"), failures) : QString();
        Q_EMIT stateChanged();
    }
    updateLock();
}

void BKPasscodeViewController::updateLock()
{
    const auto until = delegate_ ? delegate_->passcodeViewControllerLockUntilDate(*this) : std::nullopt;
    const qint64 left = until ? Platform::current().clock().now().msecsTo(*until) : 0;
    const bool wasLocked = std::exchange(locked_, left > 0);
    if (locked_) {
        message_ = localizedFormat(QStringLiteral("Try again in %ld min"), (left + minute - 1) / minute);
        failure_ = true;
        entered_.clear();
        if (isVisible())
            tick_.start();
        Q_EMIT stateChanged();
    } else if (wasLocked) {
        tick_.stop();
        message_.clear();
        showFailures();
        Q_EMIT stateChanged();
    }
}

void BKPasscodeViewController::viewWillAppear()
{
    ViewController::viewWillAppear();
    showFailures();
}

void BKPasscodeViewController::viewWillDisappear()
{
    tick_.stop();
    ViewController::viewWillDisappear();
}

} // namespace kesto
