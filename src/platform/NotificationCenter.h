#pragma once

#include <QMetaObject>
#include <QObject>
#include <QString>

namespace kesto
{

class Platform;

/// Tells whoever listens that something happened somewhere in the program. One a platform: Platform::shared(). Main
/// thread only.
class NotificationCenter : public QObject
{
    Q_OBJECT
public:
    explicit NotificationCenter(Platform &) {}

    /// Delivered when the event loop turns: what is posted while a shared manager is being made finds it made.
    void post(const QString &name)
    {
        QMetaObject::invokeMethod(
            this, [this, name] { Q_EMIT posted(name); }, Qt::QueuedConnection);
    }

Q_SIGNALS:
    void posted(const QString &name);
};

} // namespace kesto
