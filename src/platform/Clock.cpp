#include "platform/Clock.h"

namespace kesto
{

QDateTime SystemClock::now() const { return QDateTime::currentDateTimeUtc(); }

} // namespace kesto
