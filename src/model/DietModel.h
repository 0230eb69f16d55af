#pragma once

#include "platform/objectgraph/ManagedObjectModel.h"

namespace kesto
{

/// The model "Diet": the eleven entities that hold all of the user's data and the catalogue. When an entity changes,
/// its version grows; files of older versions are brought up to it when they are opened.
[[nodiscard]] const ManagedObjectModel &dietModel();

} // namespace kesto
