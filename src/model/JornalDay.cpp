#include "model/JornalDay.h"

#include "model/DietDay.h"
#include "model/FoodObject.h"
#include "model/Lookup.h"
#include "model/TimeRow.h"

namespace kesto
{

EntityDescription JornalDay::description()
{
    return {"JornalDay",
            {{"hotDay", AttributeType::Boolean},
             {"sportDay", AttributeType::Boolean},
             {"meatSportActivity", AttributeType::Integer}},
            {{.name = "day", .destination = "DietDay", .inverse = "jornalDay"},
             {.name = "timeRows",
              .destination = "TimeRow",
              .inverse = "joranlDay",
              .toMany = true,
              .deleteRule = DeleteRule::Cascade},
             {.name = "meatObjects",
              .destination = "FoodObject",
              .inverse = "jornalDayMeat",
              .toMany = true,
              .deleteRule = DeleteRule::Cascade},
             {.name = "waterObjects",
              .destination = "FoodObject",
              .inverse = "jornalDayWatter",
              .toMany = true,
              .deleteRule = DeleteRule::Cascade}},
            &kTypeTag,
            &makeObject<JornalDay>};
}

DietDay *JornalDay::day() const { return static_cast<DietDay *>(toOne(0)); }

void JornalDay::setDay(DietDay *value) { setToOne(0, value); }

std::vector<TimeRow *> JornalDay::timeRows() const { return objectsAt<TimeRow>(0); }

void JornalDay::addTimeRows(TimeRow &object) { addToMany(0, &object); }

void JornalDay::removeTimeRows(TimeRow &object) { removeFromMany(0, &object); }

std::vector<FoodObject *> JornalDay::meatObjects() const { return objectsAt<FoodObject>(1); }

void JornalDay::addMeatObjects(FoodObject &object) { addToMany(1, &object); }

void JornalDay::removeMeatObjects(FoodObject &object) { removeFromMany(1, &object); }

std::vector<FoodObject *> JornalDay::waterObjects() const { return objectsAt<FoodObject>(2); }

void JornalDay::addWaterObjects(FoodObject &object) { addToMany(2, &object); }

void JornalDay::removeWaterObjects(FoodObject &object) { removeFromMany(2, &object); }

} // namespace kesto
