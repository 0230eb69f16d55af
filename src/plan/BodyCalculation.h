#pragma once

#include <QString>

namespace kesto
{

/// What is known of a body. 0 means that nothing was entered.
struct BodyInputs
{
    float weight = 0; ///< kilograms
    float height = 0; ///< centimetres
    bool male = false;
    int handType = 1;       ///< size class of the wrist: 0 small, 1 medium, 2 large
    float wantedWeight = 0; ///< kilograms
};

/// What follows for the body and for the lengths of the diet's phases. All arithmetic is single precision.
struct BodyCalculation
{
    float bmi = 0;
    QString bodyStatus;     ///< key of its text
    float idealWeidht = 0;  ///< kilograms, whole
    float wantedWeight = 0; ///< as entered, otherwise the ideal one
    float difWeight = 0;    ///< to lose; negative for who wants to gain
    int period1 = 0;        ///< days of Attack
    int period2 = 0;        ///< days of Cruise; negative like difWeight
    int period3 = 0;        ///< days of Consolidation; negative like difWeight

    [[nodiscard]] static BodyCalculation calculate(const BodyInputs &inputs);

    [[nodiscard]] static QString statusForBmi(float bmi);
    [[nodiscard]] static int attackDays(float difWeight);
};

} // namespace kesto
