#pragma once

#include "platform/RandomSource.h"

#include <QList>

namespace kesto::test
{

/// Gives the numbers that a test sets, each modulo the bound asked for, over and over; 0 when none are set.
class SequenceRandomSource final : public RandomSource
{
public:
    void set(const QList<quint32> &numbers)
    {
        numbers_ = numbers;
        bounds_.clear();
    }
    /// The bounds asked for since the numbers were set.
    [[nodiscard]] const QList<quint32> &bounds() const { return bounds_; }

    [[nodiscard]] quint32 uniform(quint32 upperBound) override
    {
        const quint32 number = numbers_.isEmpty() ? 0 : numbers_[bounds_.size() % numbers_.size()];
        bounds_.append(upperBound);
        return upperBound < 2 ? 0 : number % upperBound;
    }

private:
    QList<quint32> numbers_;
    QList<quint32> bounds_;
};

} // namespace kesto::test
