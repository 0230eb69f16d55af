#pragma once

#include "components/TableViewController.h"

namespace kesto
{

/// One recorded value, in words.
struct GraphTableRow
{
    QString date{};
    QString value{};
    QString compared{}; ///< against an earlier value; empty for the oldest
};

/// The values behind a graph, for reading.
class GraphTableViewController : public TableViewController
{
    Q_OBJECT
public:
    GraphTableViewController(const QString &title, QList<GraphTableRow> rows);

    [[nodiscard]] int numberOfRowsInSection(int section) const override;
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override;

private:
    const QList<GraphTableRow> rows_;
};

} // namespace kesto
