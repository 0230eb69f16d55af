#pragma once

#include <QString>

namespace kesto
{

/// Why the store refused. code is SQLite's extended result code, or 0 when the refusal is our own.
struct StoreError
{
    int code = 0;
    QString description; ///< English, one line, for the log
};

} // namespace kesto
