#pragma once

#include "platform/objectgraph/StoredObject.h"

namespace kesto
{

class DietDay;
class Dish;
class TimeRow;

/// A dish in the plan of a day (dietDays is set) or in a row of the journal (jornalTimeRow is set).
class DishInDietDay final
    : public StoredObject<
          "DishInDietDay", Attributes<Attribute<"displayOrder", int>>,
          Relationships<ToOne<"dietDays", DietDay, "dishes", Tie::OwnedBy>, ToOne<"dish", Dish, "dishInDietDays">,
                        ToOne<"jornalTimeRow", TimeRow, "dishesInDietDay", Tie::OwnedBy>>>
{
public:
    using StoredObject::StoredObject;

    [[nodiscard]] std::optional<int> displayOrder() const { return get<"displayOrder">(); } ///< 0-based within its list
    void setDisplayOrder(std::optional<int> value) { set<"displayOrder">(value); }

    /// The dish's name in the language of the interface, else in the other language, else "-".
    [[nodiscard]] QString displayName() const;

    [[nodiscard]] DietDay *dietDays() const; ///< one day, despite its name
    void setDietDays(DietDay *value);
    [[nodiscard]] Dish *dish() const;
    void setDish(Dish *value);
    [[nodiscard]] TimeRow *jornalTimeRow() const;
    void setJornalTimeRow(TimeRow *value);
};

} // namespace kesto
