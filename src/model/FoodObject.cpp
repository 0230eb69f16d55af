#include "model/FoodObject.h"

#include "model/JornalDay.h"

namespace kesto
{

JornalDay *FoodObject::jornalDayMeat() const { return one<"jornalDayMeat">(); }

void FoodObject::setJornalDayMeat(JornalDay *value) { setOne<"jornalDayMeat">(value); }

JornalDay *FoodObject::jornalDayWatter() const { return one<"jornalDayWatter">(); }

void FoodObject::setJornalDayWatter(JornalDay *value) { setOne<"jornalDayWatter">(value); }

} // namespace kesto
