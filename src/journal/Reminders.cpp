#include "journal/Reminders.h"

#include "journal/TimeObjectAdditions.h"
#include "journal/TimeRowAdditions.h"
#include "model/DietDay.h"
#include "model/JornalDay.h"
#include "model/TimeObject.h"
#include "model/TimeRow.h"
#include "platform/Platform.h"
#include "platform/StringFormat.h"

#include <algorithm>
#include <cmath>

namespace kesto
{

namespace
{

constexpr int minutesPerHour = 60;
constexpr int hoursPerDay = 24;
constexpr float minuteDigits = 100;

QString idOf(const LocalNotification &notification)
{
    return notification.userInfo.value(QStringLiteral("id")).toString();
}

LocalNotifications &notifications() { return Platform::current().notifications(); }

const DietDay *dayOf(const TimeRow &row)
{
    const JornalDay *jornal = row.joranlDay();
    return jornal != nullptr ? jornal->day() : nullptr;
}

bool isOfAnotherRow(const LocalNotification &notification, const TimeRow &row)
{
    const std::vector<TimeRow *> rows = row.joranlDay()->timeRows();
    return std::any_of(rows.begin(), rows.end(), [&](const TimeRow *other) {
        return other != &row && other->remind() == true && idStirng(*other) == idOf(notification);
    });
}

} // namespace

std::optional<QDateTime> reminderFireDate(const TimeRow &row)
{
    const DietDay *day = dayOf(row);
    if (day == nullptr || !day->date() || !row.time())
        return std::nullopt;
    const Calendar &calendar = Platform::current().calendar();
    const float time = *row.time();
    const float hour = std::floor(time);
    const bool hasMinutes = plainText(time).contains(u'.');
    const int minute =
        hasMinutes ? static_cast<int>((time - hour) * minuteDigits) + 1 : calendar.timeOf(*day->date()).minute();
    // The minute after 59 is the next hour, or the next day.
    const int minutes = static_cast<int>(hour) * minutesPerHour + minute;
    constexpr int minutesPerDay = hoursPerDay * minutesPerHour;
    return calendar.firstInstant(calendar.dayOf(*day->date()).addDays(minutes / minutesPerDay),
                                 QTime(minutes % minutesPerDay / minutesPerHour, minutes % minutesPerHour));
}

LocalNotification reminderNotification(const TimeRow &row, const QDateTime &fireDate)
{
    std::vector<TimeObject *> items = row.timeObjects();
    std::stable_sort(items.begin(), items.end(),
                     [](const TimeObject *one, const TimeObject *other) { return one->type() < other->type(); });
    QStringList texts;
    for (const TimeObject *item : items)
        texts.append(notificationDescription(*item));
    return {.fireDate = fireDate,
            .timeZone = QString::fromUtf8(Platform::current().calendar().timeZone().id()),
            .alertBody = texts.join(QStringLiteral(", ")),
            .defaultSound = true,
            .userInfo = {{QStringLiteral("id"), idStirng(row)}}};
}

void cancelReminder(const TimeRow &row)
{
    const QList<LocalNotification> scheduled = notifications().scheduledLocalNotifications();
    const QString id = idStirng(row);
    auto found = std::find_if(scheduled.rbegin(), scheduled.rend(),
                              [&](const LocalNotification &each) { return idOf(each) == id; });
    // Set before the row's time was changed, it still has the row's old identifier and fires when the row says.
    if (const DietDay *day = dayOf(row); found == scheduled.rend() && day != nullptr && row.reminderDate()) {
        const QString ofDay = stringWithFormat("%@ - ", day->date());
        found = std::find_if(scheduled.rbegin(), scheduled.rend(), [&](const LocalNotification &each) {
            return each.fireDate == *row.reminderDate() && idOf(each).startsWith(ofDay) && !isOfAnotherRow(each, row);
        });
    }
    if (found != scheduled.rend())
        notifications().cancelLocalNotification(found->identifier);
}

} // namespace kesto
