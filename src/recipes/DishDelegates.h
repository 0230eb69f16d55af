#pragma once

namespace kesto
{

class Dish;

/// Takes a dish that the user chose for a day or for a row of the journal. Whether a dish may be added again is its
/// decision.
class AddDishDelegate
{
public:
    virtual ~AddDishDelegate() = default;
    virtual void addDish(Dish &dish) = 0;
};

/// Hears that the dish of a screen that it opened was deleted.
class DeleteDishDelegate
{
public:
    virtual ~DeleteDishDelegate() = default;
    virtual void dishDeleted() = 0;
};

} // namespace kesto
