#pragma once

#include "components/IndexPath.h"

#include <QAbstractListModel>
#include <QDateTime>
#include <QStringList>

#include <optional>

namespace kesto
{

class DietDay;

/// A day as the month shows it.
struct CalendarCell
{
    QDate day;
    QDateTime date; ///< when the day begins
    int dietPeriod = -1;
    int weekday = 0; ///< (calendar weekday + first weekday − 1) mod 7, both counted from Sunday as 1
    QString kind;    ///< short label of the day's kind; null for none
    bool hasJornal = false;
    bool otherMonth = false;
    bool today = false;
    bool enabled = false; ///< may be selected
    bool selected = false;
    bool operator==(const CalendarCell &) const = default;
};

/// The days of all weeks of a month, from the user's first weekday on. One fetch reads the records of all days.
class CalendarMonth : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title NOTIFY monthChanged)
    Q_PROPERTY(QString previousTitle READ previousTitle NOTIFY monthChanged)
    Q_PROPERTY(QString nextTitle READ nextTitle NOTIFY monthChanged)
    Q_PROPERTY(int weeks READ weeks NOTIFY monthChanged)
    Q_PROPERTY(QStringList weekdayTitles READ weekdayTitles NOTIFY weekdayTitlesChanged)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged)
public:
    enum Role {
        NumberRole = Qt::UserRole, ///< number: the day of the month
        PeriodRole,                ///< period: the phase, −1 before the start
        ColorRole,                 ///< color: the phase's; transparent before the start
        WeekdayRole,               ///< weekday
        IsOtherMonthRole,          ///< isOtherMonth
        IsTodayRole,               ///< isToday
        IsEnabledRole,             ///< isEnabled
        IsSelectedRole,            ///< isSelected
        AccessibleNameRole         ///< accessibleName: date, phase and kind in words
    };
    static constexpr int daysPerWeek = 7;

    using QAbstractListModel::QAbstractListModel;

    /// Shows the month of a day.
    void showMonth(const QDate &month);
    /// The first day of the shown month.
    [[nodiscard]] QDate month() const { return month_; }
    /// Reads the shown days again.
    void refresh();
    /// Reads one day again if it is shown.
    void refreshDate(const QDateTime &date);

    [[nodiscard]] QDateTime selectedDate() const { return selectedDate_; }
    /// Selects the day that begins at a date. It need not be shown.
    void setSelectedDate(const QDateTime &date);

    /// Month and year.
    [[nodiscard]] QString title() const { return titleOf(month_); }
    [[nodiscard]] QString previousTitle() const { return titleOf(month_.addMonths(-1)); }
    [[nodiscard]] QString nextTitle() const { return titleOf(month_.addMonths(1)); }
    [[nodiscard]] int weeks() const { return static_cast<int>(cells_.size()) / daysPerWeek; }
    [[nodiscard]] QStringList weekdayTitles() const;
    /// The position of the selected day; −1 when it is not shown.
    [[nodiscard]] int selectedIndex() const { return indexOf(selectedDate_); }
    [[nodiscard]] const QList<CalendarCell> &cells() const { return cells_; }
    [[nodiscard]] int indexOf(const QDateTime &date) const;
    /// The position of the day that is some days after another position. Shows its month if necessary.
    Q_INVOKABLE int walk(int from, int days);
    /// The position of today; −1 when it is not shown.
    [[nodiscard]] Q_INVOKABLE int indexOfToday() const;
    /// Week and column of a cell.
    [[nodiscard]] static IndexPath indexPathOf(int index) { return {index / daysPerWeek, index % daysPerWeek}; }

    /// Whether the day that begins at a date is on or after the start of the diet.
    [[nodiscard]] static bool isFromStartOn(const QDateTime &date);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void monthChanged();
    void weekdayTitlesChanged();
    void selectedIndexChanged();

private:
    [[nodiscard]] static QString titleOf(const QDate &month);
    [[nodiscard]] QList<CalendarCell> makeCells() const;
    static void setRecord(CalendarCell &cell, const DietDay *day);
    void replaceCells(const QList<CalendarCell> &cells);

    QDate month_;
    QDateTime selectedDate_;
    Qt::DayOfWeek firstWeekday_ = Qt::Monday; // of the cells
    QList<CalendarCell> cells_;
};

} // namespace kesto
