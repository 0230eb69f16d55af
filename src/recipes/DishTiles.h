#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>

namespace kesto
{

class Dish;

/// What a tile shows of a dish. The texts are its own: a tile never reads a dish that is gone.
struct DishTile
{
    const Dish *dish = nullptr; ///< which one it is, never read
    QString title{};
    QString picture{}; ///< the name of its photo, which may not exist; null for a dish that can have none
    QString mark{};    ///< that it is new; null when it isn't
    int markers = 0;   ///< bit k: phase k allows it
    QString phases{};  ///< their names, in their order
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
        MarkersRole,              ///< markers: a bit for each phase
        PhasesRole,               ///< phases: the names behind the markers
        CheckableRole,            ///< checkable
        CheckedRole               ///< checked
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int count() const { return static_cast<int>(tiles_.size()); }
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const QList<DishTile> &tiles() const { return tiles_; }
    /// Dishes at the beginning and at the end that stay keep their tiles; of those only the ones that differ change.
    void setTiles(const QList<DishTile> &tiles);
    void setTile(int row, const DishTile &tile);

Q_SIGNALS:
    void countChanged();

private:
    QList<DishTile> tiles_;
};

} // namespace kesto
