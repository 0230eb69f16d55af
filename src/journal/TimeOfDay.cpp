#include "journal/TimeOfDay.h"

#include "platform/StringFormat.h"

#include <algorithm>
#include <cmath>

namespace kesto
{

namespace
{

constexpr float lastTime = 23.59F;
constexpr int lastMinute = 59;
constexpr int minuteDigits = 100;

} // namespace

float timeOfDay(QTime time) { return time.toString(QStringLiteral("H:mm")).replace(u':', u'.').toFloat(); }

QTime clockTime(float timeOfDay)
{
    if (!(timeOfDay > 0)) // nor is it a number
        return {0, 0};
    const auto digits = static_cast<int>(std::lround(std::min(timeOfDay, lastTime) * minuteDigits));
    return {digits / minuteDigits, std::min(digits % minuteDigits, lastMinute)};
}

QString timeText(float timeOfDay) { return stringWithFormat("%0.2f", timeOfDay).replace(u'.', u':'); }

} // namespace kesto
