#pragma once

#include "components/TableViewController.h"

#include <QSizeF>

namespace kesto
{

/// The legend of the pictures and letters in the list of products.
class IngredientsInfoViewController : public TableViewController
{
    Q_OBJECT
public:
    /// The size that shows all rows.
    static constexpr QSizeF size{340, 400};

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;
};

} // namespace kesto
