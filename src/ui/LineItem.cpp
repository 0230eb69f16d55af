#include "LineItem.h"

#include <utility>

namespace kesto
{

LineItem::LineItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemIsFocusScope);
}

void LineItem::setIndex(int index)
{
    if (std::exchange(index_, index) == index)
        return;
    Q_EMIT indexChanged();
    read();
}

void LineItem::setTableModel(TableModel *model)
{
    if (model_ == model)
        return;
    model_ = model;
    connect(model, &TableModel::dataChanged, this, [this](const QModelIndex &first, const QModelIndex &last) {
        if (first.row() <= index_ && index_ <= last.row() + 1) // it knows of the line before, too
            read();
    });
    read();
}

// A line that leaves keeps what it shows.
void LineItem::read()
{
    if (model_ == nullptr || index_ < 0 || index_ >= model_->rowCount())
        return;
    TableModel::Line line = model_->lineAt(index_);
    if (line == line_)
        return;
    const TableModel::Line before = std::exchange(line_, std::move(line));
    if (before.type != line_.type || before.shown.title != line_.shown.title || before.shown.value != line_.shown.value)
        Q_EMIT replaced();
    Q_EMIT changed();
}

QVariant LineItem::color() const { return line_.shown.color.isValid() ? QVariant(line_.shown.color) : QVariant(); }

QVariantList LineItem::badges() const
{
    QVariantList badges;
    for (const TableRow::Badge &badge : line_.shown.badges)
        badges.append(QVariantMap{{QStringLiteral("text"), badge.text}, {QStringLiteral("color"), badge.color}});
    return badges;
}

} // namespace kesto
