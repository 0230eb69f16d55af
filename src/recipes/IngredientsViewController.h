#pragma once

#include "components/SearchBarDietTableViewController.h"

namespace kesto
{

/// The products that the diet allows, each with its kind and its phases. A touch offers to add one to the shopping
/// list.
class IngredientsViewController : public SearchBarDietTableViewController
{
    Q_OBJECT
public:
    IngredientsViewController();

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;
    [[nodiscard]] QVariantList filtedItemsForPeriod(int period) const override;

    /// The letter of a phase; null outside 0 to 3.
    [[nodiscard]] static QString abriviatureForPeriod(int period);
    /// The name of a kind of product, 0 to 3; null for others.
    [[nodiscard]] static QString nameOfKind(int kind);

protected:
    void viewDidLoad() override;
    void didSelectRow(const IndexPath &path, const RowId &id) override;
    [[nodiscard]] QVariantList searchWithString(const QString &text, int scope) const override;

private:
    void showInfo();
};

} // namespace kesto
