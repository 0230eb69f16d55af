#include "model/TimeRow.h"

#include "model/DishInDietDay.h"
#include "model/JornalDay.h"
#include "model/Lookup.h"
#include "model/TimeObject.h"

namespace kesto
{

EntityDescription TimeRow::description()
{
    return {"TimeRow",
            {{"time", AttributeType::Float},
             {"compleate", AttributeType::Boolean},
             {"remind", AttributeType::Boolean},
             {"reminderDate", AttributeType::Date},
             {"userCreated", AttributeType::Boolean},
             {"otherTimeObject", AttributeType::String}},
            {{.name = "joranlDay", .destination = "JornalDay", .inverse = "timeRows"},
             {.name = "timeObjects",
              .destination = "TimeObject",
              .inverse = "timeRow",
              .toMany = true,
              .deleteRule = DeleteRule::Cascade},
             {.name = "dishesInDietDay",
              .destination = "DishInDietDay",
              .inverse = "jornalTimeRow",
              .toMany = true,
              .deleteRule = DeleteRule::Cascade}},
            &kTypeTag,
            &makeObject<TimeRow>};
}

JornalDay *TimeRow::joranlDay() const { return static_cast<JornalDay *>(toOne(0)); }

void TimeRow::setJoranlDay(JornalDay *value) { setToOne(0, value); }

std::vector<TimeObject *> TimeRow::timeObjects() const { return objectsAt<TimeObject>(0); }

void TimeRow::addTimeObjects(TimeObject &object) { addToMany(0, &object); }

void TimeRow::removeTimeObjects(TimeObject &object) { removeFromMany(0, &object); }

std::vector<DishInDietDay *> TimeRow::dishesInDietDay() const { return objectsAt<DishInDietDay>(1); }

void TimeRow::addDishesInDietDay(DishInDietDay &object) { addToMany(1, &object); }

void TimeRow::removeDishesInDietDay(DishInDietDay &object) { removeFromMany(1, &object); }

} // namespace kesto
