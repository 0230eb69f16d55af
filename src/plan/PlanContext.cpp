#include "plan/PlanContext.h"

#include "store/CoreDataManager.h"

namespace kesto
{

ManagedObjectContext &planContext() { return *CoreDataManager::sharedManager().managedObjectContext(); }

void savePlan() { (void)planContext().save(); }

} // namespace kesto
