#pragma once

#include "components/PeriodSelectorDelegate.h"
#include "components/TableViewController.h"

namespace kesto
{

/// Five rows that filter a list of dishes by phase: all phases, and each of the four.
class PeriodSelectorViewController : public TableViewController
{
    Q_OBJECT
public:
    /// The delegate outlives this or is null.
    PeriodSelectorViewController(int currentPeriod, PeriodSelectorDelegate *delegate);

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;

protected:
    void didSelectRow(const IndexPath &path, const RowId &id) override;

private:
    int currentPeriod_;
    PeriodSelectorDelegate *delegate_;
};

} // namespace kesto
