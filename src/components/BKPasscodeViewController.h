#pragma once

#include "components/ViewController.h"

#include <QDateTime>
#include <QTimer>

#include <functional>
#include <optional>

namespace kesto
{

class BKPasscodeViewController;

/// Who knows the passcode, and counts the failures.
class BKPasscodeViewControllerDelegate
{
public:
    virtual ~BKPasscodeViewControllerDelegate() = default;
    /// Answers through resultHandler, at once or later; only the first answer counts.
    virtual void passcodeViewController(BKPasscodeViewController &passcodeViewController,
                                        const QString &authenticatePasscode,
                                        const std::function<void(bool)> &resultHandler) = 0;
    /// A new passcode was set, or the existing one was entered.
    virtual void passcodeViewController(BKPasscodeViewController &passcodeViewController,
                                        const QString &didFinishWithPasscode) = 0;
    virtual void passcodeViewControllerDidFailAttempt(BKPasscodeViewController &passcodeViewController) = 0;
    [[nodiscard]] virtual unsigned passcodeViewControllerNumberOfFailedAttempts(BKPasscodeViewController &)
    {
        return 0;
    }
    /// No digit is taken before this date.
    [[nodiscard]] virtual std::optional<QDateTime> passcodeViewControllerLockUntilDate(BKPasscodeViewController &)
    {
        return {};
    }
};

/// Takes a passcode of four digits: sets a new one, changes the existing one, or checks it.
class BKPasscodeViewController : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QString prompt READ prompt NOTIFY stateChanged)
    Q_PROPERTY(QString message READ message NOTIFY stateChanged)
    Q_PROPERTY(bool isFailure READ isFailure NOTIFY stateChanged)
    Q_PROPERTY(int passcodeLength READ passcodeLength CONSTANT)
    Q_PROPERTY(int enteredLength READ enteredLength NOTIFY stateChanged)
    Q_PROPERTY(bool inputEnabled READ isInputEnabled NOTIFY stateChanged)
public:
    enum class Type { New = 0, Change = 1, Check = 2 };
    Q_ENUM(Type)

    /// The delegate outlives the screen or is taken back.
    explicit BKPasscodeViewController(Type type, BKPasscodeViewControllerDelegate *delegate = nullptr);
    void setDelegate(BKPasscodeViewControllerDelegate *delegate) { delegate_ = delegate; }
    [[nodiscard]] Type type() const { return type_; }

    /// What is asked for.
    [[nodiscard]] QString prompt() const;
    /// What went wrong before, or how long input is refused; empty otherwise.
    [[nodiscard]] QString message() const { return message_; }
    /// The message is about failed attempts.
    [[nodiscard]] bool isFailure() const { return failure_; }
    [[nodiscard]] int passcodeLength() const { return 4; }
    [[nodiscard]] int enteredLength() const { return static_cast<int>(entered_.size()); }
    /// Not while locked, while an answer is awaited, or at the end.
    [[nodiscard]] bool isInputEnabled() const { return step_ != Step::Done && !waiting_ && !locked_; }

    /// 0 to 9.
    Q_INVOKABLE void digit(int digit);
    Q_INVOKABLE void deleteDigit();

Q_SIGNALS:
    void stateChanged();

protected:
    void viewWillAppear() override;
    void viewWillDisappear() override;

private:
    enum class Step { Existing, First, Second, Done };
    void complete();
    void authenticated(bool right, const QString &passcode);
    void finish(const QString &passcode);
    void restart(Step step, const QString &message);
    void showFailures();
    void updateLock();

    Type type_;
    BKPasscodeViewControllerDelegate *delegate_;
    Step step_;
    QString entered_;
    QString existing_; // the old passcode while it is changed
    QString first_;
    QString message_;
    bool failure_ = false;
    bool waiting_ = false;
    bool locked_ = false;
    quint64 attempt_ = 0;
    QTimer tick_;
};

} // namespace kesto
