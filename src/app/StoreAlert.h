#pragma once

#include "store/StoreProblem.h"

#include <functional>

namespace kesto
{

enum class StoreAnswer { StartWithEmptyStore, Quit };

/// Tells the user why the store file cannot be opened and where it is. Offers to set a damaged file aside; every other
/// problem leaves only to quit. Nothing can be entered while the alert is shown.
void showStoreProblem(const StoreProblem &problem, std::function<void(StoreAnswer)> answered);

} // namespace kesto
