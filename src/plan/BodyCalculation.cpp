#include "plan/BodyCalculation.h"

#include <cmath>
#include <limits>

namespace kesto
{

namespace
{

constexpr float usualWeight = 60;
constexpr float usualHeight = 1.7F;
constexpr float cruiseDaysPerKilogram = 7;
constexpr float consolidationDaysPerKilogram = 10;

/// Rounds toward zero and clamps to the range of int; 0 for NaN.
int truncated(float value)
{
    constexpr float beyond = 2147483648.0F;
    if (std::isnan(value))
        return 0;
    if (value >= beyond)
        return std::numeric_limits<int>::max();
    if (value <= -beyond)
        return std::numeric_limits<int>::min();
    return static_cast<int>(value);
}

float idealWeightFor(const BodyInputs &inputs, float squareMetres)
{
    switch (inputs.handType) {
    case 0:
        return squareMetres * 18.5F;
    case 2:
        return static_cast<float>(squareMetres * 24.9); // the one product in double precision
    default:
        return squareMetres * (inputs.male ? 23.0F : 21.5F);
    }
}

} // namespace

BodyCalculation BodyCalculation::calculate(const BodyInputs &inputs)
{
    const float weight = inputs.weight == 0 ? usualWeight : inputs.weight;
    const float metres = inputs.height == 0 ? usualHeight : inputs.height / 100.0F;
    const float squareMetres = metres * metres;

    BodyCalculation result;
    result.bmi = weight / squareMetres;
    result.bodyStatus = statusForBmi(result.bmi);
    result.idealWeidht = std::round(idealWeightFor(inputs, squareMetres));
    result.wantedWeight = inputs.wantedWeight == 0 ? result.idealWeidht : inputs.wantedWeight;
    result.difWeight = weight - result.wantedWeight;
    result.period1 = attackDays(result.difWeight);
    result.period2 = truncated(result.difWeight * cruiseDaysPerKilogram);
    result.period3 = truncated(result.difWeight * consolidationDaysPerKilogram);
    return result;
}

QString BodyCalculation::statusForBmi(float bmi)
{
    if (bmi <= 16)
        return QStringLiteral("Значительно ниже нормы");
    if (bmi <= 18.5F)
        return QStringLiteral("Недовес");
    if (bmi <= 25)
        return QStringLiteral("Нормальный диапазон");
    if (bmi <= 30)
        return QStringLiteral("Избыточный вес");
    if (bmi <= 35)
        return QStringLiteral("Умеренное ожирение");
    return QStringLiteral("Значительное ожирение");
}

int BodyCalculation::attackDays(float difWeight)
{
    if (difWeight >= 26)
        return 7;
    if (difWeight >= 22)
        return 6;
    if (difWeight >= 15)
        return 5;
    if (difWeight >= 10)
        return 4;
    return difWeight >= 5 ? 3 : 2;
}

} // namespace kesto
