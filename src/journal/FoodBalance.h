#pragma once

#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace kesto
{

class FoodObject;

/// A food that protein is counted of.
struct Food
{
    /// What it is among foods, which gives it its colours.
    enum class Kind { Vegetable, Grain, Meat, Egg, Fruit, Fish, Dairy };

    double protein = 0; ///< grams in 100 g
    Kind kind = Kind::Vegetable;
};

inline constexpr int foodCount = 40;

/// The foods by their types, which count from 1.
[[nodiscard]] const std::array<Food, foodCount> &meatVals();

/// Null when there is no food of a type.
[[nodiscard]] const Food *foodOfType(std::optional<int> type);
/// The picture of a food; that of protein when there is none of that type.
[[nodiscard]] QString foodImage(std::optional<int> type);
/// Null when there is no food of that type.
[[nodiscard]] QString foodName(std::optional<int> type);
/// "2.5 г.": what 100 g of a food hold; null when there is no food of that type.
[[nodiscard]] QString foodProteinText(std::optional<int> type);

/// Portions of 100 g that a record stands for; 0 when its number is absent or below.
[[nodiscard]] int foodPortions(const FoodObject &record);
/// Grams of protein, of which each portion counts whole ones only: the food of 2.5 g counts 2. Foods of no known type
/// count nothing.
[[nodiscard]] int proteinEaten(const std::vector<FoodObject *> &records);

/// Levels of activity are 1 (light) to 4 (very hard); anything else counts as none.
inline constexpr int activityCount = 4;
/// Grams of protein a day. Above the age of 40 less is needed.
[[nodiscard]] int proteinNorm(bool man, qint64 age, int activity);

} // namespace kesto
