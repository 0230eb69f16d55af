#pragma once

#include "components/SearchBarDietTableViewController.h"
#include "recipes/DishChoice.h"
#include "recipes/DishTiles.h"

#include <QSet>

namespace kesto
{

class DietDay;
class DishesCategory;

/// The dishes of one category as a grid of tiles, to be narrowed to a phase. To browse, or to choose a dish for a day.
/// It has no table and no search.
class DishesViewController : public SearchBarDietTableViewController, public DeleteDishDelegate
{
    Q_OBJECT
    Q_PROPERTY(kesto::DishTiles *tiles READ tiles CONSTANT)
    Q_PROPERTY(int categoryIndex READ categoryIndex CONSTANT)
    Q_PROPERTY(QVariantList markerColors READ markerColors CONSTANT)
    Q_PROPERTY(QString emptyText READ emptyText CONSTANT)
public:
    /// To browse the category of an index, 0 to 8.
    explicit DishesViewController(int category);
    /// To choose a dish that is allowed in a phase (0 to 3) for a day.
    DishesViewController(int category, DietDay *diedDay, int period);

    [[nodiscard]] DishesCategory *category() const { return category_; }
    [[nodiscard]] int categoryIndex() const { return categoryIndex_; }
    [[nodiscard]] bool addDishMode() const { return choice_.isAddMode(); }
    /// Outlives this.
    void setDelegate(AddDishDelegate *delegate) { choice_.setDelegate(delegate); }
    [[nodiscard]] DishTiles *tiles() { return &tiles_; }
    /// Of the markers on a tile, one a phase.
    [[nodiscard]] QVariantList markerColors() const;
    /// What stands in place of the tiles when there are none.
    [[nodiscard]] QString emptyText() const;

    /// Reads the category anew. With a scope selected the grid then shows the dishes of the phase that has the scope's
    /// own number, until a scope is selected again.
    void reloadData() override;
    /// "All" and Stabilization show everything, the other scopes their phase.
    [[nodiscard]] QVariantList filtedItemsForPeriod(int period) const override;
    /// A new dish of the user, for this category.
    void dishAdded(Dish &dish);
    void dishDeleted() override;

    /// Whether a row of the day's journal has this dish. What is only planned for the day does not count, but what was
    /// planned from here keeps its check mark.
    [[nodiscard]] bool dayAlreadyIncludeDish(const Dish &dish) const;

    /// The user touched a tile: opens its dish, which is new no longer.
    Q_INVOKABLE void selectItem(int row);
    /// The user touched a tile's check mark: the delegate gets the dish.
    Q_INVOKABLE void selectDishButtonTouchedAtIndexPath(int row);

    [[nodiscard]] bool hasSearchBar() const override { return false; }
    [[nodiscard]] int numberOfRowsInSection(int) const override { return 0; }
    [[nodiscard]] TableRow cellForRow(const IndexPath &) const override { return {}; }

protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void contentDidLoad() override {} // no table to fill
    /// The tiles again, from the items as they are.
    void refresh() override;
    [[nodiscard]] std::unique_ptr<ViewController> makePeriodSelector(int currentPeriod) override;

private:
    DishesViewController(int category, DietDay *day, int period, bool addDishMode);
    [[nodiscard]] Dish *dishAt(int row) const;
    [[nodiscard]] DishTile tileOf(const Dish &dish, bool checked) const;
    [[nodiscard]] QSet<const Dish *> dishesOfJournal() const;
    void dropDeletedDishes();

    int categoryIndex_;
    DishesCategory *category_;
    DietDay *day_;
    int period_;
    DishChoice choice_;
    DishTiles tiles_;
};

} // namespace kesto
