#pragma once

#include "components/TableViewController.h"
#include "recipes/DishChoice.h"

#include <QSet>
#include <QVariantList>

namespace kesto
{

class DietDay;

/// The favourite dishes by first letter, for opening one or for choosing one for a day.
class FavoritesViewController : public TableViewController, public DeleteDishDelegate
{
    Q_OBJECT
    Q_PROPERTY(QString emptyText READ emptyText NOTIFY contentChanged)
public:
    FavoritesViewController();

    void setDay(DietDay *day) { day_ = day; }
    /// The phase of the day, 0 to 3; a day before the diet has none, and all favourites suit it.
    void setPeriod(int period) { period_ = period; }
    /// Set it before the view loads.
    void setIsAddMode(bool isAddMode) { choice_.setAddMode(isAddMode); }
    /// The delegate outlives this.
    void setDelegate(AddDishDelegate *delegate) { choice_.setDelegate(delegate); }

    /// The sections: dictionaries of "section name", a letter, and "section content", its dishes.
    [[nodiscard]] const QVariantList &content() const { return content_; }
    /// The text shown when there are no rows.
    [[nodiscard]] QString emptyText() const;

    void reloadData() override;
    void dishDeleted() override { reloadData(); }
    /// Whether this dish is planned for the day. A dish that only the day's journal has does not count.
    [[nodiscard]] bool dayAlreadyIncludeDish(const Dish &dish) const;
    /// Offers the dish of a touched check mark to the delegate.
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
    void didSelectRow(const IndexPath &path, const RowId &id) override;
    void accessoryTouched(const IndexPath &path, const RowId &) override { selectDishButtonTouchedAtIndexPath(path); }

private:
    [[nodiscard]] Dish *dishAt(const IndexPath &path) const;

    DietDay *day_ = nullptr;
    int period_ = 0;
    DishChoice choice_;
    QVariantList content_;
    QSet<const Dish *> included_; // set while the rows are made
};

} // namespace kesto
