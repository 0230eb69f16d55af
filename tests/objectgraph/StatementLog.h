#pragma once

#include <QStringList>

namespace kesto::test
{

/// Collects the statements that connections opened during its life run. One at a time.
class StatementLog
{
public:
    StatementLog();
    ~StatementLog();
    StatementLog(const StatementLog &) = delete;
    StatementLog &operator=(const StatementLog &) = delete;

    /// The statements so far; starts anew.
    [[nodiscard]] QStringList take();
    /// How many there were so far; starts anew.
    [[nodiscard]] qsizetype count() { return take().size(); }
};

} // namespace kesto::test
