#include "model/TimeObject.h"

#include "model/TimeRow.h"

namespace kesto
{

TimeRow *TimeObject::timeRow() const { return one<"timeRow">(); }

void TimeObject::setTimeRow(TimeRow *value) { setOne<"timeRow">(value); }

} // namespace kesto
