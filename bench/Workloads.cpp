#include "Workloads.h"

namespace kesto::bench
{

std::vector<Workload> allWorkloads(Fixtures &fixtures)
{
    return {
        importOfCatalogue(fixtures),
        fetchOfIngredients(fixtures),
        walkOverDishes(fixtures),
        lookUpOfDays(fixtures),
        lookUpByIdentity(fixtures),
        saveOfOneDay(fixtures),
        daysWithJournals(fixtures),
        parseOfPropertyList(fixtures),
        firstStart(fixtures),
        menuAtStart(fixtures),
        menuWithTenYears(fixtures),
        monthChange(fixtures),
        scrollOnPhone(),
        scrollOnTablet(),
    };
}

} // namespace kesto::bench
