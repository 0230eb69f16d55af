#include "support/LogCapture.h"

#include <QMutexLocker>

#include <utility>

namespace kesto::test
{

namespace
{

LogCapture *current = nullptr;
QMutex mutex; // guards current and its lines: stores are attached in the background, and may outlive a capture

} // namespace

LogCapture::LogCapture()
    : previous_(nullptr)
{
    const QMutexLocker lock(&mutex);
    Q_ASSERT(!current);
    current = this;
    previous_ = qInstallMessageHandler(&LogCapture::handle);
}

LogCapture::~LogCapture()
{
    qInstallMessageHandler(previous_);
    const QMutexLocker lock(&mutex);
    current = nullptr;
}

QStringList LogCapture::lines() const
{
    const QMutexLocker lock(&mutex);
    return lines_;
}

QStringList LogCapture::take()
{
    const QMutexLocker lock(&mutex);
    return std::exchange(lines_, {});
}

void LogCapture::handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const QMutexLocker lock(&mutex);
    if (current == nullptr)
        return;
    // Qt's own messages have categories of theirs or are warnings.
    if (type == QtInfoMsg && qstrcmp(context.category, "default") == 0)
        current->lines_.append(message);
    else if (current->previous_)
        current->previous_(type, context, message);
}

} // namespace kesto::test
