#include "plan/PlanContext.h"

#include "store/CoreDataManager.h"

namespace kesto
{

ManagedObjectContext &planContext() { return *CoreDataManager::sharedManager().managedObjectContext(); }

void savePlan() { planContext().saveOrKeepChanges(); }

} // namespace kesto
