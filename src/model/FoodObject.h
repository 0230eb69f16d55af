#pragma once

#include "platform/objectgraph/ManagedObject.h"

namespace kesto
{

class JornalDay;

/// One intake of protein or water on a journal day.
class FoodObject final : public StoredObject<3, 2, 0>
{
public:
    static constexpr char kTypeTag = 0; ///< its address stands for the class

    FoodObject(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
        : StoredObject(entity, context, id)
    {
    }
    [[nodiscard]] static EntityDescription description();

    [[nodiscard]] std::optional<float> time() const { return floatAt(0); } ///< hours.minutes
    void setTime(std::optional<float> value) { setFloatAt(0, value); }
    [[nodiscard]] std::optional<int> type() const { return integerAt<int>(1); }
    void setType(std::optional<int> value) { setIntegerAt(1, value); }
    [[nodiscard]] std::optional<int> count() const { return integerAt<int>(2); }
    void setCount(std::optional<int> value) { setIntegerAt(2, value); }

    [[nodiscard]] JornalDay *jornalDayMeat() const; ///< set for protein
    void setJornalDayMeat(JornalDay *value);
    [[nodiscard]] JornalDay *jornalDayWatter() const; ///< set for water
    void setJornalDayWatter(JornalDay *value);
};

} // namespace kesto
