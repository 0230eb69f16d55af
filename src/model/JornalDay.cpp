#include "model/JornalDay.h"

#include "model/DietDay.h"
#include "model/FoodObject.h"
#include "model/TimeRow.h"

namespace kesto
{

DietDay *JornalDay::day() const { return one<"day">(); }

void JornalDay::setDay(DietDay *value) { setOne<"day">(value); }

std::vector<TimeRow *> JornalDay::timeRows() const { return many<"timeRows">(); }

void JornalDay::addTimeRows(TimeRow &object) { add<"timeRows">(object); }

void JornalDay::removeTimeRows(TimeRow &object) { remove<"timeRows">(object); }

std::vector<FoodObject *> JornalDay::meatObjects() const { return many<"meatObjects">(); }

void JornalDay::addMeatObjects(FoodObject &object) { add<"meatObjects">(object); }

void JornalDay::removeMeatObjects(FoodObject &object) { remove<"meatObjects">(object); }

std::vector<FoodObject *> JornalDay::waterObjects() const { return many<"waterObjects">(); }

void JornalDay::addWaterObjects(FoodObject &object) { add<"waterObjects">(object); }

void JornalDay::removeWaterObjects(FoodObject &object) { remove<"waterObjects">(object); }

} // namespace kesto
