#pragma once

#include "components/DatePicker.h"
#include "components/ViewController.h"
#include "journal/JornalButton.h"
#include "journal/JornalHelper.h"

#include <QDateTime>
#include <QPointer>
#include <QTimer>

#include <optional>

namespace kesto
{

/// The journal's tab with a countdown. The moment at which it ends is stored, so it goes on while this screen is left
/// and while the program does not run; a local notification tells of the end. The text follows the clock: when that
/// is set back, there is more time left.
class TimerViewController : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(kesto::DatePicker *picker READ picker CONSTANT)
    Q_PROPERTY(QList<kesto::JornalButton *> buttons READ buttons CONSTANT)
    Q_PROPERTY(bool counting READ isCounting NOTIFY changed)
    Q_PROPERTY(bool paused READ isPaused NOTIFY changed)
    Q_PROPERTY(QString countDownText READ countDownText NOTIFY changed)
    Q_PROPERTY(double dial READ dial NOTIFY changed)
    Q_PROPERTY(QString hint READ hint NOTIFY changed)
public:
    /// The tags of the buttons.
    enum Button { StartButton, PauseButton };

    TimerViewController();

    /// The journal that this tab belongs to; null outside of one.
    void setHelper(JornalHelper *helper) { helper_ = helper; }
    /// Leaves the day and closes the journal.
    void close() override;

    /// Hours and minutes to count down.
    [[nodiscard]] DatePicker *picker() { return &picker_; }
    /// The start button and the pause button, which are other things while a countdown is set.
    [[nodiscard]] QList<JornalButton *> buttons() const { return buttons_.all(); }
    /// A countdown is set, be it paused.
    [[nodiscard]] bool isCounting() const { return timerDate_.has_value(); }
    [[nodiscard]] bool isPaused() const { return isCounting() && pause_; }
    /// Null while no countdown is set.
    [[nodiscard]] QString countDownText() const { return text_; }
    /// How much of a dial of one hour the time left covers, at most all of it.
    [[nodiscard]] double dial() const;
    /// That nothing will announce the end; null otherwise.
    [[nodiscard]] QString hint() const;

    /// By the user: starts or cancels (StartButton), pauses or resumes (PauseButton).
    Q_INVOKABLE void buttonTouched(int tag);
    void start();
    void cancel();
    void pause();
    void resume();
    /// From now on, so many seconds.
    void shedulTimerForTimeInterval(double seconds);
    void cancelNotification();
    void updateCountDownLabel();
    void updateControls();

    /// "02:30:00" from two hours on, otherwise minutes and seconds, "05: 00", without the hour that one and a half
    /// hours have. Rounded to whole seconds first, so that no second reads 60.
    [[nodiscard]] static QString textForTimeInterval(double seconds);

Q_SIGNALS:
    void changed();

protected:
    void viewWillAppear() override;
    void viewWillDisappear() override;

private:
    [[nodiscard]] double secondsLeft() const;
    void showTime();
    void scheduleNotification();

    DatePicker picker_{DatePicker::Mode::CountDownTimer};
    JornalButtons buttons_;
    QTimer tick_;
    std::optional<QDateTime> timerDate_; ///< when the countdown ends
    bool pause_ = false;
    bool refused_ = false; ///< the system took no notification for this countdown
    double currentTimeInterval_ = 0;
    QString text_;
    QPointer<JornalHelper> helper_;
};

} // namespace kesto
