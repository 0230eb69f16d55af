#pragma once

namespace kesto
{

class ManagedObjectContext;

/// The context of the program's store.
[[nodiscard]] ManagedObjectContext &planContext();
/// Saves the context. After a failure the changes are saved with the next change.
void savePlan();

} // namespace kesto
