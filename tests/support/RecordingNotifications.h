#pragma once

#include "platform/LocalNotifications.h"
#include "platform/NotificationPresenter.h"

#include <algorithm>

namespace kesto::test
{

/// Keeps notifications in memory and never fires one by itself.
class RecordingNotifications final : public LocalNotifications
{
    Q_OBJECT
public:
    using LocalNotifications::LocalNotifications;

    QString scheduleLocalNotification(LocalNotification notification) override
    {
        if (refusing_)
            return {};
        notification.identifier = QString::number(++lastIdentifier_);
        waiting_.append(notification);
        std::stable_sort(waiting_.begin(), waiting_.end(),
                         [](const auto &left, const auto &right) { return left.fireDate < right.fireDate; });
        return notification.identifier;
    }
    [[nodiscard]] QList<LocalNotification> scheduledLocalNotifications() const override { return waiting_; }
    void cancelLocalNotification(const QString &identifier) override
    {
        waiting_.removeIf([&](const LocalNotification &one) { return one.identifier == identifier; });
    }
    [[nodiscard]] int applicationIconBadgeNumber() const override { return badgeNumber_; }
    void setApplicationIconBadgeNumber(int number) override { badgeNumber_ = number; }

    /// Whether it takes notifications from now on; a system that the user forbade to show any does not.
    void refuse(bool refusing = true) { refusing_ = refusing; }
    /// The earliest fires now, whatever its date; there is one.
    void fireFirst() { Q_EMIT didReceive(waiting_.takeFirst()); }

private:
    QList<LocalNotification> waiting_;
    int badgeNumber_ = 0;
    int lastIdentifier_ = 0;
    bool refusing_ = false;
};

/// Remembers what it should have shown.
class RecordingPresenter final : public NotificationPresenter
{
public:
    struct Shown
    {
        QString title;
        QString body;
        bool sound = false;
        bool operator==(const Shown &) const = default;
    };
    QList<Shown> shown;

    void show(const QString &title, const QString &body, bool sound) override { shown.append({title, body, sound}); }
};

} // namespace kesto::test
