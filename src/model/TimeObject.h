#pragma once

#include "platform/objectgraph/ManagedObject.h"

namespace kesto
{

class TimeRow;

/// One activity in a time row.
class TimeObject final : public StoredObject<4, 1, 0>
{
public:
    static constexpr char kTypeTag = 0; ///< its address stands for the class

    TimeObject(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
        : StoredObject(entity, context, id)
    {
    }
    [[nodiscard]] static EntityDescription description();

    [[nodiscard]] std::optional<int> type() const { return integerAt<int>(0); }
    void setType(std::optional<int> value) { setIntegerAt(0, value); }
    [[nodiscard]] std::optional<float> value1() const { return floatAt(1); }
    void setValue1(std::optional<float> value) { setFloatAt(1, value); }
    [[nodiscard]] std::optional<int> value2() const { return integerAt<int>(2); }
    void setValue2(std::optional<int> value) { setIntegerAt(2, value); }
    [[nodiscard]] std::optional<int> waterType() const { return integerAt<int>(3); }
    void setWaterType(std::optional<int> value) { setIntegerAt(3, value); }

    [[nodiscard]] TimeRow *timeRow() const;
    void setTimeRow(TimeRow *value);
};

} // namespace kesto
