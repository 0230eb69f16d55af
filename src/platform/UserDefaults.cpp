#include "platform/UserDefaults.h"

#include "platform/AtomicFile.h"
#include "platform/Log.h"
#include "platform/PropertyList.h"

#include <QTimer>

#include <chrono>
#include <cmath>
#include <limits>
#include <utility>

namespace kesto
{

UserDefaults::UserDefaults(QString path, QObject *parent)
    : QObject(parent)
    , path_(std::move(path))
{
    AtomicFile::removeLeftOvers(path_);
    Result<QVariantMap> content = PropertyList::readOrSetAside(path_);
    if (content) {
        stored_ = std::move(*content);
    } else {
        readError_ = content.error();
        log(readError_->message());
    }
}

UserDefaults::~UserDefaults() { synchronize(); }

std::optional<Error> UserDefaults::readError() const
{
    const std::lock_guard lock(mutex_);
    return readError_;
}

void UserDefaults::registerDefaults(const QVariantMap &defaults)
{
    for (auto entry = defaults.begin(); entry != defaults.end(); ++entry) {
        const std::optional<QVariant> value = PropertyList::normalized(entry.value());
        if (!value) {
            log("The default for %@ is of a type that can't be stored", entry.key());
            continue;
        }
        const std::lock_guard lock(mutex_);
        registered_.insert(entry.key(), *value);
    }
}

QVariant UserDefaults::valueForKey(const QString &key) const
{
    const std::lock_guard lock(mutex_);
    const auto found = stored_.find(key);
    return found != stored_.end() ? *found : registered_.value(key);
}

void UserDefaults::setValue(const QVariant &value, const QString &key)
{
    if (!value.isValid() || (value.typeId() == QMetaType::QString && value.toString().isNull())) {
        removeObjectForKey(key);
        return;
    }
    const std::optional<QVariant> normal = PropertyList::normalized(value);
    if (!normal) {
        log("The value for %@ is of a type that can't be stored: %@", key, value.typeName());
        return;
    }
    const std::lock_guard lock(mutex_);
    const auto found = stored_.find(key);
    // QVariant compares 1, 1.0 and true as equal, inside of lists, too, but the types are part of what is stored.
    const bool container = normal->typeId() == QMetaType::QVariantList || normal->typeId() == QMetaType::QVariantMap;
    if (found != stored_.end() && !container && found->typeId() == normal->typeId() && *found == *normal)
        return;
    stored_.insert(key, *normal);
    changed();
}

void UserDefaults::removeObjectForKey(const QString &key)
{
    const std::lock_guard lock(mutex_);
    if (readError_)
        removedUnread_.insert(key);
    if (stored_.remove(key) > 0 || readError_)
        changed();
}

qint64 UserDefaults::integerForKey(const QString &key) const
{
    const QVariant value = valueForKey(key);
    bool whole = false;
    switch (value.typeId()) {
    case QMetaType::LongLong:
    case QMetaType::Bool:
        return value.toLongLong();
    case QMetaType::QString:
        if (const qint64 number = value.toString().toLongLong(&whole); whole)
            return number;
        break;
    case QMetaType::Double:
        break;
    default:
        return 0;
    }
    const double number = value.toDouble();
    if (std::isnan(number))
        return 0;
    if (number >= 9223372036854775808.0) // 2^63, the first that does not fit
        return std::numeric_limits<qint64>::max();
    if (number < -9223372036854775808.0)
        return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(number);
}

float UserDefaults::floatForKey(const QString &key) const
{
    const QVariant value = valueForKey(key);
    switch (value.typeId()) {
    case QMetaType::LongLong:
    case QMetaType::Bool:
    case QMetaType::Double:
        return value.toFloat();
    case QMetaType::QString:
        return value.toString().toFloat();
    default:
        return 0;
    }
}

bool UserDefaults::boolForKey(const QString &key) const
{
    const QVariant value = valueForKey(key);
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::LongLong:
        return value.toLongLong() != 0;
    case QMetaType::Double:
    case QMetaType::QString: // text that is no number reads as 0
        return value.toDouble() != 0;
    default:
        return false;
    }
}

QString UserDefaults::stringForKey(const QString &key) const
{
    const QVariant value = valueForKey(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

std::optional<QDateTime> UserDefaults::dateForKey(const QString &key) const
{
    const QVariant value = valueForKey(key);
    if (value.typeId() != QMetaType::QDateTime)
        return std::nullopt;
    return value.toDateTime();
}

QStringList UserDefaults::stringArrayForKey(const QString &key) const
{
    QStringList texts;
    const QVariant value = valueForKey(key);
    if (value.typeId() != QMetaType::QVariantList)
        return texts;
    for (const QVariant &element : value.toList()) {
        if (element.typeId() == QMetaType::QString)
            texts.append(element.toString());
    }
    return texts;
}

void UserDefaults::setInteger(qint64 value, const QString &key) { setValue(value, key); }
void UserDefaults::setFloat(float value, const QString &key) { setValue(value, key); }
void UserDefaults::setBool(bool value, const QString &key) { setValue(value, key); }

Result<void> UserDefaults::synchronize()
{
    const std::lock_guard write(writing_);
    Result<void> done;
    if (readError())
        done = readAgain();
    if (done) {
        QVariantMap snapshot;
        {
            const std::lock_guard lock(mutex_);
            writeRequested_ = false;
            if (!dirty_)
                return {};
            dirty_ = false;
            snapshot = stored_;
        }
        done = PropertyList::write(snapshot, path_);
    }
    if (!done) {
        log(done.error().message());
        const std::lock_guard lock(mutex_);
        writeRequested_ = false;
        dirty_ = true;
    }
    return done;
}

Result<void> UserDefaults::readAgain()
{
    Result<QVariantMap> content = PropertyList::readOrSetAside(path_);
    const std::lock_guard lock(mutex_);
    if (!content) {
        readError_ = content.error();
        return tl::unexpected(content.error());
    }
    for (const QString &key : std::as_const(removedUnread_))
        content->remove(key);
    content->insert(stored_);
    stored_ = std::move(*content);
    readError_.reset();
    removedUnread_.clear();
    return {};
}

void UserDefaults::changed()
{
    dirty_ = true;
    if (std::exchange(writeRequested_, true))
        return;
    // Runs on the thread of this object, whichever thread the change came from; all changes until then go in one write.
    QMetaObject::invokeMethod(this, &UserDefaults::writeLater, Qt::QueuedConnection);
}

void UserDefaults::writeLater()
{
    if (!synchronize())
        QTimer::singleShot(std::chrono::minutes(1), this, &UserDefaults::writeLater);
}

} // namespace kesto
