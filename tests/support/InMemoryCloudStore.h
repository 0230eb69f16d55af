#pragma once

#include "platform/CloudKeyValueStore.h"

#include <QVariantMap>

namespace kesto::test
{

/// A cloud without a network. changeExternally() is another device.
class InMemoryCloudStore final : public CloudKeyValueStore
{
    Q_OBJECT
public:
    using CloudKeyValueStore::CloudKeyValueStore;

    [[nodiscard]] QVariant objectForKey(const QString &key) const override { return values_.value(key); }
    void setObject(const QVariant &value, const QString &key) override { put(value, key); }
    bool synchronize() override
    {
        ++synchronizeCount_;
        return reachable_;
    }

    void setReachable(bool reachable) { reachable_ = reachable; }
    [[nodiscard]] int synchronizeCount() const { return synchronizeCount_; }
    [[nodiscard]] const QVariantMap &values() const { return values_; }

    void changeExternally(const QVariantMap &changes)
    {
        for (auto entry = changes.begin(); entry != changes.end(); ++entry)
            put(entry.value(), entry.key());
        Q_EMIT didChangeExternally();
    }

private:
    void put(const QVariant &value, const QString &key)
    {
        if (value.isValid())
            values_.insert(key, value);
        else
            values_.remove(key);
    }

    QVariantMap values_;
    bool reachable_ = true;
    int synchronizeCount_ = 0;
};

} // namespace kesto::test
