#pragma once

#include "platform/objectgraph/ManagedObject.h"

namespace kesto
{

class DietDay;
class Dish;
class TimeRow;

/// A dish in the plan of a day (dietDays is set) or in a row of the journal (jornalTimeRow is set).
class DishInDietDay final : public StoredObject<1, 3, 0>
{
public:
    static constexpr char kTypeTag = 0; ///< its address stands for the class

    DishInDietDay(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
        : StoredObject(entity, context, id)
    {
    }
    [[nodiscard]] static EntityDescription description();

    [[nodiscard]] std::optional<int> displayOrder() const { return integerAt<int>(0); } ///< 0-based within its list
    void setDisplayOrder(std::optional<int> value) { setIntegerAt(0, value); }

    [[nodiscard]] DietDay *dietDays() const; ///< one day, despite its name
    void setDietDays(DietDay *value);
    [[nodiscard]] Dish *dish() const;
    void setDish(Dish *value);
    [[nodiscard]] TimeRow *jornalTimeRow() const;
    void setJornalTimeRow(TimeRow *value);
};

} // namespace kesto
