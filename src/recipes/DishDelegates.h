#pragma once

namespace kesto
{

class Dish;

/// Adds a dish that the user chose to a day or to a row of the journal. Decides whether a dish may be added twice.
class AddDishDelegate
{
public:
    virtual ~AddDishDelegate() = default;
    virtual void addDish(Dish &dish) = 0;
};

/// Told that the dish of a screen that it opened was deleted.
class DeleteDishDelegate
{
public:
    virtual ~DeleteDishDelegate() = default;
    virtual void dishDeleted() = 0;
};

} // namespace kesto
