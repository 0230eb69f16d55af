#include "journal/TimerViewController.h"

#include "components/AlertCenter.h"
#include "journal/JornalTableViewController.h"
#include "platform/Clock.h"
#include "platform/LocalNotifications.h"
#include "platform/Platform.h"
#include "platform/StringFormat.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "store/Keys.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace kesto
{

namespace
{

constexpr int secondsPerMinute = 60;
constexpr int minutesPerHour = 60;
constexpr int secondsPerHour = 3600;
constexpr double millisecondsPerSecond = 1000;
constexpr int firstDuration = 10 * secondsPerMinute;

const QString pauseKey = QStringLiteral("kPauseKey"); // flag: the countdown is paused
const QString timerID = QStringLiteral("kTimerID");

UserDefaults &defaults() { return Platform::current().userDefaults(); }
LocalNotifications &notifications() { return Platform::current().notifications(); }
QDateTime now() { return Platform::current().clock().now(); }
QString doneText() { return localized(QStringLiteral("Kesto Diet: Timer Done")); }

} // namespace

TimerViewController::TimerViewController()
{
    setTitle(localized(QStringLiteral("Таймер")));
    setLeftBarButtonItem(jornalCloseButton(*this));
    buttons_.add(StartButton, {});
    buttons_.add(PauseButton, {});
    picker_.setCountDownDuration(firstDuration);
    tick_.setInterval(std::chrono::seconds(1));
    tick_.setTimerType(Qt::PreciseTimer);
    connect(&tick_, &QTimer::timeout, this, &TimerViewController::updateCountDownLabel);
    updateControls();
}

void TimerViewController::close()
{
    if (helper_ != nullptr)
        helper_->deallocCurrentDay();
    ViewController::close();
}

double TimerViewController::dial() const
{
    return isCounting() ? std::clamp(currentTimeInterval_ / secondsPerHour, 0.0, 1.0) : 0;
}

QString TimerViewController::hint() const
{
    return refused_ && isCounting() ? localized(QStringLiteral("Timer without notification")) : QString();
}

void TimerViewController::buttonTouched(int tag)
{
    if (!isCounting()) {
        if (tag == StartButton)
            start();
    } else if (tag == StartButton) {
        cancel();
    } else if (tag == PauseButton) {
        pause_ ? resume() : pause();
    }
    updateControls();
}

void TimerViewController::start()
{
    picker_.settle();
    // A countdown that was cancelled leaves the flag behind; this one runs.
    pause_ = false;
    defaults().setBool(false, pauseKey);
    shedulTimerForTimeInterval(picker_.countDownDuration());
    updateCountDownLabel();
}

void TimerViewController::cancel()
{
    pause();
    text_ = QString();
    pause_ = false;
    timerDate_.reset();
    defaults().removeObjectForKey(Keys::kTimerKey);
    defaults().synchronize();
    updateControls();
}

void TimerViewController::pause()
{
    pause_ = true;
    tick_.stop();
    defaults().setBool(true, pauseKey);
    defaults().synchronize(); // before the notification goes: a paused countdown has none
    cancelNotification();
}

void TimerViewController::resume()
{
    defaults().setBool(false, pauseKey);
    pause_ = false;
    shedulTimerForTimeInterval(currentTimeInterval_);
}

void TimerViewController::shedulTimerForTimeInterval(double seconds)
{
    timerDate_ = now().addMSecs(std::llround(seconds * millisecondsPerSecond));
    defaults().setValue(*timerDate_, Keys::kTimerKey);
    defaults().synchronize();
    tick_.start();
    scheduleNotification();
}

void TimerViewController::scheduleNotification()
{
    cancelNotification(); // one that another countdown left behind
    const QString identifier = notifications().scheduleLocalNotification(
        {.fireDate = *timerDate_,
         .timeZone = QString::fromLatin1(Platform::current().calendar().timeZone().id()),
         .alertBody = doneText(),
         .defaultSound = true,
         .userInfo = {{timerID, true}}});
    refused_ = identifier.isNull();
}

void TimerViewController::cancelNotification()
{
    // One that is due is on its way to the user already.
    for (const LocalNotification &each : notifications().scheduledLocalNotifications()) {
        if (each.userInfo.value(timerID).toBool() && each.fireDate > now())
            notifications().cancelLocalNotification(each.identifier);
    }
}

double TimerViewController::secondsLeft() const
{
    return static_cast<double>(now().msecsTo(*timerDate_)) / millisecondsPerSecond;
}

void TimerViewController::updateCountDownLabel()
{
    if (!isCounting())
        return;
    currentTimeInterval_ = secondsLeft();
    if (currentTimeInterval_ > 0) {
        showTime();
        return;
    }
    const bool announced = !refused_ || pause_;
    cancel();
    if (announced)
        return;
    Alert alert;
    alert.message = doneText();
    alert.buttons = {{localized(QStringLiteral("OK")), Alert::Role::Cancel}};
    AlertCenter::sharedCenter().show(std::move(alert));
}

void TimerViewController::showTime()
{
    text_ = textForTimeInterval(std::max(currentTimeInterval_, 0.0));
    Q_EMIT changed();
}

QString TimerViewController::textForTimeInterval(double seconds)
{
    const double whole = std::round(seconds);
    const double minutes = std::floor(whole / secondsPerMinute);
    const double hours = std::floor(whole / secondsPerHour);
    const double shownSeconds = std::fmod(whole, secondsPerMinute);
    const double shownMinutes = std::fmod(minutes, minutesPerHour);
    if (hours > 1)
        return stringWithFormat("%02.0f:%02.0f:%02.0f", hours, shownMinutes, shownSeconds);
    return stringWithFormat("%02.0f: %02.0f", shownMinutes, shownSeconds);
}

void TimerViewController::updateControls()
{
    const QString startTitle = localized(isCounting() ? QStringLiteral("Отменить") : QStringLiteral("Старт"));
    const QString pauseTitle = localized(isPaused() ? QStringLiteral("Продолжить") : QStringLiteral("Пауза"));
    buttons_.withTag(StartButton)
        ->setLook({.image = isCounting() ? QStringLiteral("stop") : QStringLiteral("play"),
                   .title = startTitle,
                   .name = startTitle,
                   .selected = !isCounting()});
    buttons_.withTag(PauseButton)
        ->setLook({.image = isPaused() ? QStringLiteral("play") : QStringLiteral("pause"),
                   .title = pauseTitle,
                   .name = pauseTitle,
                   .selected = isPaused(),
                   .enabled = isCounting()});
    Q_EMIT changed();
}

void TimerViewController::viewWillAppear()
{
    ViewController::viewWillAppear();
    pause_ = defaults().boolForKey(pauseKey);
    timerDate_ = defaults().dateForKey(Keys::kTimerKey);
    text_ = QString();
    if (isCounting()) {
        // A moment that has passed ends the countdown with the first tick.
        currentTimeInterval_ = secondsLeft();
        showTime();
        tick_.start();
    } else {
        tick_.stop();
    }
    updateControls();
}

void TimerViewController::viewWillDisappear()
{
    tick_.stop();
    ViewController::viewWillDisappear();
}

} // namespace kesto
