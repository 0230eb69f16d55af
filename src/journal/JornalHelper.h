#pragma once

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

namespace kesto
{

class CoreDataManager;
class DietDay;
class JornalTabBarController;
class JornalTableViewController;

/// The day that an open journal shows, and the way from one day to another. One for each open journal, which owns it.
/// The tabs are told to move; what they show is their affair.
class JornalHelper : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString dateText READ dateText NOTIFY dateChanged)
public:
    /// The journal of the day that holds a moment, with its schedule in front. Null when the store cannot be read.
    [[nodiscard]] static std::unique_ptr<JornalTabBarController> jornalTabBarVCForDate(const QDateTime &date);
    [[nodiscard]] static std::unique_ptr<JornalTabBarController> jornalTabBarVCForToday();

    /// The day of exactly this instant with a journal; what is missing is made and saved at once. Null when the store
    /// cannot be read.
    [[nodiscard]] static DietDay *dietDayForDate(const QDateTime &date);

    /// The time of day as hours.minutes: 18:30 is 18.3. The same in every locale: where the user's clock reads 6:30 PM,
    /// or writes other digits, this is the time of a clock of 24 hours, so that the records of a day sort by time.
    [[nodiscard]] static float currentTime();

    explicit JornalHelper(DietDay &dietDay);
    /// Leaves the day.
    ~JornalHelper() override;

    /// The tabs that follow the day; they outlive this.
    void setScreens(const QList<JornalTableViewController *> &screens) { screens_ = screens; }
    [[nodiscard]] const QList<JornalTableViewController *> &screens() const { return screens_; }

    /// Null when the day was left or its record is deleted.
    [[nodiscard]] DietDay *dietDay() const;
    /// Day and month, "5 May", in the language of the interface.
    [[nodiscard]] QString dateText() const;

    Q_INVOKABLE void goToPrevisiousDay();
    Q_INVOKABLE void goToNextDay();
    /// Leaves the day for another, given by its beginning.
    void goToDate(const QDateTime &date);

    /// Deletes the empty rows of the day with their reminders, its journal when nothing else is in it, and the day when
    /// that was all it had. Records of water and of protein do not keep a journal. Saves when something was deleted.
    /// Nothing happens while another open journal shows the same day, nor the second time.
    void deallocCurrentDay();

Q_SIGNALS:
    void dateChanged();

private:
    using OpenJornals = QList<JornalHelper *>;
    struct Registry;
    void step(int days);

    QPointer<CoreDataManager> manager_; // gone when the program ends around an open journal
    std::shared_ptr<OpenJornals> open_;
    DietDay *dietDay_;
    QDateTime date_;
    QList<JornalTableViewController *> screens_;
};

} // namespace kesto
