#include "journal/TimeRowAdditions.h"

#include "journal/TimeOfDay.h"
#include "model/DietDay.h"
#include "model/DishInDietDay.h"
#include "model/JornalDay.h"
#include "model/TimeObject.h"
#include "model/TimeRow.h"
#include "platform/StringFormat.h"

#include <algorithm>

namespace kesto
{

QString timeDescription(const TimeRow &row) { return timeText(row.time().value_or(0)); }

QString idStirng(const TimeRow &row)
{
    const JornalDay *jornal = row.joranlDay();
    const DietDay *day = jornal != nullptr ? jornal->day() : nullptr;
    return stringWithFormat("%@ - %@", day != nullptr ? day->date() : std::nullopt, row.time());
}

std::vector<DishInDietDay *> sortedDishes(const TimeRow &row)
{
    std::vector<DishInDietDay *> dishes = row.dishesInDietDay();
    std::stable_sort(dishes.begin(), dishes.end(), [](const DishInDietDay *one, const DishInDietDay *other) {
        return one->displayOrder() < other->displayOrder();
    });
    return dishes;
}

bool isEmpty(const TimeRow &row)
{
    return row.timeObjects().empty() && row.dishesInDietDay().empty() && row.otherTimeObject().isNull();
}

} // namespace kesto
