#pragma once

#include <QMetaType>
#include <QString>
#include <QVariant>

namespace kesto
{

/// An object whose values can be asked for by name.
class KeyValueCoding
{
public:
    virtual ~KeyValueCoding() = default;
    /// The value of a name; an invalid variant is absent.
    [[nodiscard]] virtual QVariant valueForKey(const QString &key) const = 0;
};

} // namespace kesto

Q_DECLARE_METATYPE(kesto::KeyValueCoding *)
