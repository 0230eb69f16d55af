#include "Workloads.h"

#include "ChildProcess.h"

#include <cstdio>

namespace kesto::bench
{

std::vector<Workload> allWorkloads(Fixtures &fixtures)
{
    std::vector<Workload> all{
        importOfCatalogue(fixtures),
        fetchOfIngredients(fixtures),
        walkOverDishes(fixtures),
        lookUpOfDays(fixtures),
        lookUpByIdentity(fixtures),
        saveOfOneDay(fixtures),
        daysWithJournals(fixtures),
        jornalOpening(fixtures),
        jornalStep(fixtures),
        firstStart(fixtures),
        menuAtStart(fixtures),
        menuWithTenYears(fixtures),
        monthChange(fixtures),
        scrollOnPhone(),
        scrollOnTablet(),
        scrollOfFoods(),
        scrollOfTimeRows(),
    };
    if (ChildProcess::hasDisplay())
        all.push_back(menuOnDisplay(fixtures));
    else
        std::fputs("kesto_bench: no display, so the start on one is left out\n", stderr);
    return all;
}

} // namespace kesto::bench
