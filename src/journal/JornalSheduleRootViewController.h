#pragma once

#include "journal/JornalTableViewController.h"

#include <QTimer>

#include <vector>

namespace kesto
{

class FoodBalanceRootViewController;
class TimeRow;
class WaterBalanceRootViewController;

/// The rows of a day by time, under a summary of its water and its protein. Shown, a day has a row at each of six hours
/// at least.
class JornalSheduleRootViewController : public JornalTableViewController
{
    Q_OBJECT
    Q_PROPERTY(QString waterText READ waterText NOTIFY headerChanged)
    Q_PROPERTY(QString proteinText READ proteinText NOTIFY headerChanged)
    Q_PROPERTY(double waterFraction READ waterFraction NOTIFY headerChanged)
    Q_PROPERTY(double proteinFraction READ proteinFraction NOTIFY headerChanged)
    Q_PROPERTY(QString autoFillTitle READ autoFillTitle NOTIFY headerChanged)
public:
    explicit JornalSheduleRootViewController(DietDay &dietDay);

    /// The tabs whose values the summary shows; they live as long as this.
    void setBalances(WaterBalanceRootViewController *water, FoodBalanceRootViewController *protein);

    void setDietDay(DietDay *day) override;
    void setJornalDay(JornalDay *day) override;
    /// The phase of the day, −1 to 3.
    [[nodiscard]] int dietPeriod() const { return dietPeriod_; }
    /// The rows by time.
    [[nodiscard]] const std::vector<TimeRow *> &content() const { return content_; }
    void reloadData() override;

    /// Asks for a time and adds a row at it.
    void addTimeRow();
    /// Done, or not done again; row is a place in content.
    void compleateButtonTouchedInRow(int row);
    /// Plans a dish for each of the hours of a meal, bran for 12:00 and a run for 18:00.
    Q_INVOKABLE void autoFillDay();
    void showErrorAlert();
    /// A line for each dish in its order: "·" and its name.
    [[nodiscard]] static QString dishesStringForTimeRow(const TimeRow &row);

    /// Reads the values of the other tabs.
    void updateHeaderLabels();
    /// Two lines: what was taken and the norm; "--" for less than 1.
    [[nodiscard]] const QString &waterText() const { return water_.text; }
    [[nodiscard]] const QString &proteinText() const { return protein_.text; }
    /// What was taken of the norm, 0 to 1.
    [[nodiscard]] double waterFraction() const { return water_.fraction; }
    [[nodiscard]] double proteinFraction() const { return protein_.fraction; }
    /// Empty when days of this phase are not filled automatically.
    [[nodiscard]] QString autoFillTitle() const;
    /// The user touched the summary of one of them.
    Q_INVOKABLE void openWater();
    Q_INVOKABLE void openProtein();

    /// The user swiped: −1 to the day before, 1 to the day after.
    Q_INVOKABLE void moveDay(int by);

    /// The first row of today that is neither done nor past; −1 when there is none.
    [[nodiscard]] int nextRow() const { return nextRow_; }

    /// The row whose editor stands beside this screen; null for none.
    void setEditedRow(const TimeRow *row);
    /// The editor of a row changed it.
    void rowChangedInEditor() { refresh(); }

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;

Q_SIGNALS:
    void headerChanged();
    /// A row was added, changed or deleted, here or in its editor.
    void rowsChanged();

protected:
    void viewWillAppear() override;
    void viewWillDisappear() override;
    void didSelectRow(const IndexPath &path, const RowId &id) override;
    void accessoryTouched(const IndexPath &path, const RowId &) override { compleateButtonTouchedInRow(path.row); }
    void commitDelete(const IndexPath &path, const RowId &id) override;

private:
    struct Summary
    {
        QString text;
        double fraction = 0;
        bool operator==(const Summary &) const = default;
    };
    [[nodiscard]] static Summary summaryOf(const QString &name, int currentValue, int normalValue);
    void readContent();
    void createDefaultRows();
    void addRowAt(float time);
    [[nodiscard]] TimeRow *rowOfHour(int hour) const;
    [[nodiscard]] int findNextRow() const;
    void updateNextRow();
    void refresh();

    WaterBalanceRootViewController *waterTab_ = nullptr;
    FoodBalanceRootViewController *proteinTab_ = nullptr;
    int dietPeriod_ = -1;
    std::vector<TimeRow *> content_;
    int nextRow_ = -1;
    const TimeRow *editedRow_ = nullptr;
    Summary water_;
    Summary protein_;
    QTimer minute_;
};

} // namespace kesto
