#pragma once

#include <QtGlobal>

namespace kesto
{

/// Uniform random integers.
class RandomSource
{
public:
    virtual ~RandomSource() = default;
    /// A number in 0 .. upperBound − 1, each equally likely; 0 when upperBound is 0 or 1.
    [[nodiscard]] virtual quint32 uniform(quint32 upperBound) = 0;
};

class SystemRandomSource final : public RandomSource
{
public:
    [[nodiscard]] quint32 uniform(quint32 upperBound) override;
};

} // namespace kesto
