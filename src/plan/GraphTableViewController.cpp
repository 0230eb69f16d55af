#include "plan/GraphTableViewController.h"

#include <utility>

namespace kesto
{

GraphTableViewController::GraphTableViewController(const QString &title, QList<GraphTableRow> rows)
    : rows_(std::move(rows))
{
    setTitle(title);
}

int GraphTableViewController::numberOfRowsInSection(int) const { return static_cast<int>(rows_.size()); }

TableRow GraphTableViewController::cellForRow(const IndexPath &path) const
{
    const GraphTableRow &shown = rows_[path.row];
    TableRow row;
    row.kind = TableRow::Kind::Value;
    row.title = shown.date;
    row.subtitle = shown.compared;
    row.detail = shown.value;
    row.selectable = false;
    return row;
}

} // namespace kesto
