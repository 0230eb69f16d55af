#pragma once

#include "platform/objectgraph/StoredObject.h"

namespace kesto
{

class TimeRow;

/// One activity in a time row.
class TimeObject final : public StoredObject<"TimeObject",
                                             Attributes<Attribute<"type", int>, Attribute<"value1", float>,
                                                        Attribute<"value2", int>, Attribute<"waterType", int>>,
                                             Relationships<ToOne<"timeRow", TimeRow, "timeObjects", Tie::OwnedBy>>>
{
public:
    using StoredObject::StoredObject;

    [[nodiscard]] std::optional<int> type() const { return get<"type">(); }
    void setType(std::optional<int> value) { set<"type">(value); }
    [[nodiscard]] std::optional<float> value1() const { return get<"value1">(); }
    void setValue1(std::optional<float> value) { set<"value1">(value); }
    [[nodiscard]] std::optional<int> value2() const { return get<"value2">(); }
    void setValue2(std::optional<int> value) { set<"value2">(value); }
    [[nodiscard]] std::optional<int> waterType() const { return get<"waterType">(); }
    void setWaterType(std::optional<int> value) { set<"waterType">(value); }

    [[nodiscard]] TimeRow *timeRow() const;
    void setTimeRow(TimeRow *value);
};

} // namespace kesto
