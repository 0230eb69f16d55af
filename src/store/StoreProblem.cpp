#include "store/StoreProblem.h"

#include "platform/objectgraph/StoreRefusal.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <algorithm>

namespace kesto
{

namespace
{

const QString kLog = QStringLiteral("-wal");

StoreProblem::Kind kindOf(int code)
{
    switch (static_cast<StoreRefusal>(code)) {
    case StoreRefusal::NewerModel:
        return StoreProblem::Kind::Newer;
    case StoreRefusal::Damaged:
    case StoreRefusal::ForeignDatabase:
        return StoreProblem::Kind::Damaged;
    default:
        break;
    }
    switch (code & 0xff) { // the extended code without its extension
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return StoreProblem::Kind::Damaged;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return StoreProblem::Kind::InUse;
    case SQLITE_FULL:
        return StoreProblem::Kind::NoSpace;
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_CANTOPEN:
        return StoreProblem::Kind::NoPermission;
    default:
        return StoreProblem::Kind::Other;
    }
}

QString copyPath(const QString &path, int number) { return QStringLiteral("%1.damaged-%2").arg(path).arg(number); }

/// The number of the latest copy; 0 when there is none.
int lastCopy(const QString &path)
{
    const QFileInfo file(path);
    const QString prefix = file.fileName() + QStringLiteral(".damaged-");
    int last = 0;
    for (const QString &name : file.dir().entryList({prefix + u'*'}, QDir::Files | QDir::Hidden)) {
        const QString number = name.mid(prefix.size());
        last = std::max(last, number.left(number.indexOf(u'-')).toInt());
    }
    return last;
}

Result<void> rename(const QString &from, const QString &to)
{
    QFile file(from); // QFile does not replace an existing file
    if (!file.rename(to))
        return failure(QStringLiteral("cannot set the store file aside"), from, file.errorString());
    return {};
}

} // namespace

StoreProblem storeProblem(const QString &path, const Error &error)
{
    return {.kind = kindOf(error.code), .path = path, .reason = error.reason};
}

QString pathForStoreCopy(const QString &path) { return copyPath(path, lastCopy(path) + 1); }

Result<QString> setStoreAside(const QString &path)
{
    const QString copy = pathForStoreCopy(path);
    if (Result<void> moved = rename(path, copy); !moved)
        return tl::unexpected(moved.error());
    if (Result<void> moved = finishSettingAside(path); !moved)
        return tl::unexpected(moved.error());
    return copy;
}

Result<void> finishSettingAside(const QString &path)
{
    const QString log = path + kLog;
    if (QFile::exists(path) || !QFile::exists(log))
        return {};
    const int last = lastCopy(path);
    return last > 0 ? rename(log, copyPath(path, last) + kLog) : Result<void>();
}

} // namespace kesto
