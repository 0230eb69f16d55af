#pragma once

#include "journal/JornalTableViewController.h"

namespace kesto
{

/// The protein eaten on a day against its norm.
class FoodBalanceRootViewController : public JornalTableViewController
{
    Q_OBJECT
public:
    using JornalTableViewController::JornalTableViewController;

    [[nodiscard]] int currentValue() const { return 0; }
    [[nodiscard]] int normalValue() const { return 0; }

    [[nodiscard]] int numberOfRowsInSection(int) const override { return 0; }
    [[nodiscard]] TableRow cellForRow(const IndexPath &) const override { return {}; }

Q_SIGNALS:
    void valuesChanged();
};

} // namespace kesto
