#include "plan/CalendarMonth.h"

#include "model/DietDay.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "store/CoreDataManager.h"

#include <QLocale>

#include <algorithm>

namespace kesto
{

namespace
{

QLocale locale() { return QLocale(Platform::current().strings().preferredLanguage()); }

int weekdayOfCell(const QDate &day, Qt::DayOfWeek firstWeekday)
{
    const auto fromSunday = [](int weekday) { return weekday % CalendarMonth::daysPerWeek + 1; };
    return (fromSunday(day.dayOfWeek()) + fromSunday(firstWeekday) - 1) % CalendarMonth::daysPerWeek;
}

/// The label of the day's kind; of the first one if a record has several.
QString kindOf(const DietDay &day)
{
    if (day.chB().value_or(false))
        return localized(QStringLiteral("Ч/Б"));
    if (day.bO().value_or(false))
        return localized(QStringLiteral("Б/О"));
    return day.feast().value_or(false) ? localized(QStringLiteral("Пир")) : QString();
}

} // namespace

bool CalendarMonth::isFromStartOn(const QDateTime &date)
{
    const std::optional<QDateTime> start = CoreDataManager::sharedManager().startDietDay();
    return start && Platform::current().calendar().wholeUnits(Calendar::Unit::Day, *start, date) >= 0;
}

void CalendarMonth::showMonth(const QDate &month)
{
    month_ = QDate(month.year(), month.month(), 1);
    refresh();
    Q_EMIT monthChanged();
    Q_EMIT selectedIndexChanged();
}

void CalendarMonth::refresh()
{
    replaceCells(makeCells());
    const Qt::DayOfWeek first = Platform::current().calendar().firstWeekday();
    if (std::exchange(firstWeekday_, first) == first)
        return;
    Q_EMIT weekdayTitlesChanged();
    Q_EMIT monthChanged(); // the month may touch more weeks, or fewer
}

void CalendarMonth::refreshDate(const QDateTime &date)
{
    const int index = indexOf(date);
    if (index < 0)
        return;
    setRecord(cells_[index],
              DietDay::dayWithoutCreation(date, *CoreDataManager::sharedManager().managedObjectContext()));
    Q_EMIT dataChanged(this->index(index), this->index(index));
}

void CalendarMonth::setRecord(CalendarCell &cell, const DietDay *day)
{
    cell.kind = day != nullptr ? kindOf(*day) : QString();
    cell.hasJornal = day != nullptr && day->jornalDay() != nullptr;
}

QList<CalendarCell> CalendarMonth::makeCells() const
{
    const Calendar &calendar = Platform::current().calendar();
    const QDate today = calendar.dayOf(Platform::current().clock().now());
    const QDate first = calendar.firstDayOfWeek(month_);
    const auto days = first.daysTo(month_) + month_.daysInMonth();
    const int shown = static_cast<int>(days + daysPerWeek - 1) / daysPerWeek * daysPerWeek;

    FetchRequest request;
    request.predicate = attribute("date") >= calendar.startOfDay(first) &&
                        attribute("date") < calendar.startOfDay(first.addDays(shown));
    QHash<QDateTime, const DietDay *> records;
    for (const DietDay *day : CoreDataManager::sharedManager().managedObjectContext()->fetchOrLog<DietDay>(request)) {
        if (day->date() && !records.contains(*day->date())) // the record that dayWithoutCreation() finds
            records.insert(*day->date(), day);
    }

    QList<CalendarCell> cells;
    cells.reserve(shown);
    for (int i = 0; i < shown; ++i) {
        CalendarCell cell;
        cell.day = first.addDays(i);
        cell.date = calendar.startOfDay(cell.day);
        cell.dietPeriod = CoreDataManager::dietPeriodForCalendar(calendar, cell.date);
        cell.weekday = weekdayOfCell(cell.day, calendar.firstWeekday());
        cell.otherMonth = cell.day.month() != month_.month();
        cell.today = cell.day == today;
        cell.enabled = isFromStartOn(cell.date);
        cell.selected = cell.date == selectedDate_;
        setRecord(cell, records.value(cell.date));
        cells.append(cell);
    }
    return cells;
}

// Changes the rows in place, so that a view keeps its items.
void CalendarMonth::replaceCells(const QList<CalendarCell> &cells)
{
    const auto before = cells_.size();
    const auto after = cells.size();
    if (after < before) {
        beginRemoveRows({}, static_cast<int>(after), static_cast<int>(before) - 1);
        cells_.resize(after);
        endRemoveRows();
    }
    const auto common = std::min(before, after);
    for (qsizetype i = 0; i < common; ++i)
        cells_[i] = cells[i];
    if (common > 0)
        Q_EMIT dataChanged(index(0), index(static_cast<int>(common) - 1));
    if (after > before) {
        beginInsertRows({}, static_cast<int>(before), static_cast<int>(after) - 1);
        cells_.append(cells.mid(before));
        endInsertRows();
    }
}

void CalendarMonth::setSelectedDate(const QDateTime &date)
{
    const int before = selectedIndex();
    selectedDate_ = date;
    for (const int changed : {before, selectedIndex()}) {
        if (changed < 0)
            continue;
        cells_[changed].selected = cells_[changed].date == date;
        Q_EMIT dataChanged(index(changed), index(changed), {IsSelectedRole});
    }
    Q_EMIT selectedIndexChanged();
}

QString CalendarMonth::titleOf(const QDate &month)
{
    QString name = locale().standaloneMonthName(month.month());
    name.replace(0, 1, name.left(1).toUpper());
    return name + u' ' + QString::number(month.year());
}

QStringList CalendarMonth::weekdayTitles() const
{
    QStringList titles;
    const int first = Platform::current().calendar().firstWeekday();
    for (int i = 0; i < daysPerWeek; ++i)
        titles.append(locale().standaloneDayName((first - 1 + i) % daysPerWeek + 1, QLocale::ShortFormat));
    return titles;
}

int CalendarMonth::indexOf(const QDateTime &date) const
{
    const auto found = std::find_if(cells_.begin(), cells_.end(), [&](const auto &cell) { return cell.date == date; });
    return found == cells_.end() ? -1 : static_cast<int>(found - cells_.begin());
}

int CalendarMonth::walk(int from, int days)
{
    if (cells_.isEmpty())
        return -1;
    const QDate day = cells_[std::clamp(from, 0, static_cast<int>(cells_.size()) - 1)].day.addDays(days);
    if (day < cells_.first().day || day > cells_.last().day)
        showMonth(day);
    return static_cast<int>(cells_.first().day.daysTo(day));
}

int CalendarMonth::indexOfToday() const
{
    const auto found = std::find_if(cells_.begin(), cells_.end(), [](const auto &cell) { return cell.today; });
    return found == cells_.end() ? -1 : static_cast<int>(found - cells_.begin());
}

int CalendarMonth::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(cells_.size());
}

QVariant CalendarMonth::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const CalendarCell &cell = cells_[index.row()];
    switch (role) {
    case NumberRole:
        return cell.day.day();
    case PeriodRole:
        return cell.dietPeriod;
    case ColorRole:
        return CoreDataManager::colorForPeriod(cell.dietPeriod).value_or(Qt::transparent);
    case WeekdayRole:
        return cell.weekday;
    case IsOtherMonthRole:
        return cell.otherMonth;
    case IsTodayRole:
        return cell.today;
    case IsEnabledRole:
        return cell.enabled;
    case IsSelectedRole:
        return cell.selected;
    case AccessibleNameRole: {
        QStringList words{locale().toString(cell.day, QStringLiteral("d MMMM yyyy"))};
        for (const QString &word : {CoreDataManager::periodNameForDietPeriod(cell.dietPeriod), cell.kind}) {
            if (!word.isEmpty())
                words.append(word);
        }
        return words.join(QStringLiteral(", "));
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> CalendarMonth::roleNames() const
{
    return {{NumberRole, "number"},
            {PeriodRole, "period"},
            {ColorRole, "color"},
            {WeekdayRole, "weekday"},
            {IsOtherMonthRole, "isOtherMonth"},
            {IsTodayRole, "isToday"},
            {IsEnabledRole, "isEnabled"},
            {IsSelectedRole, "isSelected"},
            {AccessibleNameRole, "accessibleName"}};
}

} // namespace kesto
