#include "plan/CalculatorWheels.h"

#include "platform/StringFormat.h"
#include "platform/StringTables.h"

#include <algorithm>
#include <cmath>

namespace kesto
{

namespace
{

constexpr int tenths = 10;
constexpr double firstInches = 50;
constexpr double inchesStep = 0.5;

int rounded(double value, int first, int count)
{
    return static_cast<int>(std::clamp(std::round(value) - first, 0.0, count - 1.0));
}

} // namespace

QStringList CalculatorWheels::handTypes()
{
    return {localized(QStringLiteral("Маленькое")), localized(QStringLiteral("Среднее")),
            localized(QStringLiteral("Большое"))};
}

QString CalculatorWheels::handImage(int handType)
{
    static const QStringList images{QStringLiteral("wrist_narrow.png"), QStringLiteral("wrist_average.png"),
                                    QStringLiteral("wrist_wide.png")};
    return images.value(handType);
}

QStringList CalculatorWheels::sexes()
{
    return {localized(QStringLiteral("Мужской")), localized(QStringLiteral("Женский"))};
}

int CalculatorWheels::firstWhole() const
{
    switch (input_) {
    case CalculatorInput::Age:
        return 10;
    case CalculatorInput::Weight:
        return metric_ ? 40 : 100;
    case CalculatorInput::Height:
        return 100;
    default:
        return 0;
    }
}

int CalculatorWheels::numberOfRows(int component) const
{
    switch (input_) {
    case CalculatorInput::Age:
        return 90;
    case CalculatorInput::Sex:
        return 2;
    case CalculatorInput::Weight:
        return component == 1 ? tenths : metric_ ? 151 : 301;
    case CalculatorInput::Height:
        return metric_ ? 100 : 61;
    case CalculatorInput::Wrist:
        return 3;
    }
    return 0;
}

QString CalculatorWheels::title(int row, int component) const
{
    switch (input_) {
    case CalculatorInput::Sex:
        return sexes().value(row);
    case CalculatorInput::Wrist:
        return handTypes().value(row);
    case CalculatorInput::Weight:
        return stringWithFormat("%ld", component == 1 ? row : row + firstWhole());
    case CalculatorInput::Height:
        if (!metric_)
            return stringWithFormat("%0.1f", firstInches + row * inchesStep);
        [[fallthrough]];
    default:
        return stringWithFormat("%ld", row + firstWhole());
    }
}

float CalculatorWheels::value(const QList<int> &rows) const
{
    const int whole = rows.value(0) + firstWhole();
    switch (input_) {
    case CalculatorInput::Weight: {
        const float shown = static_cast<float>(whole) + static_cast<float>(rows.value(1)) / static_cast<float>(tenths);
        return metric_ ? shown : static_cast<float>(shown * kilogramsPerPound);
    }
    case CalculatorInput::Height:
        if (!metric_)
            return static_cast<float>((firstInches + rows.value(0) * inchesStep) * centimetresPerInch);
        [[fallthrough]];
    default:
        return static_cast<float>(whole);
    }
}

int CalculatorWheels::row(float value, int component) const
{
    const int count = numberOfRows(0);
    switch (input_) {
    case CalculatorInput::Weight: {
        const double shown = metric_ ? value : value / kilogramsPerPound;
        const int inTenths = rounded(shown * tenths, firstWhole() * tenths, count * tenths);
        return component == 1 ? inTenths % tenths : inTenths / tenths;
    }
    case CalculatorInput::Height:
        if (!metric_)
            return rounded((value / centimetresPerInch - firstInches) / inchesStep, 0, count);
        [[fallthrough]];
    default:
        return rounded(value, firstWhole(), count);
    }
}

} // namespace kesto
