#include "model/DishInDietDay.h"

#include "model/DietDay.h"
#include "model/Dish.h"
#include "model/Lookup.h"
#include "model/TimeRow.h"

namespace kesto
{

EntityDescription DishInDietDay::description()
{
    return {"DishInDietDay",
            {{"displayOrder", AttributeType::Integer}},
            {{.name = "dietDays", .destination = "DietDay", .inverse = "dishes"},
             {.name = "dish", .destination = "Dish", .inverse = "dishInDietDays"},
             {.name = "jornalTimeRow", .destination = "TimeRow", .inverse = "dishesInDietDay"}},
            &kTypeTag,
            &makeObject<DishInDietDay>};
}

DietDay *DishInDietDay::dietDays() const { return static_cast<DietDay *>(toOne(0)); }

void DishInDietDay::setDietDays(DietDay *value) { setToOne(0, value); }

Dish *DishInDietDay::dish() const { return static_cast<Dish *>(toOne(1)); }

void DishInDietDay::setDish(Dish *value) { setToOne(1, value); }

TimeRow *DishInDietDay::jornalTimeRow() const { return static_cast<TimeRow *>(toOne(2)); }

void DishInDietDay::setJornalTimeRow(TimeRow *value) { setToOne(2, value); }

} // namespace kesto
