#pragma once

#include "components/TableRow.h"

namespace kesto
{

class TimeRow;

/// A row of the schedule as its cell draws it. The value is a dictionary: "items" (of "image", "text" and "color"),
/// "dishes", "other" and "next" (texts, empty for none), "remind", and "name", all of it in words. The next row of the
/// day stands out; so does one that is edited.
[[nodiscard]] TableRow timeRowCell(const TimeRow &row, bool isNext, bool isEdited);

} // namespace kesto
