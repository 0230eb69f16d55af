#pragma once

#include "platform/Error.h"
#include "platform/objectgraph/ManagedObjectModel.h"

#include <QString>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace kesto
{

class SqlStore;

/// How a store file is attached or moved to.
struct PersistentStoreOptions
{
    QString ubiquitousContentName;         ///< the name under which a cloud would keep the content; null: local
    bool removeUbiquitousMetadata = false; ///< the target of a move forgets about the cloud

    bool operator==(const PersistentStoreOptions &) const = default;
};

/// Stands between the context and the store file: holds the one open file behind a lock, attaches it, and moves its
/// content to another file while the program goes on writing. Every member may be called from any thread.
class PersistentStoreCoordinator
{
public:
    /// The model must outlive the coordinator.
    explicit PersistentStoreCoordinator(const ManagedObjectModel &model);
    /// Waits for the background work.
    ~PersistentStoreCoordinator();
    PersistentStoreCoordinator(const PersistentStoreCoordinator &) = delete;
    PersistentStoreCoordinator &operator=(const PersistentStoreCoordinator &) = delete;

    [[nodiscard]] const ManagedObjectModel &managedObjectModel() const { return model_; }

    /// Runs the work on a background thread. The lock is held from before this returns until the work has ended, so
    /// readers wait for it.
    void performLocked(std::function<void()> work);
    /// Runs the work on a background thread of its own, without the lock.
    void perform(std::function<void()> work);
    /// Waits until all background work has ended.
    void waitForBackgroundWork();

    /// Attaches a store file, made when missing, in place of the one attached before. When the file can't be used, it
    /// is left untouched, the coordinator keeps what it had, and the error names the file; its code is SQLite's or a
    /// StoreRefusal.
    [[nodiscard]] Result<void> addPersistentStore(const QString &path, const PersistentStoreOptions &options);

    /// Moves the content of the attached store to another file and goes on with that one; the old file stays on disk.
    /// The content is copied to a temporary name beside the target in small steps between which readers and writers get
    /// in, checked, and renamed, with every write made meanwhile; a target that existed is replaced. `beforeUse` runs
    /// with the lock held once the target is complete and before anybody can write to it; its failure abandons the
    /// move. On failure the coordinator keeps what it had, and nothing of the copy remains. One move at a time; while
    /// it lasts, addPersistentStore() is refused.
    [[nodiscard]] Result<void> migratePersistentStore(const QString &path, const PersistentStoreOptions &options,
                                                      const std::function<Result<void>()> &beforeUse = {});

    /// The path of the attached file; null when there is none.
    [[nodiscard]] QString persistentStorePath() const;
    [[nodiscard]] PersistentStoreOptions persistentStoreOptions() const;

    /// The attached store (null when none) for as long as this exists. Waits for the lock.
    class Access
    {
    public:
        [[nodiscard]] SqlStore *store() const { return store_; }
        SqlStore *operator->() const { return store_; }
        explicit operator bool() const { return store_ != nullptr; }

    private:
        friend class PersistentStoreCoordinator;
        Access(std::unique_lock<std::recursive_mutex> lock, SqlStore *store)
            : lock_(std::move(lock))
            , store_(store)
        {
        }
        std::unique_lock<std::recursive_mutex> lock_;
        SqlStore *store_;
    };
    [[nodiscard]] Access access() const;

private:
    class CopySteps;
    [[nodiscard]] Result<void> copyAndInstall(const QString &temporary, const QString &path,
                                              const PersistentStoreOptions &options,
                                              const std::function<Result<void>()> &beforeUse);

    const ManagedObjectModel &model_;
    mutable std::recursive_mutex mutex_;
    mutable std::condition_variable_any attached_;
    bool attaching_ = false;
    bool moving_ = false;
    std::thread::id attacher_;
    std::unique_ptr<SqlStore> store_;
    PersistentStoreOptions options_;
    std::mutex threadsMutex_;
    std::vector<std::thread> threads_;
};

} // namespace kesto
