#include "platform/objectgraph/PersistentStoreCoordinator.h"

#include "platform/Log.h"
#include "platform/objectgraph/SqlStore.h"

#include <QFile>
#include <QFileInfo>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <optional>
#include <system_error>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace kesto
{

namespace
{

const QString kCannotMove = QStringLiteral("cannot move the store");

tl::unexpected<Error> alreadyMoving(const QString &path)
{
    return failure(QStringLiteral("cannot use another store"), path,
                   QStringLiteral("the store is being moved to another file"));
}
constexpr int kPagesPerStep = 64; // a quarter of a megabyte: a writer waits for about a millisecond

/// Makes a rename survive a power loss.
Result<void> syncFolderOf(const QString &path)
{
#ifdef Q_OS_UNIX
    const int folder = ::open(QFile::encodeName(QFileInfo(path).absolutePath()).constData(), O_RDONLY | O_CLOEXEC);
    // EINVAL: the file system can't sync folders.
    const int code = folder < 0 || (::fsync(folder) != 0 && errno != EINVAL) ? errno : 0;
    if (folder >= 0)
        ::close(folder);
    if (code != 0)
        return failure(kCannotMove, path, QString::fromStdString(std::generic_category().message(code)), code);
#else
    Q_UNUSED(path)
#endif
    return {};
}

/// Files that SQLite may leave beside a database.
constexpr std::array companions{"-wal", "-shm", "-journal"};

void removeWithLog(const QString &path)
{
    for (const char *suffix : companions)
        QFile::remove(path + QLatin1String(suffix));
    QFile::remove(path);
}

/// Ends a move that failed after its target was installed.
void removeTarget(const QString &path)
{
    removeWithLog(path);
    if (auto synced = syncFolderOf(path); !synced)
        log(synced.error().message());
}

/// Puts a finished copy in the target's place. First removes a log that a killed process left beside the target,
/// because SQLite would replay it into the new file.
Result<void> install(const QString &temporary, const QString &path)
{
    for (const char *suffix : companions) {
        QFile companion(path + QLatin1String(suffix));
        if (companion.exists() && !companion.remove())
            return failure(kCannotMove, companion.fileName(), companion.errorString());
    }
    std::error_code reason;
    std::filesystem::rename(QFile::encodeName(temporary).toStdString(), QFile::encodeName(path).toStdString(), reason);
    if (reason)
        return failure(kCannotMove, path, QString::fromStdString(reason.message()), reason.value());
    return syncFolderOf(path);
}

} // namespace

/// A copy of the attached store's pages, made in small steps under the lock.
class PersistentStoreCoordinator::CopySteps
{
public:
    CopySteps(const PersistentStoreCoordinator &coordinator, sqlite3 *target, const QString &path)
        : coordinator_(coordinator)
        , target_(target)
        , path_(path)
    {
        const Access source = coordinator_.access();
        if (!source)
            problem_ = QStringLiteral("no persistent store is attached");
        else if (QFileInfo(source->path()) == QFileInfo(path))
            problem_ = QStringLiteral("it is the attached store itself");
        else
            steps_ = sqlite3_backup_init(target, "main", source->handle(), "main");
    }
    ~CopySteps()
    {
        const Access source = coordinator_.access();
        sqlite3_backup_finish(steps_);
    }
    CopySteps(const CopySteps &) = delete;
    CopySteps &operator=(const CopySteps &) = delete;

    /// Copies while others get in between, until what is left is little.
    bool runUntilNearlyDone()
    {
        for (int pages = 0; steps_ != nullptr; pages = kPagesPerStep) {
            {
                // The first call, for 0 pages, only counts them. The last ones are left to finish(), because a backup
                // that is complete no longer follows the writers.
                const Access source = coordinator_.access();
                if (sqlite3_backup_step(steps_, pages) != SQLITE_OK)
                    return false;
                if (sqlite3_backup_remaining(steps_) <= kPagesPerStep)
                    return true;
            }
            std::this_thread::sleep_for(
                std::chrono::microseconds(200)); // lets a waiting writer in: the mutex is not fair
        }
        return false;
    }

    /// Copies the rest and commits the copy. The caller holds the lock from before this until the copy is in use.
    bool finish()
    {
        const int result = sqlite3_backup_step(steps_, -1);
        const int committed = sqlite3_backup_finish(steps_);
        steps_ = nullptr;
        return result == SQLITE_DONE && committed == SQLITE_OK;
    }

    [[nodiscard]] tl::unexpected<Error> error() const
    {
        if (!problem_.isNull())
            return failure(kCannotMove, path_, problem_);
        return failure(kCannotMove, path_, QString::fromUtf8(sqlite3_errmsg(target_)),
                       sqlite3_extended_errcode(target_));
    }

private:
    const PersistentStoreCoordinator &coordinator_;
    sqlite3 *target_;
    const QString &path_;
    sqlite3_backup *steps_ = nullptr;
    QString problem_;
};

PersistentStoreCoordinator::PersistentStoreCoordinator(const ManagedObjectModel &model)
    : model_(model)
{
}

PersistentStoreCoordinator::~PersistentStoreCoordinator() { waitForBackgroundWork(); }

void PersistentStoreCoordinator::performLocked(std::function<void()> work)
{
    std::unique_lock lock(mutex_);
    attached_.wait(lock, [this] { return !attaching_; });
    attaching_ = true;
    const std::lock_guard threadsLock(threadsMutex_);
    threads_.emplace_back([this, work = std::move(work)] {
        {
            const std::lock_guard attach(mutex_);
            attacher_ = std::this_thread::get_id();
        }
        work();
        {
            const std::lock_guard attach(mutex_);
            attaching_ = false;
        }
        attached_.notify_all();
    });
}

void PersistentStoreCoordinator::perform(std::function<void()> work)
{
    const std::lock_guard lock(threadsMutex_);
    threads_.emplace_back(std::move(work));
}

void PersistentStoreCoordinator::waitForBackgroundWork()
{
    for (;;) {
        std::vector<std::thread> running;
        {
            const std::lock_guard lock(threadsMutex_);
            running.swap(threads_);
        }
        if (running.empty())
            return;
        for (std::thread &thread : running)
            thread.join();
    }
}

PersistentStoreCoordinator::Access PersistentStoreCoordinator::access() const
{
    std::unique_lock lock(mutex_);
    if (attaching_ && std::this_thread::get_id() != attacher_)
        attached_.wait(lock, [this] { return !attaching_; });
    return {std::move(lock), store_.get()};
}

Result<void> PersistentStoreCoordinator::addPersistentStore(const QString &path, const PersistentStoreOptions &options)
{
    const auto lock = access();
    if (moving_)
        return alreadyMoving(path);
    auto opened = SqlStore::open(path, model_);
    if (!opened)
        return tl::unexpected(std::move(opened.error()));
    store_ = std::move(*opened);
    options_ = options;
    return {};
}

QString PersistentStoreCoordinator::persistentStorePath() const
{
    const auto lock = access();
    return lock ? lock->path() : QString();
}

PersistentStoreOptions PersistentStoreCoordinator::persistentStoreOptions() const
{
    const auto lock = access();
    return options_;
}

Result<void> PersistentStoreCoordinator::migratePersistentStore(const QString &path,
                                                                const PersistentStoreOptions &options,
                                                                const std::function<Result<void>()> &beforeUse)
{
    {
        const auto lock = access();
        if (moving_)
            return alreadyMoving(path);
        moving_ = true;
    }
    const QString temporary = path + QStringLiteral(".migrating");
    removeWithLog(temporary); // what a killed move left
    Result<void> moved;
    try {
        moved = copyAndInstall(temporary, path, options, beforeUse);
    } catch (const SQLite::Exception &exception) {
        moved = failure(kCannotMove, path, QString::fromUtf8(exception.what()), exception.getExtendedErrorCode());
    }
    removeWithLog(temporary);
    const auto lock = access();
    moving_ = false;
    return moved;
}

Result<void> PersistentStoreCoordinator::copyAndInstall(const QString &temporary, const QString &path,
                                                        const PersistentStoreOptions &options,
                                                        const std::function<Result<void>()> &beforeUse)
{
    SqlStore::makeFile(temporary);
    std::optional<SQLite::Database> copy(std::in_place, QFile::encodeName(temporary).toStdString(),
                                         SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    copy->exec("PRAGMA locking_mode=EXCLUSIVE");
    copy->exec("PRAGMA synchronous=FULL");
    // Reads through the connection that writes, so that SQLite includes what is written meanwhile.
    CopySteps steps(*this, copy->getHandle(), path);
    if (!steps.runUntilNearlyDone())
        return steps.error();
    const Access source = access();
    if (!steps.finish())
        return steps.error();
    if (copy->execAndGet("PRAGMA quick_check").getString() != "ok")
        return failure(kCannotMove, path, QStringLiteral("the copy is damaged"));
    copy.reset(); // with its lock on the file
    if (auto installed = install(temporary, path); !installed) {
        if (!QFile::exists(temporary)) // renamed, but perhaps not durably
            removeTarget(path);
        return installed;
    }
    auto opened = SqlStore::open(path, model_);
    Result<void> usable;
    if (!opened)
        usable = tl::unexpected(std::move(opened.error()));
    else if (beforeUse)
        usable = beforeUse();
    if (!usable) {
        if (opened)
            opened->reset(); // closed before its file is removed
        removeTarget(path);
        return usable;
    }
    store_ = std::move(*opened);
    options_ = options;
    return {};
}

} // namespace kesto
