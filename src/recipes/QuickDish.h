#pragma once

#include <functional>

class QObject;

namespace kesto
{

class Dish;

/// Asks for the name of a dish that has no recipe, makes it and hands it to add; then puts its name into the shopping
/// list if the user wants that. Nothing happens without a name, or when context is gone.
void askForQuickDish(QObject *context, const std::function<void(Dish &)> &add);

} // namespace kesto
