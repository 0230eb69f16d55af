#pragma once

#include "platform/objectgraph/ManagedObjectModel.h"

namespace kesto
{

/// The model "Diet": the eleven entities that hold all of the user's data and the catalogue. When an
/// entity changes, raise the version: files of older versions are upgraded when they are opened, and a changed model
/// refuses the files of its own version.
[[nodiscard]] const ManagedObjectModel &dietModel();

} // namespace kesto
