#pragma once

#include "components/TableViewController.h"
#include "recipes/DishChoice.h"

#include <QSet>
#include <QVariantList>

namespace kesto
{

class DietDay;

/// The favourite dishes by first letter: to open one, or to choose one for a day.
class FavoritesViewController : public TableViewController, public DeleteDishDelegate
{
    Q_OBJECT
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY contentChanged)
public:
    FavoritesViewController();

    void setDay(DietDay *day) { day_ = day; }
    /// The phase of the day, 0 to 3.
    void setPeriod(int period) { period_ = period; }
    /// Before the view is loaded.
    void setIsAddMode(bool isAddMode) { choice_.setAddMode(isAddMode); }
    /// Outlives this.
    void setDelegate(AddDishDelegate *delegate) { choice_.setDelegate(delegate); }

    /// The sections: each a dictionary of "section name", a letter, and "section content", its dishes.
    [[nodiscard]] const QVariantList &content() const { return content_; }
    /// What stands in place of the rows when there are none.
    [[nodiscard]] QString emptyText() const;

    void reloadData() override;
    void dishDeleted() override { reloadData(); }
    /// Whether this dish is planned for the day. What only the day's journal has does not count.
    [[nodiscard]] bool dayAlreadyIncludeDish(const Dish &dish) const;
    /// The user touched a row's check mark: the delegate gets the dish.
    void selectDishButtonTouchedAtIndexPath(const IndexPath &path);

    [[nodiscard]] int numberOfSections() const override { return static_cast<int>(content_.size()); }
    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;
    [[nodiscard]] QString titleForHeaderInSection(int section) const override;

Q_SIGNALS:
    void contentChanged();

protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void didSelectRow(const IndexPath &path) override;
    void accessoryTouched(const IndexPath &path) override { selectDishButtonTouchedAtIndexPath(path); }

private:
    [[nodiscard]] Dish *dishAt(const IndexPath &path) const;

    DietDay *day_ = nullptr;
    int period_ = 0;
    DishChoice choice_;
    QVariantList content_;
    QSet<const Dish *> included_; // while the rows are made
};

} // namespace kesto
