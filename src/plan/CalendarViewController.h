#pragma once

#include "components/ViewController.h"
#include "plan/CalFooterView.h"
#include "plan/CalendarMonth.h"
#include "plan/DietDayScreen.h"

#include <QColor>

#include <functional>

namespace kesto
{

class DietDay;

/// Makes the screens that the calendar opens. An empty function opens nothing.
struct CalendarScreens
{
    /// The journal of a day.
    std::function<std::unique_ptr<ViewController>(const QDateTime &date)> jornal;
    /// The screen of a day, for a phone; the delegate outlives it.
    std::function<std::unique_ptr<ViewController>(const QDateTime &date, int period,
                                                  DietDayDetailViewControllerDelegate *delegate)>
        day;
};

/// The calendar: a month and, below it, the selected day with its phase, its planned dishes and the footer for its
/// measures and kind. On a tablet the day screen beside the month replaces the list of dishes.
class CalendarViewController : public ViewController,
                               public CalFooterViewDelegate,
                               public DietDayDetailViewControllerDelegate
{
    Q_OBJECT
    Q_PROPERTY(kesto::CalendarMonth *month READ month CONSTANT)
    Q_PROPERTY(kesto::CalFooterView *footer READ footer CONSTANT)
    Q_PROPERTY(bool hasDayScreen READ hasDayScreen CONSTANT)
    Q_PROPERTY(bool dayDisabled READ isDayDisabled NOTIFY dayChanged)
    Q_PROPERTY(QString periodName READ periodName NOTIFY dayChanged)
    Q_PROPERTY(QColor periodColor READ periodColor NOTIFY dayChanged)
    Q_PROPERTY(QString dateText READ dateText NOTIFY dayChanged)
    Q_PROPERTY(QString currentWeight READ currentWeight NOTIFY dayChanged)
    Q_PROPERTY(QStringList dishes READ dishes NOTIFY dayChanged)
public:
    explicit CalendarViewController(CalendarScreens screens = {});

    /// The day screen beside this one on a tablet. It outlives this. Set it before the view loads.
    void setDayScreen(DietDayScreen *screen) { dayScreen_ = screen; }
    [[nodiscard]] bool hasDayScreen() const { return dayScreen_ != nullptr; }

    [[nodiscard]] CalendarMonth *month() { return &month_; }
    [[nodiscard]] CalFooterView *footer() { return &footer_; }
    [[nodiscard]] QDateTime currentDate() const { return currentDate_; }
    /// Whether the selected day is before the start of the diet.
    [[nodiscard]] bool isDayDisabled() const { return dietPeriod_ < 0; }
    [[nodiscard]] QString periodName() const;
    /// Invalid for a disabled day.
    [[nodiscard]] QColor periodColor() const;
    [[nodiscard]] QString dateText() const;
    [[nodiscard]] QString currentWeight() const { return currentWeight_; }
    /// The names of the planned dishes in display order.
    [[nodiscard]] const QStringList &dishes() const { return dishes_; }

    [[nodiscard]] bool calendarView(const QDateTime &shouldSelectDate) const;
    void calendarView(const CalendarCell &didSelectCell, const IndexPath &atIndexPath);
    void updateUIForDate(const QDateTime &date, int dietPeriod);
    Q_INVOKABLE void nextMonth();
    Q_INVOKABLE void previousMonth();
    /// Opens the screen of the current day unless it is shown beside this one.
    Q_INVOKABLE void openDaySettings();

    /// Selects the cell at a position of the month, if it may be selected.
    Q_INVOKABLE void touchCell(int index);
    /// Shows today's month.
    Q_INVOKABLE void showToday();

    void dietDayTypeButtonTouched(const CalKindButton &button, const QDateTime &date,
                                  const IndexPath &indexPath) override;
    void textFieldDidEndEditing(int tag, const QString &text) override;
    void openJornal() override;
    void dietDayDetailViewControllerDidUpdateDay() override;

Q_SIGNALS:
    void dayChanged();
    /// Asks the view to end the editing of a field.
    void editingShouldEnd();

protected:
    void viewDidLoad() override;
    void viewWillAppear() override;

private:
    void showStored();
    void moveMonth(int count);
    void readDay();
    /// Ends an edit: an empty day is deleted.
    void saveOrRemove(DietDay &day);
    void push(std::unique_ptr<ViewController> screen);

    CalendarScreens screens_;
    DietDayScreen *dayScreen_ = nullptr;
    CalendarMonth month_;
    CalFooterView footer_{this};
    QDateTime currentDate_;
    QDate currentDay_; // which begins at another instant when the time zone changes
    int dietPeriod_ = -1;
    QString currentWeight_;
    QStringList dishes_;
};

} // namespace kesto
