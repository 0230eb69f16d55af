#include "recipes/DishChoice.h"

#include "model/Dish.h"
#include "recipes/DishDetailViewController.h"

#include <QPointer>

namespace kesto
{

bool handOver(Dish &dish, AddDishDelegate &delegate)
{
    const size_t places = dish.dishInDietDays().size();
    delegate.addDish(dish);
    return !dish.isDeleted() && dish.dishInDietDays().size() > places;
}

void DishChoice::addDish(Dish &dish)
{
    if (!addMode_ || delegate_ == nullptr)
        return;
    const QPointer<DishChoice> alive(this);
    const bool taken = handOver(dish, *delegate_);
    if (!alive)
        return;
    if (taken)
        taken_.insert(&dish);
    Q_EMIT answered();
}

std::unique_ptr<DishDetailViewController> DishChoice::screenOf(Dish &dish, bool inDay, DeleteDishDelegate &list)
{
    auto screen = std::make_unique<DishDetailViewController>();
    screen->setDish(&dish);
    screen->setDeleteDishDelegate(&list);
    if (addMode_) {
        screen->setAlreadySelectedInDietDay(inDay || hasTaken(dish));
        screen->setDelegate(this);
        screen->setAddDishMode(true);
    }
    return screen;
}

} // namespace kesto
