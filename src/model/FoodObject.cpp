#include "model/FoodObject.h"

#include "model/JornalDay.h"
#include "model/Lookup.h"

namespace kesto
{

EntityDescription FoodObject::description()
{
    return {"FoodObject",
            {{"time", AttributeType::Float}, {"type", AttributeType::Integer}, {"count", AttributeType::Integer}},
            {{.name = "jornalDayMeat", .destination = "JornalDay", .inverse = "meatObjects"},
             {.name = "jornalDayWatter", .destination = "JornalDay", .inverse = "waterObjects"}},
            &kTypeTag,
            &makeObject<FoodObject>};
}

JornalDay *FoodObject::jornalDayMeat() const { return static_cast<JornalDay *>(toOne(0)); }

void FoodObject::setJornalDayMeat(JornalDay *value) { setToOne(0, value); }

JornalDay *FoodObject::jornalDayWatter() const { return static_cast<JornalDay *>(toOne(1)); }

void FoodObject::setJornalDayWatter(JornalDay *value) { setToOne(1, value); }

} // namespace kesto
