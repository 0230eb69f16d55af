#pragma once

#include "journal/JornalTableViewController.h"

namespace kesto
{

/// The rows of a day by time.
class JornalSheduleRootViewController : public JornalTableViewController
{
    Q_OBJECT
public:
    using JornalTableViewController::JornalTableViewController;

    [[nodiscard]] int numberOfRowsInSection(int) const override { return 0; }
    [[nodiscard]] TableRow cellForRow(const IndexPath &) const override { return {}; }
};

} // namespace kesto
