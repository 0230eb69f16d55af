#include "components/ProgressIndicator.h"

#include "platform/Platform.h"

namespace kesto
{

ProgressIndicator &ProgressIndicator::sharedIndicator() { return Platform::current().shared<ProgressIndicator>(); }

ProgressIndicator::ProgressIndicator(Platform &) {}

void ProgressIndicator::show(const QString &text)
{
    texts_.append(text);
    Q_EMIT changed();
}

void ProgressIndicator::hide()
{
    if (texts_.isEmpty())
        return;
    texts_.removeLast();
    Q_EMIT changed();
}

} // namespace kesto
