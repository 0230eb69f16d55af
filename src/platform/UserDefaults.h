#pragma once

#include "platform/Error.h"

#include <QDateTime>
#include <QObject>
#include <QSet>
#include <QString>
#include <QVariantMap>

#include <mutex>
#include <optional>

namespace kesto
{

/// Settings by key, kept in one property-list file that only the user may read. Absent differs from 0 and from false.
/// Reading and writing is allowed from every thread. A change is on disk after synchronize(), otherwise soon after the
/// event loop of its own thread turns and at the latest when the object is destroyed; a file is replaced whole or not
/// at all. A write that the event loop started and that failed is tried again every minute.
class UserDefaults : public QObject
{
    Q_OBJECT
public:
    /// Reads the file; one that is not there counts as empty. One that can't be understood is renamed to
    /// "<name>.damaged-<n>", which is logged, and the settings start empty. Also removes what a killed process left
    /// while it wrote the file, which no other process may be using.
    explicit UserDefaults(QString path, QObject *parent = nullptr);
    ~UserDefaults() override;

    /// Set while there is a file whose content could not be read, which is logged: the settings are empty but for what
    /// was set since then. The file stays as it is until a synchronize() can read it.
    [[nodiscard]] std::optional<Error> readError() const;

    /// Values that apply while a key has none stored; they are never written. Later calls add and replace.
    void registerDefaults(const QVariantMap &defaults);

    /// The stored value, else the registered one; invalid when there is neither.
    [[nodiscard]] QVariant valueForKey(const QString &key) const;
    /// Stores a property-list value; an invalid variant or a null text removes the key. Other types are refused and
    /// logged.
    void setValue(const QVariant &value, const QString &key);
    void removeObjectForKey(const QString &key);

    /// Numbers and flags: 0 and false when absent or of another type (text is read as a number where it is one). A
    /// number with a fraction is cut off, one out of range becomes the nearest in range.
    [[nodiscard]] qint64 integerForKey(const QString &key) const;
    [[nodiscard]] float floatForKey(const QString &key) const;
    [[nodiscard]] bool boolForKey(const QString &key) const;
    /// Null when absent or not text.
    [[nodiscard]] QString stringForKey(const QString &key) const;
    /// In UTC; absent when there is no date.
    [[nodiscard]] std::optional<QDateTime> dateForKey(const QString &key) const;
    /// The texts of an array; empty when absent. Elements of another type are left out.
    [[nodiscard]] QStringList stringArrayForKey(const QString &key) const;

    void setInteger(qint64 value, const QString &key);
    void setFloat(float value, const QString &key);
    void setBool(bool value, const QString &key);

    /// Writes what changed to disk. An error is also logged; the values stay in memory and the next call tries again.
    /// If the file could not be read so far, reads it first; what was set or removed meanwhile replaces its values.
    Result<void> synchronize(); // NOLINT(modernize-use-nodiscard): most callers have nobody to tell

private:
    void changed();
    void writeLater();
    Result<void> readAgain();

    const QString path_;
    std::mutex writing_;       // one write at a time; taken before mutex_
    mutable std::mutex mutex_; // guards what follows; never held while the disk works
    QVariantMap stored_;
    QVariantMap registered_;
    std::optional<Error> readError_;
    QSet<QString> removedUnread_; // while readError_ is set
    bool dirty_ = false;
    bool writeRequested_ = false;
};

} // namespace kesto
