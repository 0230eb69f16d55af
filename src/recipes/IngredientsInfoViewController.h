#pragma once

#include "components/TableViewController.h"

#include <QSizeF>

namespace kesto
{

/// What the pictures and the letters of the list of products mean.
class IngredientsInfoViewController : public TableViewController
{
    Q_OBJECT
public:
    /// Room for all rows.
    static constexpr QSizeF size{340, 400};

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;
};

} // namespace kesto
