#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>

namespace kesto
{

class Dish;

/// The content of a dish's tile. It holds copies, so it stays valid when the dish is deleted.
struct DishTile
{
    const Dish *dish = nullptr; ///< for comparison only; may be deleted
    QString title{};
    QString picture{}; ///< the name of its photo, which may not exist; null when it cannot have one
    QString mark{};    ///< the text of the "new" badge; null without it
    int markers = 0;   ///< bit k is set when phase k allows the dish
    QString phases{};  ///< the names of these phases, in order
    bool checkable = false;
    bool checked = false;

    bool operator==(const DishTile &) const = default;
};

/// The tiles of a grid of dishes.
class DishTiles : public QAbstractListModel
{
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)
public:
    enum Role {
        TitleRole = Qt::UserRole, ///< title
        PictureRole,              ///< picture
        MarkRole,                 ///< mark
        MarkersRole,              ///< markers: one bit per phase
        PhasesRole,               ///< phases: their names
        CheckableRole,            ///< checkable
        CheckedRole               ///< checked
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int count() const { return static_cast<int>(tiles_.size()); }
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const QList<DishTile> &tiles() const { return tiles_; }
    /// Replaces the tiles. Equal dishes at the beginning and at the end keep their rows; changed ones signal
    /// dataChanged.
    void setTiles(const QList<DishTile> &tiles);
    void setTile(int row, const DishTile &tile);

Q_SIGNALS:
    void countChanged();

private:
    QList<DishTile> tiles_;
};

} // namespace kesto
