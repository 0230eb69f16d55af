#pragma once

#include "platform/Error.h"
#include "platform/objectgraph/ManagedObject.h"

#include <limits>
#include <vector>

namespace kesto
{

class Dish;

/// A section of the catalogue.
class DishesCategory final : public StoredObject<3, 0, 1>
{
public:
    static constexpr char kTypeTag = 0; ///< its address stands for the class

    DishesCategory(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
        : StoredObject(entity, context, id)
    {
    }
    [[nodiscard]] static EntityDescription description();

    /// What displayOrder is for a category that is none of the nine: it sorts behind them.
    static constexpr quint32 kUnknownOrder = std::numeric_limits<quint32>::max();

    /// The category of a Russian name, as it is. A new one gets both names and its place among the nine; it is not
    /// saved. An error, which was logged, when it could not be looked up.
    [[nodiscard]] static Result<DishesCategory *> dishCategoryWirhRusName(const QString &rusName,
                                                                          const QString &engName,
                                                                          ManagedObjectContext &inManagedObjectContext);
    /// A new category with both names and the display order of its Russian name.
    static DishesCategory &insertWithRusName(const QString &rusName, const QString &engName,
                                             ManagedObjectContext &context);

    [[nodiscard]] QString nameRU() const { return textAt(0); } ///< the key
    void setNameRU(const QString &value) { setTextAt(0, value); }
    [[nodiscard]] QString nameENG() const { return textAt(1); }
    void setNameENG(const QString &value) { setTextAt(1, value); }
    [[nodiscard]] std::optional<quint32> displayOrder() const { return integerAt<quint32>(2); }
    void setDisplayOrder(std::optional<quint32> value) { setIntegerAt(2, value); }

    [[nodiscard]] std::vector<Dish *> dishes() const;
    void addDishes(Dish &object);
    void removeDishes(Dish &object);
};

} // namespace kesto
