#pragma once

#include "platform/objectgraph/StoredObject.h"

namespace kesto
{

class JornalDay;

/// One intake of protein or water on a journal day.
class FoodObject final
    : public StoredObject<"FoodObject",
                          Attributes<Attribute<"time", float>, Attribute<"type", int>, Attribute<"count", int>>,
                          Relationships<ToOne<"jornalDayMeat", JornalDay, "meatObjects", Tie::OwnedBy>,
                                        ToOne<"jornalDayWatter", JornalDay, "waterObjects", Tie::OwnedBy>>>
{
public:
    using StoredObject::StoredObject;

    [[nodiscard]] std::optional<float> time() const { return get<"time">(); } ///< hours.minutes
    void setTime(std::optional<float> value) { set<"time">(value); }
    [[nodiscard]] std::optional<int> type() const { return get<"type">(); }
    void setType(std::optional<int> value) { set<"type">(value); }
    [[nodiscard]] std::optional<int> count() const { return get<"count">(); }
    void setCount(std::optional<int> value) { set<"count">(value); }

    [[nodiscard]] JornalDay *jornalDayMeat() const; ///< set for protein
    void setJornalDayMeat(JornalDay *value);
    [[nodiscard]] JornalDay *jornalDayWatter() const; ///< set for water
    void setJornalDayWatter(JornalDay *value);
};

} // namespace kesto
