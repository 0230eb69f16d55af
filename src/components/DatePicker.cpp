#include "components/DatePicker.h"

#include "platform/Clock.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"

#include <QLocale>

#include <algorithm>

namespace kesto
{

namespace
{

constexpr int yearsEachWay = 100;
constexpr int secondsPerMinute = 60;
constexpr int minutesPerHour = 60;
constexpr int hoursPerDay = 24;

QStringList numbers(int from, int count, int step = 1, int digits = 1)
{
    QStringList result;
    for (int index = 0; index < count; ++index)
        result.append(QStringLiteral("%1").arg(from + index * step, digits, 10, QLatin1Char('0')));
    return result;
}

QStringList withUnit(QStringList numbers, const QString &unit)
{
    for (QString &number : numbers)
        number += u' ' + unit;
    return numbers;
}

QStringList monthNames()
{
    const QLocale locale(Platform::current().strings().preferredLanguage());
    QStringList names;
    for (int month = 1; month <= 12; ++month)
        names.append(locale.standaloneMonthName(month, QLocale::LongFormat));
    return names;
}

} // namespace

DatePicker::DatePicker(Mode mode, int minuteInterval, QObject *parent)
    : Picker(parent)
    , mode_(mode)
    , minuteInterval_(minuteInterval)
    , duration_(minuteInterval * secondsPerMinute)
{
    Q_ASSERT(minuteInterval > 0 && minutesPerHour % minuteInterval == 0);
    connect(this, &Picker::selected, this, &DatePicker::read);
    setDate(Platform::current().clock().now());
}

void DatePicker::setDate(const QDateTime &date)
{
    const Calendar &calendar = Platform::current().calendar();
    date_ = date.toUTC();
    if (mode_ == Mode::Time) {
        const QTime time = calendar.timeOf(date_);
        date_ = calendar.instant(calendar.dayOf(date_),
                                 QTime(time.hour(), time.minute() - time.minute() % minuteInterval_));
    }
    const int year = calendar.dayOf(date_).year();
    if (firstYear_ == 0 || year < firstYear_ || year > firstYear_ + 2 * yearsEachWay)
        firstYear_ = year - yearsEachWay;
    turnWheels();
    Q_EMIT dateChanged();
}

void DatePicker::setCountDownDuration(int seconds)
{
    const int step = minuteInterval_ * secondsPerMinute;
    duration_ = std::clamp(seconds - seconds % step, step, hoursPerDay * minutesPerHour * secondsPerMinute - step);
    turnWheels();
    Q_EMIT dateChanged();
}

void DatePicker::turnWheels()
{
    const Calendar &calendar = Platform::current().calendar();
    const QStringList minutes = numbers(0, minutesPerHour / minuteInterval_, minuteInterval_, 2);
    switch (mode_) {
    case Mode::Date: {
        const QDate day = calendar.dayOf(date_);
        setContent({numbers(1, day.daysInMonth()), monthNames(), numbers(firstYear_, 2 * yearsEachWay + 1)},
                   {day.day() - 1, day.month() - 1, day.year() - firstYear_});
        break;
    }
    case Mode::Time: {
        const QTime time = calendar.timeOf(date_);
        setContent({numbers(0, hoursPerDay, 1, 2), minutes}, {time.hour(), time.minute() / minuteInterval_});
        break;
    }
    case Mode::CountDownTimer: {
        const int inMinutes = duration_ / secondsPerMinute;
        setContent({withUnit(numbers(0, hoursPerDay), localized(QStringLiteral("ч."))),
                    withUnit(minutes, localized(QStringLiteral("мин.")))},
                   {inMinutes / minutesPerHour, inMinutes % minutesPerHour / minuteInterval_});
        break;
    }
    }
}

void DatePicker::read()
{
    const Calendar &calendar = Platform::current().calendar();
    switch (mode_) {
    case Mode::Date: {
        const QDate month(firstYear_ + selectedRow(2), selectedRow(1) + 1, 1);
        const int day = std::min(selectedRow(0) + 1, month.daysInMonth());
        setDate(calendar.instant(QDate(month.year(), month.month(), day), calendar.timeOf(date_)));
        break;
    }
    case Mode::Time:
        setDate(calendar.instant(calendar.dayOf(date_), QTime(selectedRow(0), selectedRow(1) * minuteInterval_)));
        break;
    case Mode::CountDownTimer:
        setCountDownDuration((selectedRow(0) * minutesPerHour + selectedRow(1) * minuteInterval_) * secondsPerMinute);
        break;
    }
}

} // namespace kesto
