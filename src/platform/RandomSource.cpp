#include "platform/RandomSource.h"

#include <QRandomGenerator>

#include <random>

namespace kesto
{

quint32 SystemRandomSource::uniform(quint32 upperBound)
{
    if (upperBound < 2)
        return 0;
    // Not QRandomGenerator::bounded(), which favours some numbers when the bound is no power of two.
    std::uniform_int_distribution<quint32> numbers(0, upperBound - 1);
    return numbers(*QRandomGenerator::system());
}

} // namespace kesto
