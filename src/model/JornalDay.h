#pragma once

#include "platform/objectgraph/ManagedObject.h"

#include <vector>

namespace kesto
{

class DietDay;
class FoodObject;
class TimeRow;

/// The journal of one diet day.
class JornalDay final : public StoredObject<3, 1, 3>
{
public:
    static constexpr char kTypeTag = 0; ///< its address stands for the class

    JornalDay(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
        : StoredObject(entity, context, id)
    {
    }
    [[nodiscard]] static EntityDescription description();

    [[nodiscard]] std::optional<bool> hotDay() const { return flagAt(0); }
    void setHotDay(std::optional<bool> value) { setIntegerAt(0, value); }
    [[nodiscard]] std::optional<bool> sportDay() const { return flagAt(1); }
    void setSportDay(std::optional<bool> value) { setIntegerAt(1, value); }
    [[nodiscard]] std::optional<int> meatSportActivity() const
    {
        return integerAt<int>(2);
    } ///< level of activity, 1 to 4
    void setMeatSportActivity(std::optional<int> value) { setIntegerAt(2, value); }

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
