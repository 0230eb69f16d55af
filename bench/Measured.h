#pragma once

#include <QByteArray>
#include <QObject>

#include <functional>

class QQuickWindow;

namespace kesto::bench
{

/// The side of a measured process: says on its standard output, line by line, what it did, and does what it is told on
/// its standard input. It ends when that is closed.
class Measured : public QObject
{
public:
    using Command = std::function<void(const QByteArray &line)>;

    /// Says "frame <width> <height>" when the window shows its first frame.
    Measured(QQuickWindow &window, Command command);

    static void say(const QByteArray &line);

private:
    void read();

    QByteArray unread_;
    Command command_;
    bool shown_ = false;
};

} // namespace kesto::bench
