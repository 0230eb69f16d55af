#pragma once

#include "platform/objectgraph/ManagedObject.h"
#include "platform/objectgraph/Predicate.h"
#include "platform/objectgraph/StoreError.h"

#include <QHash>

#include <memory>
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
    /// save.
    void deleteObject(ManagedObject &object);

    /// The objects of an entity that meet a request, in its order. On an error the result is empty and *error (when
    /// given) is set.
    template <class T>
    [[nodiscard]] std::vector<T *> fetch(const FetchRequest &request = {}, StoreError *error = nullptr)
    {
        const std::vector<ManagedObject *> found = fetch(entityOf<T>(), request, error);
        std::vector<T *> typed;
        typed.reserve(found.size());
        for (ManagedObject *object : found)
            typed.push_back(static_cast<T *>(object));
        return typed;
    }
    [[nodiscard]] std::vector<ManagedObject *> fetch(const EntityDescription &entity, const FetchRequest &request,
                                                     StoreError *error = nullptr);

    /// The object of a key when it is in memory; null otherwise. Never touches the store.
    [[nodiscard]] ManagedObject *registeredObject(const EntityDescription &entity, qint64 id) const;

    /// Writes all changes in one transaction; durable when this returns true. When it returns false (*error says why)
    /// the objects stay as they were, unsaved, and a later save can succeed. True at once when there is nothing to
    /// save.
    [[nodiscard]] bool save(StoreError *error = nullptr);
    /// Saves where nothing else can be done about a failure: the changes stay in memory and go along with the next
    /// save.
    void saveOrKeepChanges();

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
    ManagedObject *materialise(const EntityDescription &entity, SqlStatement &row);
    void fireFault(ManagedObject &object);
    void loadToMany(ManagedObject &owner, int slot);
    void noteChange(ManagedObject &object);
    void checkpointLater();

    PersistentStoreCoordinator &coordinator_;
    std::vector<EntityObjects> objects_; ///< by entity index
    std::vector<std::unique_ptr<ManagedObject>> owned_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
    bool checkpointPending_ = false;
};

} // namespace kesto
