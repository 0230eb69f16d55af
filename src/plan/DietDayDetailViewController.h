#pragma once

#include "components/TableViewControllerWithEcternalPicker.h"
#include "plan/CalculatorWheels.h"
#include "plan/DietDayScreen.h"
#include "recipes/DishDelegates.h"

#include <QDateTime>

#include <vector>

namespace kesto
{

class DietDay;
class Dish;
class DishInDietDay;
class ManagedObjectContext;

/// One day of the diet: its weight, its kind, and its planned dishes. Loading a day creates its record.
class DietDayDetailViewController : public TableViewControllerWithEcternalPicker,
                                    public DietDayScreen,
                                    public AddDishDelegate
{
    Q_OBJECT
public:
    /// AddSection is hidden while the table is being edited.
    enum Section { DaySection, DishesSection, AddSection };
    enum AddRow { AddDishRow, AddFavoriteRow, AddQuickDishRow, AutoFillRow };
    /// Of the day's section; its other rows are the kinds, whose identity is their attribute of the day.
    static constexpr int weightRow = 0;
    /// A day with this many dishes is not filled automatically.
    static constexpr int filledDay = 4;

    /// Shows no day until setDate(). The delegate outlives this or is null.
    explicit DietDayDetailViewController(DietDayDetailViewControllerDelegate *delegate = nullptr);
    /// Shows the day that begins at a date, in its phase.
    DietDayDetailViewController(const QDateTime &date, int dietPeriod, DietDayDetailViewControllerDelegate *delegate);

    void setDate(const QDateTime &date, int period) override;
    void reloadDay() override;
    void setDisbledDay(bool disabled) override;
    [[nodiscard]] bool disbledDay() const { return disbledDay_; }
    [[nodiscard]] QDateTime date() const { return date_; }
    [[nodiscard]] int dietPeriod() const { return dietPeriod_; }
    /// The record of the day, created again if it was deleted. Null without a date, for a disabled day, and when the
    /// store cannot be read.
    [[nodiscard]] DietDay *day();
    /// The planned dishes in display order.
    [[nodiscard]] const std::vector<DishInDietDay *> &content() const { return content_; }
    void createContent();

    void addDish(Dish &dish) override;
    void addDishToDietDay(Dish &dish, ManagedObjectContext &toManagedObjectContext);
    /// Plans the dishes that the store manager proposes, unless the day has enough. They are saved with the next
    /// change, at the latest when the user leaves the day.
    void autoFillDay();

    [[nodiscard]] int numberOfSections() const override;
    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;
    /// The day's title when no navigation bar shows it.
    [[nodiscard]] QString titleForHeaderInSection(int section) const override;
    void setEditing(bool editing) override;
    /// A button that turns editing on and off; hidden while there is nothing to edit.
    [[nodiscard]] std::unique_ptr<BarButtonItem> editDishesButtonItem();

Q_SIGNALS:
    /// The user picked another weight.
    void weightChanged();
    /// The dishes, the day or its disabled state changed.
    void contentChanged();

protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewWillDisappear() override;
    void didSelectRow(const IndexPath &path, const RowId &id) override;
    void commitDelete(const IndexPath &path, const RowId &id) override;
    void moveRow(const IndexPath &from, const IndexPath &to) override;
    [[nodiscard]] int numberOfComponentsInPicker() const override { return wheels().numberOfComponents(); }
    [[nodiscard]] int numberOfRowsInComponent(int component) const override { return wheels().numberOfRows(component); }
    [[nodiscard]] QString titleForRow(int row, int component) const override { return wheels().title(row, component); }
    [[nodiscard]] int selectedRowInComponent(int component) const override;
    void pickerDidSelectRow(int row, int component) override;

private:
    [[nodiscard]] CalculatorWheels wheels() const { return {CalculatorInput::Weight, metrickSystem_}; }
    [[nodiscard]] int kindCount() const;
    [[nodiscard]] float shownOnWheels() const;
    [[nodiscard]] TableRow dayRow(int row) const;
    [[nodiscard]] TableRow dishRow(const DishInDietDay &planned) const;
    [[nodiscard]] TableRow addRow(int row) const;
    void refresh();
    void showDay();
    void toggleKind(const QString &kind);
    DishInDietDay *plan(Dish &dish);
    void openCatalogue();
    void openFavorites();
    void openChoice(std::unique_ptr<ViewController> choice, AddRow from);
    void openDish(Dish &dish);

    DietDayDetailViewControllerDelegate *delegate_;
    QDateTime date_;
    int dietPeriod_ = -1;
    bool disbledDay_ = false;
    DietDay *day_ = nullptr;
    std::vector<DishInDietDay *> content_;
    QString kgString_;
    bool metrickSystem_ = true;
};

} // namespace kesto
