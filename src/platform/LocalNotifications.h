#pragma once

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariantMap>

namespace kesto
{

/// A message that the system shows at a moment, whether the program runs or not.
struct LocalNotification
{
    QString identifier; ///< given by schedule(); identifies it when cancelling
    QDateTime fireDate; ///< UTC
    QString timeZone;   ///< IANA name; kept, the fire date is absolute
    QString alertBody;
    bool defaultSound = false;
    int badgeNumber = 0; ///< 0 leaves the badge alone
    QVariantMap userInfo;

    bool operator==(const LocalNotification &) const = default;
};

/// Main thread only.
class LocalNotifications : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// Keeps it until it fires or is cancelled, over restarts. Gives it a new identifier and returns that.
    virtual QString scheduleLocalNotification(LocalNotification notification) = 0;
    /// Those that wait, the earliest first.
    [[nodiscard]] virtual QList<LocalNotification> scheduledLocalNotifications() const = 0;
    /// Nothing happens when none has this identifier.
    virtual void cancelLocalNotification(const QString &identifier) = 0;

    /// The number on the program's icon.
    [[nodiscard]] virtual int applicationIconBadgeNumber() const = 0;
    virtual void setApplicationIconBadgeNumber(int number) = 0;

Q_SIGNALS:
    /// One fired while the program runs.
    void didReceive(const kesto::LocalNotification &notification);
};

} // namespace kesto
