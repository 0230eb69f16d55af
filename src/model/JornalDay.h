#pragma once

#include "platform/objectgraph/StoredObject.h"

#include <vector>

namespace kesto
{

class DietDay;
class FoodObject;
class TimeRow;

/// The journal of one diet day.
class JornalDay final
    : public StoredObject<
          "JornalDay",
          Attributes<Attribute<"hotDay", bool>, Attribute<"sportDay", bool>, Attribute<"meatSportActivity", int>>,
          Relationships<ToOne<"day", DietDay, "jornalDay", Tie::OwnedBy>,
                        ToMany<"timeRows", TimeRow, "joranlDay", Tie::Owns>,
                        ToMany<"meatObjects", FoodObject, "jornalDayMeat", Tie::Owns>,
                        ToMany<"waterObjects", FoodObject, "jornalDayWatter", Tie::Owns>>>
{
public:
    using StoredObject::StoredObject;

    [[nodiscard]] std::optional<bool> hotDay() const { return get<"hotDay">(); }
    void setHotDay(std::optional<bool> value) { set<"hotDay">(value); }
    [[nodiscard]] std::optional<bool> sportDay() const { return get<"sportDay">(); }
    void setSportDay(std::optional<bool> value) { set<"sportDay">(value); }
    /// Level of activity, 1 to 4.
    [[nodiscard]] std::optional<int> meatSportActivity() const { return get<"meatSportActivity">(); }
    void setMeatSportActivity(std::optional<int> value) { set<"meatSportActivity">(value); }

    [[nodiscard]] DietDay *day() const;
    void setDay(DietDay *value);
    [[nodiscard]] std::vector<TimeRow *> timeRows() const;
    void addTimeRows(TimeRow &object);
    void removeTimeRows(TimeRow &object);
    [[nodiscard]] std::vector<FoodObject *> meatObjects() const; ///< protein intake
    void addMeatObjects(FoodObject &object);
    void removeMeatObjects(FoodObject &object);
    [[nodiscard]] std::vector<FoodObject *> waterObjects() const; ///< water intake
    void addWaterObjects(FoodObject &object);
    void removeWaterObjects(FoodObject &object);
};

} // namespace kesto
