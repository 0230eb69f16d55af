#pragma once

#include "components/TableViewController.h"
#include "recipes/DishDelegates.h"

#include <QHash>

namespace kesto
{

class DishInDietDay;
class JornalDay;
class DietDay;
class ManagedObjectContext;
class TimeObject;
class TimeRow;
class WaterPicker;

/// Edits one row of the journal: its time, its items, a text, two dishes and a reminder. Every change is saved at once.
class TimeRowDetailViewController : public TableViewController, public AddDishDelegate
{
    Q_OBJECT
public:
    /// The rows between are the items of types 1 to 8.
    enum Row { WaterRow, OtherRow = 9, FirstDishRow, SecondDishRow, ReminderRow };
    static constexpr int rowCount = 13;
    /// The tags of the fields: the text; for the first value of a type its number, for the second one so much more.
    static constexpr int otherTag = 1000;
    static constexpr int secondValueTag = 100;

    /// The records live as long as their context; a row that is deleted meanwhile is shown no more.
    explicit TimeRowDetailViewController(TimeRow &timeRow);
    ~TimeRowDetailViewController() override;

    void setDietDay(DietDay *day) { dietDay_ = day; }
    void setJornalDay(JornalDay *day) { jornalDay_ = day; }
    void setTimeRow(TimeRow &timeRow);
    /// Null when it is deleted.
    [[nodiscard]] TimeRow *timeRow() const;
    /// The items of the row by type.
    [[nodiscard]] const QHash<int, TimeObject *> &timeObjects() const { return timeObjects_; }
    /// The reminder was set or cleared since the row was.
    [[nodiscard]] bool valuesChanged() const { return valuesChanged_; }
    /// Whether the row's reminder is on, as the switch shows it.
    [[nodiscard]] bool reminderSwitcher() const { return reminderOn_; }

    /// Stores what was typed into the field of a tag.
    Q_INVOKABLE void endEditing(int tag, const QString &text);
    /// Stores the portion of the picker, 0 for none.
    void waterValueChanged(int portion);
    /// Asks for another time.
    void changeTime();
    /// Sets the reminder or clears it.
    void switchReminding(bool on);
    /// The reminder is off, whatever it was.
    void cxAlertViewDidCanceled();
    void addDish(Dish &dish) override;
    void addDishToDietDay(Dish &dish, ManagedObjectContext &toManagedObjectContext);

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;
Q_SIGNALS:
    /// The row has other contents than before.
    void rowChanged();

protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewWillDisappear() override;
    void didSelectRow(const IndexPath &path, const RowId &id) override;
    void accessoryTouched(const IndexPath &path, const RowId &id) override;
    void commitDelete(const IndexPath &path, const RowId &id) override;
    void switchChanged(const IndexPath &path, const RowId &id, bool on) override;
    void textFieldDidEndEditing(const IndexPath &path, const RowId &id, const QString &text) override;

private:
    [[nodiscard]] TableRow itemRow(int type) const;
    [[nodiscard]] TableRow dishRow(int row) const;
    [[nodiscard]] DishInDietDay *dishInSlot(int slot) const;
    TimeObject &itemOfType(int type);
    void removeItem(int type);
    void storeValue(int tag, const QString &text);
    void changed();
    void turnReminder(bool on);
    void setReminder();
    void refuseReminder(const QString &title);
    void setTime(float time);
    void chooseDish();
    void openFavorites();
    void openDish(Dish &dish);

    TimeRow *timeRow_ = nullptr;
    DietDay *dietDay_ = nullptr;
    JornalDay *jornalDay_ = nullptr;
    QHash<int, TimeObject *> timeObjects_;
    std::unique_ptr<WaterPicker> waterPicker_;
    int touchedSlot_ = 0;
    bool reminderOn_ = false;
    bool valuesChanged_ = false;
};

} // namespace kesto
