#pragma once

#include "support/Printing.h"

#include <QStringList>

namespace kesto::test
{

/// Collects the lines of kesto::log() while it lives; they don't reach the console then. One at a time.
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    [[nodiscard]] QStringList lines() const;
    /// The lines so far; starts anew.
    QStringList take();

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message);

    QtMessageHandler previous_;
    QStringList lines_;
};

} // namespace kesto::test
