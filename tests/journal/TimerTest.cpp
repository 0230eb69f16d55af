#include "journal/TimerViewController.h"

#include "components/AlertCenter.h"
#include "journal/BalanceFixture.h"

namespace kesto::test
{

class JornalTimer : public BalanceFixture
{
protected:
    TimerViewController &showTimer() { return show<TimerViewController>(); }
    void advance(TimerViewController &timer, qint64 seconds)
    {
        program.platform.clock().advance(seconds);
        timer.updateCountDownLabel();
    }
    [[nodiscard]] QList<LocalNotification> waiting()
    {
        return program.platform.notifications().scheduledLocalNotifications();
    }
    /// When the countdown ends, in seconds from now; 0 without one.
    [[nodiscard]] qint64 storedEnd()
    {
        const std::optional<QDateTime> end = program.defaults().dateForKey(Keys::kTimerKey);
        return end ? program.platform.clock().now().secsTo(*end) : 0;
    }
    /// "Старт Пауза-": the titles, a disabled button with a dash.
    [[nodiscard]] static QString controls(TimerViewController &timer)
    {
        const JornalButton *pause = timer.buttons().at(1);
        return timer.buttons().at(0)->title() + u' ' + pause->title() +
               (pause->isEnabled() ? QString() : QStringLiteral("-"));
    }
    static constexpr int startTag = TimerViewController::StartButton;
    static constexpr int pauseTag = TimerViewController::PauseButton;
};

TEST_F(JornalTimer, CountsDownAndIsAnnouncedOnce)
{
    TimerViewController &timer = showTimer();
    EXPECT_EQ(controls(timer), QStringLiteral("Старт Пауза-"));
    timer.buttonTouched(pauseTag);
    EXPECT_FALSE(timer.isCounting());
    timer.buttonTouched(startTag);
    EXPECT_EQ(controls(timer), QStringLiteral("Отменить Пауза"));
    EXPECT_EQ(timer.countDownText(), QStringLiteral("10: 00"));
    EXPECT_EQ(storedEnd(), 600);
    ASSERT_EQ(waiting().size(), 1);
    const LocalNotification notification = waiting().first();
    EXPECT_EQ(notification.userInfo, QVariantMap({{QStringLiteral("kTimerID"), true}}));
    EXPECT_EQ(notification.alertBody, QStringLiteral("Диета Кесто: время вышло"));
    EXPECT_EQ(notification.timeZone, QStringLiteral("Europe/Berlin"));
    EXPECT_TRUE(notification.defaultSound);
    EXPECT_EQ(program.platform.clock().now().secsTo(notification.fireDate), 600);

    advance(timer, 1);
    EXPECT_EQ(timer.countDownText(), QStringLiteral("09: 59"));
    program.platform.notifications().scheduleLocalNotification(
        {.fireDate = notification.fireDate, .userInfo = {{QStringLiteral("id"), 1}}}); // somebody else's
    timer.buttonTouched(startTag);
    EXPECT_EQ(controls(timer), QStringLiteral("Старт Пауза-"));
    EXPECT_TRUE(timer.countDownText().isNull());
    EXPECT_EQ(storedEnd(), 0);
    EXPECT_EQ(waiting().size(), 1);
}

TEST_F(JornalTimer, PausesAndResumesWithTheTimeLeft)
{
    TimerViewController &timer = showTimer();
    timer.buttonTouched(startTag);
    advance(timer, 100);
    timer.buttonTouched(pauseTag);
    EXPECT_EQ(controls(timer), QStringLiteral("Отменить Продолжить"));
    EXPECT_EQ(waiting().size(), 0);
    EXPECT_EQ(storedEnd(), 500);
    program.platform.clock().advance(1000);
    timer.buttonTouched(pauseTag);
    EXPECT_EQ(controls(timer), QStringLiteral("Отменить Пауза"));
    EXPECT_EQ(storedEnd(), 500);
    EXPECT_EQ(waiting().size(), 1);
    // A countdown that is cancelled leaves its flag; the next one runs all the same, here and when it is seen again.
    timer.buttonTouched(startTag);
    EXPECT_TRUE(program.defaults().boolForKey(QStringLiteral("kPauseKey")));
    leave();
    TimerViewController &again = showTimer();
    again.buttonTouched(startTag);
    leave();
    EXPECT_EQ(controls(showTimer()), QStringLiteral("Отменить Пауза"));
    EXPECT_EQ(waiting().size(), 1);
}

TEST_F(JornalTimer, GoesOnAfterARestart)
{
    showTimer().buttonTouched(startTag);
    restart();
    program.platform.clock().advance(60);
    TimerViewController &running = showTimer();
    EXPECT_EQ(running.countDownText(), QStringLiteral("09: 00"));
    EXPECT_EQ(waiting().size(), 1);
    running.buttonTouched(pauseTag);

    // The store has the end alone: a paused countdown moves again, and nothing announces it.
    restart();
    program.platform.clock().advance(60);
    TimerViewController &paused = showTimer();
    EXPECT_EQ(controls(paused), QStringLiteral("Отменить Продолжить"));
    EXPECT_EQ(paused.countDownText(), QStringLiteral("08: 00"));
    advance(paused, 30);
    EXPECT_EQ(waiting().size(), 0);
    program.platform.clock().advance(200);
    paused.buttonTouched(pauseTag); // with what was left at the last tick
    EXPECT_EQ(storedEnd(), 450);
    EXPECT_EQ(waiting().size(), 1);
    paused.buttonTouched(pauseTag);
    restart();
    TimerViewController &last = showTimer();
    advance(last, 450);
    EXPECT_FALSE(last.isCounting());
    EXPECT_EQ(storedEnd(), 0);
    EXPECT_EQ(AlertCenter::sharedCenter().current(), nullptr);
}

TEST_F(JornalTimer, FollowsTheClock)
{
    TimerViewController &timer = showTimer();
    timer.picker()->setCountDownDuration(3 * 3600);
    timer.buttonTouched(startTag);
    EXPECT_EQ(timer.countDownText(), QStringLiteral("03:00:00"));
    advance(timer, -1800);
    EXPECT_EQ(timer.countDownText(), QStringLiteral("03:30:00"));
    EXPECT_EQ(timer.dial(), 1);
    advance(timer, 2 * 3600 + 900);
    EXPECT_EQ(timer.countDownText(), QStringLiteral("15: 00")); // and an hour
    EXPECT_EQ(timer.dial(), 1);
    advance(timer, 3600);
    EXPECT_EQ(timer.dial(), 0.25);

    // Past its end it stops with the first tick; what is due by then is not taken back.
    leave();
    program.platform.clock().advance(7200);
    TimerViewController &late = showTimer();
    EXPECT_TRUE(late.isCounting());
    EXPECT_EQ(late.countDownText(), QStringLiteral("00: 00"));
    late.updateCountDownLabel();
    EXPECT_FALSE(late.isCounting());
    EXPECT_EQ(waiting().size(), 1);
    EXPECT_EQ(AlertCenter::sharedCenter().current(), nullptr);
}

TEST_F(JornalTimer, EndedByTheNotificationItIsNotSetAnyMore)
{
    TimerViewController &timer = showTimer();
    timer.buttonTouched(startTag);
    program.platform.clock().advance(600);
    program.platform.notifications().fireFirst();
    program.defaults().removeObjectForKey(Keys::kTimerKey); // as who receives it does
    timer.updateCountDownLabel();
    EXPECT_EQ(controls(timer), QStringLiteral("Старт Пауза-"));
    EXPECT_EQ(waiting().size(), 0);
    program.defaults().setValue(QStringLiteral("no date"), Keys::kTimerKey);
    leave();
    EXPECT_FALSE(showTimer().isCounting());
}

TEST_F(JornalTimer, TellsOfItsEndItselfWhereNoNotificationIsTaken)
{
    program.platform.notifications().refuse();
    TimerViewController &timer = showTimer();
    EXPECT_TRUE(timer.hint().isNull());
    timer.buttonTouched(startTag);
    EXPECT_FALSE(timer.hint().isEmpty());
    advance(timer, 601);
    EXPECT_FALSE(timer.isCounting());
    const ShownAlert *alert = AlertCenter::sharedCenter().current();
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->message(), QStringLiteral("Диета Кесто: время вышло"));
}

} // namespace kesto::test
