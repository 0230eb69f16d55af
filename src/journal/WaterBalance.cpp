#include "journal/WaterBalance.h"

#include "journal/WaterVals.h"
#include "model/FoodObject.h"
#include "model/TimeObject.h"
#include "model/TimeRow.h"

#include <algorithm>
#include <limits>

namespace kesto
{

namespace
{

constexpr int waterType = 0;
constexpr float usualWeight = 80;
constexpr double litresPerKilogram = 0.03;
constexpr double litresMoreForWomen = 0.2;
constexpr float millilitresPerLitre = 1000;

const TimeObject *waterOf(const TimeRow &row)
{
    for (const TimeObject *item : row.timeObjects()) {
        if (item->type() == waterType)
            return item;
    }
    return nullptr;
}

} // namespace

std::vector<WaterIntake> waterIntake(const std::vector<TimeRow *> &doneRows, const std::vector<FoodObject *> &records)
{
    std::vector<WaterIntake> intake;
    for (const TimeRow *row : doneRows) {
        if (const TimeObject *water = waterOf(*row))
            intake.push_back({.time = row->time().value_or(0), .portion = water->waterType().value_or(0)});
    }
    for (FoodObject *record : records)
        intake.push_back({.time = record->time().value_or(0), .portion = record->type().value_or(0), .record = record});
    std::stable_sort(intake.begin(), intake.end(),
                     [](const WaterIntake &left, const WaterIntake &right) { return left.time < right.time; });
    return intake;
}

int waterDrunk(const std::vector<WaterIntake> &intake, const QVariantMap &portions)
{
    qint64 sum = 0;
    for (const WaterIntake &each : intake)
        sum += waterVolume(portions, each.portion);
    return static_cast<int>(std::min<qint64>(sum, std::numeric_limits<int>::max()));
}

int waterNorm(std::optional<float> weight, bool woman)
{
    auto litres = static_cast<float>(static_cast<double>(weight.value_or(usualWeight)) * litresPerKilogram);
    if (woman)
        litres = static_cast<float>(static_cast<double>(litres) + litresMoreForWomen);
    const float millilitres = litres * millilitresPerLitre;
    constexpr auto most = static_cast<double>(std::numeric_limits<int>::max());
    return static_cast<int>(std::clamp(static_cast<double>(millilitres), -most, most)); // truncates toward zero
}

} // namespace kesto
