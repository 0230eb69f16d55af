#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

namespace kesto
{

/// The user's small settings that follow them from device to device. Values are those of a property list.
class CloudKeyValueStore : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// The value of a key; an invalid variant is absent.
    [[nodiscard]] virtual QVariant objectForKey(const QString &key) const = 0;
    /// Stores a value; an invalid variant removes the key.
    virtual void setObject(const QVariant &value, const QString &key) = 0;
    /// Asks for an exchange with the cloud soon. False when it can't be asked now; nothing is lost then.
    virtual bool synchronize() = 0;

Q_SIGNALS:
    /// Another device changed the store. Emitted on the main thread, after the values are there to be read.
    void didChangeExternally();
};

} // namespace kesto
