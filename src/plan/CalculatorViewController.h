#pragma once

#include "components/TableViewControllerWithEcternalPicker.h"
#include "plan/CalculatorWheels.h"

#include <QDateTime>

#include <array>
#include <optional>

namespace kesto
{

/// The calculator: takes the body's measures, shows the results, and starts the diet.
class CalculatorViewController : public TableViewControllerWithEcternalPicker
{
    Q_OBJECT
public:
    enum Section { InputsSection, ResultsSection, PhasesSection, StartSection };
    enum ResultsRow { BmiRow, BodyStatusRow, IdealWeightRow, WantedWeightRow, DifferenceRow };
    /// Tags of the fields, which are their rows' identities: section × 100 + row.
    static constexpr int wantedWeightTag = ResultsSection * 100 + WantedWeightRow;
    static constexpr int firstPeriodTag = PhasesSection * 100;
    static constexpr int periodCount = 3;
    /// The row of the bar that shows the phases, below their fields.
    static constexpr int phaseBarRow = periodCount;
    /// The limit of a typed Attack, in days. Every day of it becomes a record.
    static constexpr int longestAttack = 36500;

    explicit CalculatorViewController(QObject *parent = nullptr);

    void setUpData();
    /// The labels of the first three sections; those of the first are also the keys under which the inputs are stored.
    [[nodiscard]] static const QList<QStringList> &keys();
    /// The value of an input row while nothing is stored; invalid for other rows.
    [[nodiscard]] static QVariant defaultValueForIndex(int index);
    [[nodiscard]] static QStringList handTypes() { return CalculatorWheels::handTypes(); }
    /// The word after an age. In Russian it depends on the last digit only.
    [[nodiscard]] static QString agePrefixForValue(const QVariant &value);

    /// Computes every result again. Replaces typed lengths of phases; keeps a typed wanted weight.
    void calculateDiet();
    /// Stores the value of the open input's wheels and resets the wanted weight to the ideal one.
    void pickerView(int didSelectRow, int inComponent);
    /// Takes a typed wanted weight, always in kilograms, or a typed length of a phase.
    void textFieldDidEndEditing(int tag, const QString &text);

    /// Asks for the first day of the diet.
    void startDietIntro();
    /// Asks whether the earlier days may be deleted.
    void showAlert();
    void alertView(int clickedButtonAtIndex);
    /// Deletes the diet days before the moment, stores the plan from the beginning of its day, and opens the calendar.
    void startDietOn(const QDateTime &date);
    /// Marks days as pure protein, from a date in steps of 86,400 seconds.
    void makeAttackPeriodForDate(const QDateTime &date, int periodDays);

    [[nodiscard]] int handType() const { return handType_; }
    [[nodiscard]] float bmi() const { return bmi_; }
    [[nodiscard]] QString bodyStatus() const { return bodyStatus_; }
    [[nodiscard]] float idealWeidht() const { return idealWeidht_; }
    [[nodiscard]] float wantedWeight() const { return wantedWeight_; }
    [[nodiscard]] float difWeight() const { return difWeight_; }
    [[nodiscard]] int period1() const { return periods_[0]; }
    [[nodiscard]] int period2() const { return periods_[1]; }
    [[nodiscard]] int period3() const { return periods_[2]; }
    [[nodiscard]] bool calculated() const { return calculated_; }
    [[nodiscard]] bool metrickSystem() const { return metrickSystem_; }
    [[nodiscard]] QString kgString() const { return kgString_; }
    [[nodiscard]] QString cmString() const { return cmString_; }
    /// The picked date while the user is asked about the earlier days.
    [[nodiscard]] const std::optional<QDateTime> &startDiedDate() const { return startDiedDate_; }

    [[nodiscard]] int numberOfSections() const override { return StartSection + 1; }
    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;
    /// Empty, which leaves a gap above the section.
    [[nodiscard]] QString titleForHeaderInSection(int section) const override;

protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void didSelectRow(const IndexPath &path, const RowId &id) override;
    /// Updates the bar while a length is typed.
    void textFieldTextDidChange(const IndexPath &path, const RowId &id, const QString &text) override;
    void textFieldDidEndEditing(const IndexPath &path, const RowId &id, const QString &text) override;
    [[nodiscard]] int numberOfComponentsInPicker() const override { return wheels().numberOfComponents(); }
    [[nodiscard]] int numberOfRowsInComponent(int component) const override { return wheels().numberOfRows(component); }
    [[nodiscard]] QString titleForRow(int row, int component) const override { return wheels().title(row, component); }
    [[nodiscard]] int selectedRowInComponent(int component) const override;
    void pickerDidSelectRow(int row, int component) override { pickerView(row, component); }

private:
    /// The wheels of the open input.
    [[nodiscard]] CalculatorWheels wheels() const;
    [[nodiscard]] static QVariant storedValue(int index);
    [[nodiscard]] TableRow inputRow(int row) const;
    [[nodiscard]] TableRow resultRow(int row) const;
    [[nodiscard]] TableRow periodRow(int row) const;
    [[nodiscard]] TableRow barRow(const std::array<int, periodCount> &periods) const;
    [[nodiscard]] TableRow fieldRow(const QString &title, const IndexPath &path, const QString &text,
                                    const QString &unit) const;
    [[nodiscard]] double shownWeight(float kilograms) const;
    void dialogAnswered(const QDateTime &date);

    QList<QStringList> content_; // titles of the first three sections
    QString kgString_;
    QString cmString_;
    bool metrickSystem_ = true;
    int handType_ = 1;
    float bmi_ = 0;
    QString bodyStatus_;
    float idealWeidht_ = 0;
    float wantedWeight_ = 0;
    float difWeight_ = 0;
    std::array<int, periodCount> periods_{};
    bool calculated_ = false;
    std::optional<QDateTime> startDiedDate_;
};

} // namespace kesto
