#include "support/LogCapture.h"

#include <QMutexLocker>

#include <utility>

namespace kesto::test
{

namespace
{
LogCapture *current = nullptr;
}

LogCapture::LogCapture()
    : previous_(nullptr)
{
    Q_ASSERT(!current);
    current = this;
    previous_ = qInstallMessageHandler(&LogCapture::handle);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(previous_);
    current = nullptr;
}

QStringList LogCapture::lines() const
{
    const QMutexLocker lock(&mutex_);
    return lines_;
}

QStringList LogCapture::take()
{
    const QMutexLocker lock(&mutex_);
    return std::exchange(lines_, {});
}

void LogCapture::handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // Qt's own messages have categories of theirs or are warnings.
    if (type == QtInfoMsg && qstrcmp(context.category, "default") == 0) {
        const QMutexLocker lock(&current->mutex_);
        current->lines_.append(message);
    } else if (current->previous_) {
        current->previous_(type, context, message);
    }
}

} // namespace kesto::test
