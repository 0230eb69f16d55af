#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace kesto
{

/// Kilograms of a pound and centimetres of an inch.
inline constexpr double kilogramsPerPound = 0.45359236;
inline constexpr double centimetresPerInch = 2.54;

/// The rows of the calculator's inputs.
enum class CalculatorInput { Age, Sex, Weight, Height, Wrist };

/// The rows of an input's wheels and their values. Stored values are years, kilograms and centimetres.
class CalculatorWheels
{
public:
    CalculatorWheels(CalculatorInput input, bool metrickSystem)
        : input_(input)
        , metric_(metrickSystem)
    {
    }

    [[nodiscard]] int numberOfComponents() const { return input_ == CalculatorInput::Weight ? 2 : 1; }
    [[nodiscard]] int numberOfRows(int component) const;
    [[nodiscard]] QString title(int row, int component) const;
    /// The value to store for these rows of the wheels. For sex and wrist it is the row itself.
    [[nodiscard]] float value(const QList<int> &rows) const;
    /// The row of a wheel that is nearest to a stored value.
    [[nodiscard]] int row(float value, int component) const;

    /// The localised labels of the wrist's classes, and of the sexes.
    [[nodiscard]] static QStringList handTypes();
    [[nodiscard]] static QStringList sexes();
    /// The picture of a class of the wrist.
    [[nodiscard]] static QString handImage(int handType);

private:
    [[nodiscard]] int firstWhole() const;

    CalculatorInput input_;
    bool metric_;
};

} // namespace kesto
