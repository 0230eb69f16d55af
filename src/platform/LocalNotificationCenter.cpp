#include "platform/LocalNotificationCenter.h"

#include "platform/AtomicFile.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/NotificationPresenter.h"
#include "platform/PropertyList.h"

#include <QUuid>

#include <algorithm>
#include <limits>
#include <utility>

namespace kesto
{

namespace
{

// The timer counts time that the device sleeps through as none, and knows nothing of a clock that is set anew.
constexpr qint64 longestWait = 60'000;

const QString badgeKey = QStringLiteral("badgeNumber");
const QString waitingKey = QStringLiteral("notifications");

// A property list's own dates have whole seconds only.
QVariantMap toEntry(const LocalNotification &notification)
{
    return {{QStringLiteral("identifier"), notification.identifier},
            {QStringLiteral("fireTime"), notification.fireDate.toMSecsSinceEpoch()},
            {QStringLiteral("timeZone"), notification.timeZone},
            {QStringLiteral("alertBody"), notification.alertBody},
            {QStringLiteral("defaultSound"), notification.defaultSound},
            {QStringLiteral("badgeNumber"), notification.badgeNumber},
            {QStringLiteral("userInfo"), notification.userInfo}};
}

int toBadge(const QVariant &value)
{
    return static_cast<int>(std::clamp<qint64>(value.toLongLong(), 0, std::numeric_limits<int>::max()));
}

bool firesEarlier(const LocalNotification &left, const LocalNotification &right)
{
    return left.fireDate < right.fireDate;
}

} // namespace

LocalNotificationCenter::LocalNotificationCenter(const QString &folder, QString title, const Clock &clock,
                                                 NotificationPresenter &presenter, QObject *parent)
    : LocalNotifications(parent)
    , path_(folder + QStringLiteral("/LocalNotifications.plist"))
    , title_(std::move(title))
    , clock_(clock)
    , presenter_(presenter)
{
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, &LocalNotificationCenter::deliverDue);
    AtomicFile::removeLeftOvers(path_);
    read_ = load();
    for (const LocalNotification &missed : takeDue())
        presenter_.show(title_, missed.alertBody, missed.defaultSound);
    armTimer();
}

QString LocalNotificationCenter::scheduleLocalNotification(LocalNotification notification)
{
    const std::optional<QVariant> userInfo = PropertyList::normalized(notification.userInfo);
    if (!notification.fireDate.isValid() || !userInfo) {
        log("A local notification was refused: %@", userInfo ? "no fire date" : "its user information can't be kept");
        return {};
    }
    notification.identifier = QUuid::createUuid().toString(QUuid::WithoutBraces);
    notification.fireDate = notification.fireDate.toUTC();
    notification.userInfo = userInfo->toMap();
    // After those of the same moment: they fire in the order in which they were given.
    waiting_.insert(std::upper_bound(waiting_.begin(), waiting_.end(), notification, firesEarlier), notification);
    save();
    armTimer();
    return notification.identifier;
}

QList<LocalNotification> LocalNotificationCenter::scheduledLocalNotifications() const { return waiting_; }

void LocalNotificationCenter::cancelLocalNotification(const QString &identifier)
{
    const auto isMeant = [&](const LocalNotification &one) { return one.identifier == identifier; };
    if (waiting_.removeIf(isMeant) == 0)
        return;
    save();
    armTimer();
}

int LocalNotificationCenter::applicationIconBadgeNumber() const { return badgeNumber_; }

void LocalNotificationCenter::setApplicationIconBadgeNumber(int number)
{
    if (std::exchange(badgeNumber_, std::max(number, 0)) != badgeNumber_)
        save();
}

void LocalNotificationCenter::setApplicationActive(bool active) { applicationActive_ = active; }

void LocalNotificationCenter::deliverDue()
{
    if (!read_ || unsaved_)
        save();
    const QList<LocalNotification> due = takeDue();
    armTimer();
    for (const LocalNotification &notification : due) {
        if (!applicationActive_)
            presenter_.show(title_, notification.alertBody, notification.defaultSound);
        Q_EMIT didReceive(notification);
    }
}

// What is taken is off the disk before anyone hears of it, so nothing fires twice.
QList<LocalNotification> LocalNotificationCenter::takeDue()
{
    const QDateTime now = clock_.now();
    const auto firstLater = std::find_if(waiting_.cbegin(), waiting_.cend(),
                                         [&](const LocalNotification &one) { return one.fireDate > now; });
    QList<LocalNotification> due(waiting_.cbegin(), firstLater);
    if (due.isEmpty())
        return due;
    waiting_.erase(waiting_.cbegin(), firstLater);
    for (const LocalNotification &notification : std::as_const(due)) {
        if (notification.badgeNumber != 0)
            badgeNumber_ = std::max(notification.badgeNumber, 0);
    }
    save();
    return due;
}

void LocalNotificationCenter::armTimer()
{
    if (waiting_.isEmpty() && read_ && !unsaved_) {
        timer_.stop();
        return;
    }
    const qint64 wait = waiting_.isEmpty() ? longestWait : clock_.now().msecsTo(waiting_.constFirst().fireDate);
    timer_.start(static_cast<int>(std::clamp<qint64>(wait, 0, longestWait)));
}

// Adds what the file holds to what was scheduled before it could be read.
bool LocalNotificationCenter::load()
{
    const Result<QVariantMap> content = PropertyList::readOrSetAside(path_);
    if (!content) {
        log(content.error().message());
        return false;
    }
    if (badgeNumber_ == 0)
        badgeNumber_ = toBadge(content->value(badgeKey));
    const QVariantList entries = content->value(waitingKey).toList();
    for (const QVariant &element : entries) {
        const QVariantMap entry = element.toMap();
        const QVariant fireTime = entry.value(QStringLiteral("fireTime"));
        const QString identifier = entry.value(QStringLiteral("identifier")).toString();
        if (identifier.isEmpty() || fireTime.typeId() != QMetaType::LongLong) {
            log("%@ has an entry that is no notification", path_);
            continue;
        }
        waiting_.append({.identifier = identifier,
                         .fireDate = QDateTime::fromMSecsSinceEpoch(fireTime.toLongLong(), Qt::UTC),
                         .timeZone = entry.value(QStringLiteral("timeZone")).toString(),
                         .alertBody = entry.value(QStringLiteral("alertBody")).toString(),
                         .defaultSound = entry.value(QStringLiteral("defaultSound")).toBool(),
                         .badgeNumber = toBadge(entry.value(QStringLiteral("badgeNumber"))),
                         .userInfo = entry.value(QStringLiteral("userInfo")).toMap()});
    }
    std::stable_sort(waiting_.begin(), waiting_.end(), firesEarlier);
    return true;
}

void LocalNotificationCenter::save()
{
    unsaved_ = true;
    if (!read_ && !(read_ = load()))
        return;
    QVariantList entries;
    for (const LocalNotification &notification : waiting_)
        entries.append(toEntry(notification));
    const Result<void> written =
        PropertyList::write(QVariantMap{{badgeKey, badgeNumber_}, {waitingKey, entries}}, path_);
    unsaved_ = !written;
    if (!written)
        log(written.error().message());
}

} // namespace kesto
