#pragma once

#include "components/SearchBarDietTableViewController.h"
#include "recipes/DishChoice.h"
#include "recipes/DishTiles.h"

#include <QSet>

namespace kesto
{

class DietDay;
class DishesCategory;

/// The dishes of one category as a grid of tiles that can be filtered by phase; for browsing or for choosing a dish for
/// a day. Has no table and no search.
class DishesViewController : public SearchBarDietTableViewController, public DeleteDishDelegate
{
    Q_OBJECT
    Q_PROPERTY(kesto::DishTiles *tiles READ tiles CONSTANT)
    Q_PROPERTY(int categoryIndex READ categoryIndex CONSTANT)
    Q_PROPERTY(QVariantList markerColors READ markerColors CONSTANT)
    Q_PROPERTY(QString emptyText READ emptyText CONSTANT)
public:
    /// For browsing a category, 0 to 8.
    explicit DishesViewController(int category);
    /// For choosing a dish for a day; only dishes allowed in the phase (0 to 3).
    DishesViewController(int category, DietDay *diedDay, int period);

    [[nodiscard]] DishesCategory *category() const { return category_; }
    [[nodiscard]] int categoryIndex() const { return categoryIndex_; }
    [[nodiscard]] bool addDishMode() const { return choice_.isAddMode(); }
    /// The delegate outlives this.
    void setDelegate(AddDishDelegate *delegate) { choice_.setDelegate(delegate); }
    [[nodiscard]] DishTiles *tiles() { return &tiles_; }
    /// The colours of the phase markers on a tile.
    [[nodiscard]] QVariantList markerColors() const;
    /// The text shown when there are no tiles.
    [[nodiscard]] QString emptyText() const;

    /// Reads the category again. With a scope selected, the grid then shows the phase whose number is the scope's own
    /// index, until a scope is selected again.
    void reloadData() override;
    /// "All" and Stabilization show every dish, the other scopes their phase.
    [[nodiscard]] QVariantList filtedItemsForPeriod(int period) const override;
    /// Opens the form for a new dish of this category.
    void dishAdded(Dish &dish);
    void dishDeleted() override;

    /// Whether a row of the day's journal has this dish. A dish that is only planned for the day does not count, but a
    /// dish that was added from here keeps its check mark.
    [[nodiscard]] bool dayAlreadyIncludeDish(const Dish &dish) const;

    /// Opens the dish of a touched tile and clears its "new" mark.
    Q_INVOKABLE void selectItem(int row);
    /// Offers the dish of a touched check mark to the delegate.
    Q_INVOKABLE void selectDishButtonTouchedAtIndexPath(int row);

    [[nodiscard]] bool hasSearchBar() const override { return false; }
    [[nodiscard]] int numberOfRowsInSection(int) const override { return 0; }
    [[nodiscard]] TableRow cellForRow(const IndexPath &) const override { return {}; }

protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void contentDidLoad() override {} // no table to fill
    /// Makes the tiles from the current items.
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
