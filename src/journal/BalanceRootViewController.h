#pragma once

#include "journal/JornalTableViewController.h"

namespace kesto
{

/// A tab that sets what was taken in on a day against what the day should bring. The rows are the records of the day.
class BalanceRootViewController : public JornalTableViewController
{
    Q_OBJECT
    Q_PROPERTY(int currentValue READ currentValue NOTIFY valuesChanged)
    Q_PROPERTY(int normalValue READ normalValue NOTIFY valuesChanged)
    Q_PROPERTY(QString progressText READ progressText NOTIFY valuesChanged)
    Q_PROPERTY(QString currentText READ currentText NOTIFY valuesChanged)
    Q_PROPERTY(QString normalText READ normalText NOTIFY valuesChanged)
    Q_PROPERTY(double progress READ progress NOTIFY valuesChanged)
    Q_PROPERTY(bool hasRows READ hasRows NOTIFY rowsChanged)
public:
    /// Both in the unit of the tab; 0 before they are computed.
    [[nodiscard]] int currentValue() const { return currentValue_; }
    [[nodiscard]] int normalValue() const { return normalValue_; }

    /// "1200 мл/2400 мл"; null while there is no norm.
    [[nodiscard]] QString progressText() const;
    /// The text before the stroke, which stands out, and the rest with the stroke.
    [[nodiscard]] QString currentText() const;
    [[nodiscard]] QString normalText() const;
    /// What was taken in as a share of the norm, above 1 when it was more; 0 while there is no norm.
    [[nodiscard]] double progress() const;
    [[nodiscard]] bool hasRows() const { return numberOfRowsInSection(0) > 0; }

    void setJornalDay(JornalDay *day) override;
    /// Reads everything anew from the store: the records, both values, the rows.
    void reloadData() override;

Q_SIGNALS:
    /// currentValue() or normalValue() is another than before.
    void valuesChanged();
    void rowsChanged();

protected:
    /// unit: the key of the unit's text.
    BalanceRootViewController(DietDay &dietDay, QString unit);

    void viewWillAppear() override;

    /// Reads the records of the day and sets currentValue.
    virtual void readIntake() = 0;
    virtual void readNorm() = 0;
    void setCurrentValue(int value) { currentValue_ = value; }
    void setNormalValue(int value) { normalValue_ = value; }
    /// Tells views of the values when they are others than before.
    void updateProgressViews();
    /// Saves a change of the day's records and reads them anew.
    void saveAndReload();

private:
    QString unit_;
    int currentValue_ = 0;
    int normalValue_ = 0;
    int shownCurrentValue_ = 0;
    int shownNormalValue_ = 0;
};

} // namespace kesto
