#pragma once

namespace kesto
{

/// Receives the answer of the period selector: 0 for all phases, otherwise the phase's number plus 1.
class PeriodSelectorDelegate
{
public:
    virtual ~PeriodSelectorDelegate() = default;
    virtual void updateToPeriod(int period) = 0;
};

} // namespace kesto
