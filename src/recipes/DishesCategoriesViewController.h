#pragma once

#include "components/TableViewController.h"
#include "recipes/DishDelegates.h"

namespace kesto
{

class DietDay;

/// The nine categories of the catalogue: to browse it, or to choose a dish for a day.
class DishesCategoriesViewController : public TableViewController
{
    Q_OBJECT
public:
    /// For browsing: a category opens as the main content.
    DishesCategoriesViewController();
    /// For choosing a dish for a day in a phase (0 to 3): a category opens on the same stack.
    DishesCategoriesViewController(DietDay *day, int dietPeriod);

    /// The delegate outlives this.
    void setDelegate(AddDishDelegate *delegate) { delegate_ = delegate; }

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;

protected:
    void viewDidLoad() override;
    void didSelectRow(const IndexPath &path, const RowId &id) override;

private:
    void browse(int category);

    DietDay *day_ = nullptr;
    int period_ = 0;
    bool addDishMode_ = false;
    AddDishDelegate *delegate_ = nullptr;
    int selectedRow_ = -1; // on a tablet, which shows the category beside this list
};

} // namespace kesto
