#include "model/DishInDietDay.h"

#include "model/DietDay.h"
#include "model/Dish.h"
#include "model/TimeRow.h"

namespace kesto
{

DietDay *DishInDietDay::dietDays() const { return one<"dietDays">(); }

void DishInDietDay::setDietDays(DietDay *value) { setOne<"dietDays">(value); }

QString DishInDietDay::displayName() const
{
    QString name;
    if (const Dish *planned = dish()) {
        name = planned->displayName();
        for (const QString &other : {planned->nameRU(), planned->nameENG()})
            name = name.isEmpty() ? other : name;
    }
    return name.isEmpty() ? QStringLiteral("-") : name;
}

Dish *DishInDietDay::dish() const { return one<"dish">(); }

void DishInDietDay::setDish(Dish *value) { setOne<"dish">(value); }

TimeRow *DishInDietDay::jornalTimeRow() const { return one<"jornalTimeRow">(); }

void DishInDietDay::setJornalTimeRow(TimeRow *value) { setOne<"jornalTimeRow">(value); }

} // namespace kesto
