#include "journal/TimeDialog.h"

#include "components/AlertCenter.h"
#include "journal/TimeOfDay.h"
#include "model/JornalDay.h"
#include "model/TimeRow.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"

#include <QTimer>

#include <algorithm>
#include <chrono>

namespace kesto
{

namespace
{

constexpr int minuteStep = 5;
constexpr std::chrono::milliseconds refusalDelay(500);

/// A day on which no clock is changed, so that every time of day exists once.
constexpr int quietYear = 2001;
constexpr int january = 1;
constexpr int quietDay = 10;

} // namespace

void askForTime(const QString &title, const QString &button, QTime preset, QObject *context,
                const std::function<void(float time)> &picked)
{
    const Calendar &calendar = Platform::current().calendar();
    Alert alert;
    alert.title = title;
    alert.dateField = Alert::DateField{.mode = DatePicker::Mode::Time,
                                       .date = calendar.instant(QDate(quietYear, january, quietDay), preset),
                                       .minuteInterval = minuteStep};
    alert.buttons = {{localized(QStringLiteral("Отменить")), Alert::Role::Cancel}, {button}};
    alert.context = context;
    alert.answered = [picked](const AlertAnswer &answer) {
        if (!answer.isCancel)
            picked(timeOfDay(Platform::current().calendar().timeOf(answer.date)));
    };
    AlertCenter::sharedCenter().show(std::move(alert));
}

TimeRow *rowAtTime(const JornalDay &day, float time)
{
    const std::vector<TimeRow *> rows = day.timeRows();
    const auto found =
        std::find_if(rows.begin(), rows.end(), [time](const TimeRow *row) { return row->time() == time; });
    return found != rows.end() ? *found : nullptr;
}

void refuseSameTime(QObject *context)
{
    QTimer::singleShot(refusalDelay, context,
                       [] { showAlert({}, localized(QStringLiteral("Same time error message"))); });
}

} // namespace kesto
