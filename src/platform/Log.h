#pragma once

#include "platform/StringFormat.h"

namespace kesto
{

/// A line on the console, exactly as given. Any thread.
void log(const QString &message);

/// A line made by stringWithFormat().
template <class... Arguments>
requires(sizeof...(Arguments) > 0) void log(const char *format, const Arguments &...arguments)
{
    log(stringWithFormat(format, arguments...));
}

} // namespace kesto
