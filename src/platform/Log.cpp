#include "platform/Log.h"

#include <QDebug>

namespace kesto
{

// The default category can't be switched off and its pattern adds nothing, so the line appears as it is.
void log(const QString &message) { qInfo().noquote().nospace() << message; }

} // namespace kesto
