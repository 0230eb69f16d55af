#include "model/DietDay.h"

#include "model/DishInDietDay.h"
#include "model/JornalDay.h"
#include "model/Lookup.h"

#include <algorithm>

namespace kesto
{

EntityDescription DietDay::description()
{
    return {"DietDay",
            {{"date", AttributeType::Date, true},
             {"weight", AttributeType::Float},
             {"chest", AttributeType::Float},
             {"hip", AttributeType::Float},
             {"waist", AttributeType::Float},
             {"biceps", AttributeType::Float},
             {"chB", AttributeType::Boolean},
             {"bO", AttributeType::Boolean},
             {"feast", AttributeType::Boolean}},
            {{.name = "dishes",
              .destination = "DishInDietDay",
              .inverse = "dietDays",
              .toMany = true,
              .deleteRule = DeleteRule::Cascade},
             {.name = "jornalDay", .destination = "JornalDay", .inverse = "day", .deleteRule = DeleteRule::Cascade}},
            &kTypeTag,
            &makeObject<DietDay>};
}

JornalDay *DietDay::jornalDay() const { return static_cast<JornalDay *>(toOne(0)); }

void DietDay::setJornalDay(JornalDay *value) { setToOne(0, value); }

std::vector<DishInDietDay *> DietDay::dishes() const { return objectsAt<DishInDietDay>(0); }

void DietDay::addDishes(DishInDietDay &object) { addToMany(0, &object); }

void DietDay::removeDishes(DishInDietDay &object) { removeFromMany(0, &object); }

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
