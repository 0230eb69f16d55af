#pragma once

#include <QDateTime>

namespace kesto
{

/// The present moment.
class Clock
{
public:
    virtual ~Clock() = default;
    /// Now, in UTC, whole milliseconds.
    [[nodiscard]] virtual QDateTime now() const = 0;
};

class SystemClock final : public Clock
{
public:
    [[nodiscard]] QDateTime now() const override;
};

} // namespace kesto
