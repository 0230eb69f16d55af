#include "model/TimeObject.h"

#include "model/Lookup.h"
#include "model/TimeRow.h"

namespace kesto
{

EntityDescription TimeObject::description()
{
    return {"TimeObject",
            {{"type", AttributeType::Integer},
             {"value1", AttributeType::Float},
             {"value2", AttributeType::Integer},
             {"waterType", AttributeType::Integer}},
            {{.name = "timeRow", .destination = "TimeRow", .inverse = "timeObjects"}},
            &kTypeTag,
            &makeObject<TimeObject>};
}

TimeRow *TimeObject::timeRow() const { return static_cast<TimeRow *>(toOne(0)); }

void TimeObject::setTimeRow(TimeRow *value) { setToOne(0, value); }

} // namespace kesto
