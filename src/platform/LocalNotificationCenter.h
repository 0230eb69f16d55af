#pragma once

#include "platform/LocalNotifications.h"

#include <QTimer>

namespace kesto
{

class Clock;
class NotificationPresenter;

/// Local notifications on systems that have none of their own: kept in "LocalNotifications.plist" in a folder, handed
/// to a presenter when they come due. Those that came due while the program did not run are presented when the centre
/// is made. While the file can't be read or written, which is logged, the notifications are kept in memory and each
/// deliverDue() tries again; what the file holds is never overwritten unread. The clock and the presenter outlive it.
class LocalNotificationCenter final : public LocalNotifications
{
    Q_OBJECT
public:
    /// title is the program's name, above every message.
    LocalNotificationCenter(const QString &folder, QString title, const Clock &clock, NotificationPresenter &presenter,
                            QObject *parent = nullptr);

    /// A notification without a valid fire date, or whose user information is no property list, is refused: a log line,
    /// and the identifier returned is null. One whose fire date has passed fires as soon as the event loop turns.
    QString scheduleLocalNotification(LocalNotification notification) override;
    [[nodiscard]] QList<LocalNotification> scheduledLocalNotifications() const override;
    void cancelLocalNotification(const QString &identifier) override;
    [[nodiscard]] int applicationIconBadgeNumber() const override;
    void setApplicationIconBadgeNumber(int number) override;

    /// While the user has the program before them, a notification is only emitted, not presented. False at first.
    void setApplicationActive(bool active);

    /// Fires what is due now. Happens by itself, at least every minute while something waits; call it when the device
    /// wakes up to be on time.
    void deliverDue();

private:
    bool load();
    void save();
    void armTimer();
    QList<LocalNotification> takeDue();

    const QString path_;
    const QString title_;
    const Clock &clock_;
    NotificationPresenter &presenter_;
    QList<LocalNotification> waiting_; // the earliest first
    int badgeNumber_ = 0;
    bool read_ = false;    // the file; until then waiting_ lacks what it holds
    bool unsaved_ = false; // the last save failed
    bool applicationActive_ = false;
    QTimer timer_;
};

} // namespace kesto
