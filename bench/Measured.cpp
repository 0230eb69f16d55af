#include "Measured.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QSocketNotifier>

#include <array>
#include <cstdio>
#include <unistd.h>

namespace kesto::bench
{

Measured::Measured(QQuickWindow &window, Command command)
    : command_(std::move(command))
{
    connect(&window, &QQuickWindow::frameSwapped, this, [this, &window] {
        if (std::exchange(shown_, true))
            return;
        say("frame " + QByteArray::number(window.width()) + ' ' + QByteArray::number(window.height()));
    });
    auto *notifier = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &Measured::read);
}

void Measured::say(const QByteArray &line)
{
    std::fputs((line + '\n').constData(), stdout);
    std::fflush(stdout);
}

void Measured::read()
{
    std::array<char, 256> bytes{};
    const ssize_t count = ::read(STDIN_FILENO, bytes.data(), bytes.size());
    if (count <= 0) {
        QGuiApplication::quit();
        return;
    }
    unread_.append(bytes.data(), count);
    for (qsizetype end = unread_.indexOf('\n'); end >= 0; end = unread_.indexOf('\n')) {
        const QByteArray line = unread_.left(end);
        unread_.remove(0, end + 1);
        command_(line);
    }
}

} // namespace kesto::bench
