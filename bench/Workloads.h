#pragma once

#include "Workload.h"

namespace kesto::bench
{

class Fixtures;

// One function a file. The fixtures outlive the workloads.
[[nodiscard]] Workload importOfCatalogue(Fixtures &fixtures);
[[nodiscard]] Workload fetchOfIngredients(Fixtures &fixtures);
[[nodiscard]] Workload walkOverDishes(Fixtures &fixtures);
[[nodiscard]] Workload lookUpOfDays(Fixtures &fixtures);
[[nodiscard]] Workload lookUpByIdentity(Fixtures &fixtures);
[[nodiscard]] Workload saveOfOneDay(Fixtures &fixtures);
[[nodiscard]] Workload daysWithJournals(Fixtures &fixtures);
[[nodiscard]] Workload jornalOpening(Fixtures &fixtures);
[[nodiscard]] Workload jornalStep(Fixtures &fixtures);
[[nodiscard]] Workload firstStart(Fixtures &fixtures);
[[nodiscard]] Workload menuOnDisplay(Fixtures &fixtures);
[[nodiscard]] Workload menuAtStart(Fixtures &fixtures);
[[nodiscard]] Workload menuWithTenYears(Fixtures &fixtures);
[[nodiscard]] Workload monthChange(Fixtures &fixtures);
[[nodiscard]] Workload scrollOnPhone();
[[nodiscard]] Workload scrollOnTablet();
[[nodiscard]] Workload scrollOfFoods();
[[nodiscard]] Workload scrollOfTimeRows();

/// All of them, in the order of the table. A new workload is a function above, a file, and a line in there.
[[nodiscard]] std::vector<Workload> allWorkloads(Fixtures &fixtures);

} // namespace kesto::bench
