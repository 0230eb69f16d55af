#pragma once

#include "platform/Error.h"
#include "platform/objectgraph/ManagedObject.h"
#include "platform/objectgraph/Predicate.h"

#include <QHash>
#include <QSet>

#include <memory>
#include <optional>
#include <vector>

namespace kesto
{

class PersistentStoreCoordinator;
class SqlStatement;
class SqlStore;

/// The objects in memory: one object a row for the life of the context, with the changes that are not saved yet.
/// Fetches see those changes. Without an attached store fetches find only what was inserted and saves fail. Main thread
/// only.
class ManagedObjectContext
{
public:
    explicit ManagedObjectContext(PersistentStoreCoordinator &coordinator);
    ~ManagedObjectContext();
    ManagedObjectContext(const ManagedObjectContext &) = delete;
    ManagedObjectContext &operator=(const ManagedObjectContext &) = delete;

    [[nodiscard]] PersistentStoreCoordinator &persistentStoreCoordinator() const { return coordinator_; }

    /// A new object, in the store after the next save.
    template <class T>
    T &insert()
    {
        return static_cast<T &>(insert(entityOf<T>()));
    }
    ManagedObject &insert(const EntityDescription &entity);

    /// Takes the object out of every relationship, deletes what its delete rules say, and removes its row with the next
    /// save. When one of the objects concerned can't be read, nothing is deleted or changed, and the next save fails
    /// with the reason.
    void deleteObject(ManagedObject &object);

    /// The objects of an entity that meet a request, in its order. An error when anything could not be read that the
    /// request asks for, also a relationship to be fetched along; the objects read so far are then kept, but no set is.
    template <class T>
    [[nodiscard]] Result<std::vector<T *>> fetch(const FetchRequest &request = {})
    {
        return fetch(entityOf<T>(), request).map([](const std::vector<ManagedObject *> &found) {
            std::vector<T *> typed;
            typed.reserve(found.size());
            for (ManagedObject *object : found)
                typed.push_back(static_cast<T *>(object));
            return typed;
        });
    }
    [[nodiscard]] Result<std::vector<ManagedObject *>> fetch(const EntityDescription &entity,
                                                             const FetchRequest &request);
    /// For lists that are only shown: a fetch that failed is logged and gives nothing.
    template <class T>
    [[nodiscard]] std::vector<T *> fetchOrLog(const FetchRequest &request = {})
    {
        auto found = fetch<T>(request);
        if (!found)
            logFailedFetch(found.error());
        return found ? std::move(*found) : std::vector<T *>();
    }

    /// The object of a key when it is in memory; null otherwise. Never touches the store.
    [[nodiscard]] ManagedObject *registeredObject(const EntityDescription &entity, qint64 id) const;

    /// Writes all changes in one transaction; durable when this succeeds. A failure is logged here; the objects stay as
    /// they were, unsaved, and a later save can succeed. Fails, too, when a change since the last save had to be
    /// refused because an object could not be read. Succeeds at once when there is nothing to save.
    [[nodiscard]] Result<void> save();
    /// Saves where nothing else can be done about a failure: the changes stay in memory and go along with the next
    /// save.
    void saveOrKeepChanges();
    /// Drops every change since the last save: what was inserted is deleted, all else is read again when it is used.
    void rollback();

    [[nodiscard]] bool hasChanges() const;

    template <class T>
    [[nodiscard]] const EntityDescription &entityOf() const
    {
        return entityForTag(&T::kTypeTag);
    }

private:
    friend class ManagedObject;
    friend class Fetcher;
    friend class Saver;

    /// Objects whose values are still to be read, that came from one fetch.
    using Batch = std::vector<ManagedObject *>;

    struct EntityObjects
    {
        QHash<qint64, ManagedObject *> registered;
        std::vector<ManagedObject *> changed;          ///< with unsaved changes, in the order of the first change
        QHash<qint64, std::shared_ptr<Batch>> batches; ///< of those faults that a fetch left to be read in batches
        int batchSize = 0;
        qint64 nextKey = 0; ///< 0: not known yet
    };

    [[nodiscard]] const EntityDescription &entityForTag(const void *tag) const;
    [[nodiscard]] EntityObjects &objectsOf(const EntityDescription &entity)
    {
        return objects_[static_cast<size_t>(entity.index())];
    }
    /// The object of a key, as a fault when it is new.
    ManagedObject *objectFor(const EntityDescription &entity, qint64 id);
    ManagedObject &own(std::unique_ptr<ManagedObject> object);
    /// The object of a row whose columns follow the key at position 0; reads them when the object has no values yet.
    /// Null when there was not enough memory.
    ManagedObject *materialise(const EntityDescription &entity, SqlStatement &row);
    void fireFault(ManagedObject &object);
    void loadToMany(ManagedObject &owner, int slot);
    [[nodiscard]] Result<void> write();
    /// Reads everything that deleting an object changes.
    [[nodiscard]] bool readForDeletion(ManagedObject &object, QSet<ManagedObject *> &visited);
    void unlinkAndDelete(ManagedObject &object);
    void noteChange(ManagedObject &object);
    /// An object's values or one of its sets could not be read.
    void noteFailedRead(ManagedObject &object, Error error);
    void refuseChange(const ManagedObject &unreadable);
    void forgetFailedReads();
    static void logFailedFetch(const Error &error);
    void checkpointLater();

    PersistentStoreCoordinator &coordinator_;
    std::vector<EntityObjects> objects_; ///< by entity index
    std::vector<std::unique_ptr<ManagedObject>> owned_;
    std::vector<ManagedObject *> unreadable_; ///< objects that a read failed for since the last save
    std::optional<Error> lastFailedRead_;     ///< since the last save
    int failedReads_ = 0;                     ///< how many there were
    std::optional<Error> refusedChange_;      ///< the first one since the last save
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
    bool checkpointPending_ = false;
};

} // namespace kesto
