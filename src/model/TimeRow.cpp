#include "model/TimeRow.h"

#include "model/DishInDietDay.h"
#include "model/JornalDay.h"
#include "model/TimeObject.h"

namespace kesto
{

JornalDay *TimeRow::joranlDay() const { return one<"joranlDay">(); }

void TimeRow::setJoranlDay(JornalDay *value) { setOne<"joranlDay">(value); }

std::vector<TimeObject *> TimeRow::timeObjects() const { return many<"timeObjects">(); }

void TimeRow::addTimeObjects(TimeObject &object) { add<"timeObjects">(object); }

void TimeRow::removeTimeObjects(TimeObject &object) { remove<"timeObjects">(object); }

std::vector<DishInDietDay *> TimeRow::dishesInDietDay() const { return many<"dishesInDietDay">(); }

void TimeRow::addDishesInDietDay(DishInDietDay &object) { add<"dishesInDietDay">(object); }

void TimeRow::removeDishesInDietDay(DishInDietDay &object) { remove<"dishesInDietDay">(object); }

} // namespace kesto
