#pragma once

#include "platform/Error.h"
#include "platform/objectgraph/StoredObject.h"

#include <limits>
#include <vector>

namespace kesto
{

class Dish;

/// A section of the catalogue.
class DishesCategory final
    : public StoredObject<"DishesCategory",
                          Attributes<Attribute<"nameRU", QString, Index::Yes>, Attribute<"nameENG", QString>,
                                     Attribute<"displayOrder", quint32, Index::Yes>>,
                          Relationships<ToMany<"dishes", Dish, "dishCategory">>>
{
public:
    using StoredObject::StoredObject;

    /// The displayOrder of a category that is not one of the nine; it sorts last.
    static constexpr quint32 kUnknownOrder = std::numeric_limits<quint32>::max();

    /// The category of a Russian name, unchanged. A new one gets both names and its place among the nine; it is not
    /// saved. An error, which was logged, when it could not be looked up.
    [[nodiscard]] static Result<DishesCategory *> dishCategoryWirhRusName(const QString &rusName,
                                                                          const QString &engName,
                                                                          ManagedObjectContext &inManagedObjectContext);
    /// A new category with both names and the display order of its Russian name.
    static DishesCategory &insertWithRusName(const QString &rusName, const QString &engName,
                                             ManagedObjectContext &context);

    [[nodiscard]] QString nameRU() const { return get<"nameRU">(); } ///< the key
    void setNameRU(const QString &value) { set<"nameRU">(value); }
    [[nodiscard]] QString nameENG() const { return get<"nameENG">(); }
    void setNameENG(const QString &value) { set<"nameENG">(value); }
    [[nodiscard]] std::optional<quint32> displayOrder() const { return get<"displayOrder">(); }
    void setDisplayOrder(std::optional<quint32> value) { set<"displayOrder">(value); }

    [[nodiscard]] std::vector<Dish *> dishes() const;
    void addDishes(Dish &object);
    void removeDishes(Dish &object);
};

} // namespace kesto
