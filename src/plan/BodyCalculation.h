#pragma once

#include <QString>

namespace kesto
{

/// A body's measures. 0 means that nothing was entered.
struct BodyInputs
{
    float weight = 0; ///< kilograms
    float height = 0; ///< centimetres
    bool male = false;
    int handType = 1;       ///< size class of the wrist: 0 small, 1 medium, 2 large
    float wantedWeight = 0; ///< kilograms
};

/// The results for the body and the lengths of the diet's phases. All arithmetic is single precision.
struct BodyCalculation
{
    float bmi = 0;
    QString bodyStatus;     ///< key of its text
    float idealWeidht = 0;  ///< kilograms, whole
    float wantedWeight = 0; ///< as entered, or the ideal weight
    float difWeight = 0;    ///< kilograms to lose; negative to gain
    int period1 = 0;        ///< days of Attack
    int period2 = 0;        ///< days of Cruise; negative like difWeight
    int period3 = 0;        ///< days of Consolidation; negative like difWeight

    [[nodiscard]] static BodyCalculation calculate(const BodyInputs &inputs);

    [[nodiscard]] static QString statusForBmi(float bmi);
    [[nodiscard]] static int attackDays(float difWeight);
};

} // namespace kesto
