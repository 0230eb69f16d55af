#include "recipes/DishTiles.h"

#include <algorithm>

namespace kesto
{

int DishTiles::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : count(); }

QVariant DishTiles::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const DishTile &tile = tiles_[index.row()];
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return tile.title;
    case PictureRole:
        return tile.picture;
    case MarkRole:
        return tile.mark;
    case MarkersRole:
        return tile.markers;
    case PhasesRole:
        return tile.phases;
    case CheckableRole:
        return tile.checkable;
    case CheckedRole:
        return tile.checked;
    default:
        return {};
    }
}

QHash<int, QByteArray> DishTiles::roleNames() const
{
    return {{TitleRole, "title"},   {PictureRole, "picture"},     {MarkRole, "mark"},      {MarkersRole, "markers"},
            {PhasesRole, "phases"}, {CheckableRole, "checkable"}, {CheckedRole, "checked"}};
}

void DishTiles::setTiles(const QList<DishTile> &tiles)
{
    const auto sameDish = [](const DishTile &left, const DishTile &right) { return left.dish == right.dish; };
    const int shorter = static_cast<int>(std::min(tiles_.size(), tiles.size()));
    const auto parted = std::mismatch(tiles_.cbegin(), tiles_.cbegin() + shorter, tiles.cbegin(), sameDish);
    const int first = static_cast<int>(parted.first - tiles_.cbegin());
    const auto met = std::mismatch(tiles_.crbegin(), tiles_.crbegin() + (shorter - first), tiles.crbegin(), sameDish);
    const int last = static_cast<int>(met.first - tiles_.crbegin());
    const int gone = count() - first - last;
    const int come = static_cast<int>(tiles.size()) - first - last;

    if (gone > 0) {
        beginRemoveRows({}, first, first + gone - 1);
        tiles_.remove(first, gone);
        endRemoveRows();
    }
    if (come > 0) {
        beginInsertRows({}, first, first + come - 1);
        for (int row = first; row < first + come; ++row)
            tiles_.insert(row, tiles[row]);
        endInsertRows();
    }
    for (int row = 0; row < count(); ++row)
        setTile(row, tiles[row]);
    if (gone != come)
        Q_EMIT countChanged();
}

void DishTiles::setTile(int row, const DishTile &tile)
{
    if (tiles_[row] == tile)
        return;
    tiles_[row] = tile;
    Q_EMIT dataChanged(index(row), index(row));
}

} // namespace kesto
