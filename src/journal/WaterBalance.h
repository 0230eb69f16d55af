#pragma once

#include <QVariantMap>

#include <optional>
#include <vector>

namespace kesto
{

class FoodObject;
class TimeRow;

/// One portion of drink of a day.
struct WaterIntake
{
    float time = 0;               ///< hours.minutes; 0 when it is not known
    int portion = 0;              ///< its key; 0 when it is not known
    FoodObject *record = nullptr; ///< null for a drink of the schedule
};

/// What was drunk, the earliest first: the drinks of the rows that are done, one a row, and the records of their own.
/// Drinks of one minute stay in this order.
[[nodiscard]] std::vector<WaterIntake> waterIntake(const std::vector<TimeRow *> &doneRows,
                                                   const std::vector<FoodObject *> &records);

/// Millilitres by the volumes that the portions have now.
[[nodiscard]] int waterDrunk(const std::vector<WaterIntake> &intake, const QVariantMap &portions);

/// Millilitres a day for a body of so many kilograms, in single precision; a weight of nobody gives at most what an
/// integer holds. Without a weight that of 80 kg.
[[nodiscard]] int waterNorm(std::optional<float> weight, bool woman);

} // namespace kesto
