#include "model/DietDay.h"

#include "model/DishInDietDay.h"
#include "model/JornalDay.h"
#include "model/Lookup.h"

#include <algorithm>

namespace kesto
{

JornalDay *DietDay::jornalDay() const { return one<"jornalDay">(); }

void DietDay::setJornalDay(JornalDay *value) { setOne<"jornalDay">(value); }

std::vector<DishInDietDay *> DietDay::dishes() const { return many<"dishes">(); }

void DietDay::addDishes(DishInDietDay &object) { add<"dishes">(object); }

void DietDay::removeDishes(DishInDietDay &object) { remove<"dishes">(object); }

DietDay *DietDay::dayWithoutCreation(const QDateTime &date, ManagedObjectContext &inManagedObjectContext)
{
    return lastMatchOrLog<DietDay>(inManagedObjectContext, attribute("date") == date, "dayWithoutCreation")
        .value_or(nullptr);
}

Result<DietDay *> DietDay::dietDatWithDate(const QDateTime &date, ManagedObjectContext &inManagedObjectContext)
{
    auto known = lastMatchOrLog<DietDay>(inManagedObjectContext, attribute("date") == date, "dietDatWithDate");
    if (!known || *known != nullptr)
        return known;
    auto &day = inManagedObjectContext.insert<DietDay>();
    day.setDate(date);
    inManagedObjectContext.saveOrKeepChanges();
    return &day;
}

bool DietDay::isEmpty() const
{
    return !chB() && !weight() && jornalDay() == nullptr && !feast() && !bO() && !hip() && !waist() && !chest();
}

} // namespace kesto
