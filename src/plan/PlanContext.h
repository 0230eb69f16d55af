#pragma once

namespace kesto
{

class ManagedObjectContext;

/// Of the program's store.
[[nodiscard]] ManagedObjectContext &planContext();
/// What could not be written stays to be saved with the next change.
void savePlan();

} // namespace kesto
