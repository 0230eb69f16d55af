#include "platform/objectgraph/ManagedObjectContext.h"

#include "platform/Log.h"
#include "platform/objectgraph/Fetcher.h"
#include "platform/objectgraph/PersistentStoreCoordinator.h"
#include "platform/objectgraph/Saver.h"
#include "platform/objectgraph/SqlStore.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QRandomGenerator>

#include <sqlite3.h>

#include <algorithm>

namespace kesto
{

namespace
{

/// The first key for objects that are inserted while the store can't be read: far above the keys in use, so that the
/// objects can be saved later.
qint64 keyWithoutStore() { return (qint64(1) << 60) + (qint64(QRandomGenerator::system()->generate()) << 24); }

} // namespace

ManagedObjectContext::ManagedObjectContext(PersistentStoreCoordinator &coordinator)
    : coordinator_(coordinator)
    , objects_(coordinator.managedObjectModel().entities().size())
{
}

ManagedObjectContext::~ManagedObjectContext() = default;

const EntityDescription &ManagedObjectContext::entityForTag(const void *tag) const
{
    const EntityDescription *entity = coordinator_.managedObjectModel().entityForTag(tag);
    Q_ASSERT_X(entity != nullptr, "ManagedObjectContext", "the class is not an entity of this model");
    return *entity;
}

ManagedObject &ManagedObjectContext::own(std::unique_ptr<ManagedObject> object)
{
    return *owned_.emplace_back(std::move(object));
}

ManagedObject *ManagedObjectContext::objectFor(const EntityDescription &entity, qint64 id)
{
    ManagedObject *&known = objectsOf(entity).registered[id];
    if (known == nullptr)
        known = &own(entity.make(*this, id));
    return known;
}

ManagedObject *ManagedObjectContext::registeredObject(const EntityDescription &entity, qint64 id) const
{
    return objects_[static_cast<size_t>(entity.index())].registered.value(id);
}

ManagedObject &ManagedObjectContext::insert(const EntityDescription &entity)
{
    EntityObjects &objects = objectsOf(entity);
    if (objects.nextKey == 0) {
        const auto access = coordinator_.access();
        const auto largest = access ? access->maximumKey(entity) : std::nullopt;
        objects.nextKey = largest ? *largest + 1 : keyWithoutStore();
    }
    const qint64 id = objects.nextKey++;
    ManagedObject &object = own(entity.make(*this, id));
    objects.registered.insert(id, &object);
    object.state_ = ManagedObject::State::Inserted;
    for (size_t slot = 0; slot < entity.toManyRelationships().size(); ++slot)
        object.toMany_[slot].loaded = true; // nothing in the store can point to it
    noteChange(object);
    return object;
}

void ManagedObjectContext::noteChange(ManagedObject &object)
{
    if (object.listed_)
        return;
    object.listed_ = true;
    objectsOf(object.entity()).changed.push_back(&object);
}

bool ManagedObjectContext::readForDeletion(ManagedObject &object, QSet<ManagedObject *> &visited)
{
    if (visited.contains(&object))
        return true;
    visited.insert(&object);
    bool readable = object.fire();
    if (object.isDeleted())
        return true;
    for (const RelationshipDescription &relationship : object.entity().toManyRelationships()) {
        if (!readable)
            break;
        const std::vector<ManagedObject *> members = object.toMany(relationship.slot);
        readable = !object.toMany_[relationship.slot].unreadable;
        if (!readable || relationship.deleteRule != DeleteRule::Cascade)
            continue;
        if (!std::all_of(members.begin(), members.end(),
                         [&](ManagedObject *member) { return readForDeletion(*member, visited); }))
            return false;
    }
    if (!readable) {
        refuseChange(object);
        return false;
    }
    for (const RelationshipDescription &relationship : object.entity().toOneRelationships()) {
        ManagedObject *target = object.toOne(relationship.slot);
        if (target == nullptr)
            continue;
        if (relationship.deleteRule == DeleteRule::Cascade) {
            if (!readForDeletion(*target, visited))
                return false;
        } else if (!relationship.inverseToMany && !target->fire()) {
            refuseChange(*target);
            return false;
        }
    }
    return true;
}

void ManagedObjectContext::deleteObject(ManagedObject &object)
{
    if (QSet<ManagedObject *> visited; readForDeletion(object, visited))
        unlinkAndDelete(object);
}

// Everything concerned has been read, so this can't fail half-way.
void ManagedObjectContext::unlinkAndDelete(ManagedObject &object)
{
    if (object.isDeleted())
        return;
    const bool wasInserted = object.isInserted();
    for (const RelationshipDescription &relationship : object.entity().toManyRelationships()) {
        for (ManagedObject *member : object.toMany(relationship.slot)) {
            member->setToOne(relationship.inverseSlot, nullptr);
            if (relationship.deleteRule == DeleteRule::Cascade)
                unlinkAndDelete(*member);
        }
    }
    for (const RelationshipDescription &relationship : object.entity().toOneRelationships()) {
        ManagedObject *target = object.toOne(relationship.slot);
        if (target == nullptr)
            continue;
        object.setToOne(relationship.slot, nullptr);
        if (relationship.deleteRule == DeleteRule::Cascade)
            unlinkAndDelete(*target);
    }
    noteChange(object);
    object.state_ = wasInserted ? ManagedObject::State::Gone : ManagedObject::State::Deleted;
    if (wasInserted)
        objectsOf(object.entity()).registered.remove(object.id_);
}

Result<std::vector<ManagedObject *>> ManagedObjectContext::fetch(const EntityDescription &entity,
                                                                 const FetchRequest &request)
{
    if (request.fetchBatchSize > 0)
        objectsOf(entity).batchSize = request.fetchBatchSize;
    const auto access = coordinator_.access();
    const int failedBefore = failedReads_;
    auto found = Fetcher(*this, access.store()).fetch(entity, request);
    // A condition or a path may have led to an object that could not be read.
    if (found && failedReads_ != failedBefore)
        return tl::unexpected(*lastFailedRead_);
    return found;
}

void ManagedObjectContext::logFailedFetch(const Error &error) { log("error while fetching - %@", error.message()); }

ManagedObject *ManagedObjectContext::materialise(const EntityDescription &entity, SqlStatement &row)
{
    sqlite3_stmt *statement = row.get();
    const qint64 id = sqlite3_column_int64(statement, 0);
    ManagedObject *object = objectFor(entity, id);
    if (object->state_ != ManagedObject::State::Fault)
        return object;
    const size_t attributes = entity.attributes().size();
    int column = 1;
    for (size_t slot = 0; slot < attributes; ++slot, ++column) {
        AttributeValue &value = object->values_[slot];
        sqlite3_value *stored = sqlite3_column_value(statement, column);
        switch (sqlite3_value_type(stored)) {
        case SQLITE_INTEGER:
            value.emplace<qint64>(sqlite3_value_int64(stored));
            break;
        case SQLITE_FLOAT:
            value.emplace<double>(sqlite3_value_double(stored));
            break;
        case SQLITE_TEXT: {
            const auto *text = reinterpret_cast<const char *>(sqlite3_value_text(stored));
            if (text == nullptr) { // SQLite could not get the memory for the closing zero
                std::fill_n(object->values_, attributes, AttributeValue());
                return nullptr;
            }
            value.emplace<QString>(QString::fromUtf8(text, sqlite3_value_bytes(stored)));
            break;
        }
        case SQLITE_BLOB: {
            const auto *bytes = static_cast<const char *>(sqlite3_value_blob(stored));
            value = QByteArray("").append(bytes, sqlite3_value_bytes(stored)); // empty is not null
            break;
        }
        default:
            break;
        }
    }
    for (size_t slot = 0; slot < entity.toOneRelationships().size(); ++slot, ++column)
        object->toOne_[slot].id = sqlite3_column_int64(statement, column);
    object->state_ = ManagedObject::State::Clean;
    object->unreadable_ = false;
    return object;
}

void ManagedObjectContext::fireFault(ManagedObject &object)
{
    EntityObjects &objects = objectsOf(object.entity());
    std::vector<ManagedObject *> faults{&object};
    if (const auto batch = objects.batches.value(object.id_)) {
        const auto self = std::find(batch->begin(), batch->end(), &object);
        for (auto next = self; next != batch->end() && static_cast<int>(faults.size()) < objects.batchSize; ++next) {
            if (*next != &object && (*next)->state_ == ManagedObject::State::Fault)
                faults.push_back(*next);
        }
    }
    Result<void> read;
    {
        const auto access = coordinator_.access();
        read = Fetcher(*this, access.store()).readFaults(object.entity(), faults);
    }
    if (object.state_ != ManagedObject::State::Fault || read) {
        for (ManagedObject *fault : faults)
            objects.batches.remove(fault->id_);
    }
    if (object.state_ != ManagedObject::State::Fault)
        return;
    if (!read) {
        object.unreadable_ = true;
        noteFailedRead(object, std::move(read.error()));
        return;
    }
    // A dangling reference: the file has no such row.
    log("%@ %ld is not in the store", QString::fromStdString(object.entity().name()), object.id_);
    object.state_ = ManagedObject::State::Gone;
    objects.registered.remove(object.id_);
}

void ManagedObjectContext::loadToMany(ManagedObject &owner, int slot)
{
    const auto access = coordinator_.access();
    const auto &relationship = owner.entity().toManyRelationships()[static_cast<size_t>(slot)];
    if (auto read = Fetcher(*this, access.store()).readToMany(owner, relationship); !read) {
        owner.toMany_[slot].unreadable = true;
        noteFailedRead(owner, std::move(read.error()));
    }
}

void ManagedObjectContext::noteFailedRead(ManagedObject &object, Error error)
{
    log(error.message());
    unreadable_.push_back(&object);
    lastFailedRead_ = std::move(error);
    ++failedReads_;
}

void ManagedObjectContext::refuseChange(const ManagedObject &unreadable)
{
    const QString object =
        QStringLiteral("%1 %2").arg(QString::fromStdString(unreadable.entity().name())).arg(unreadable.objectID());
    Error error{QStringLiteral("a change was refused because an object could not be read"), object,
                lastFailedRead_ ? lastFailedRead_->reason : QString(), lastFailedRead_ ? lastFailedRead_->code : 0};
    log(error.message());
    if (!refusedChange_)
        refusedChange_ = std::move(error);
}

void ManagedObjectContext::forgetFailedReads()
{
    for (ManagedObject *object : unreadable_) {
        object->unreadable_ = false;
        for (size_t slot = 0; slot < object->entity().toManyRelationships().size(); ++slot)
            object->toMany_[slot].unreadable = false;
    }
    unreadable_.clear();
    lastFailedRead_.reset();
    refusedChange_.reset();
}

Result<void> ManagedObjectContext::save()
{
    Result<void> saved;
    if (refusedChange_)
        saved = tl::unexpected(*refusedChange_);
    else if (hasChanges())
        saved = write();
    forgetFailedReads();
    if (!saved)
        log("error while saving context - %@", saved.error().message());
    return saved;
}

Result<void> ManagedObjectContext::write()
{
    const auto access = coordinator_.access();
    if (!access)
        return failure(QStringLiteral("cannot save"), {}, QStringLiteral("no persistent store is attached"));
    if (auto saved = Saver(*this, *access.store()).save(); !saved)
        return saved;
    access->checkpoint(false);
    if (access->checkpointIsDue())
        checkpointLater();
    return {};
}

void ManagedObjectContext::saveOrKeepChanges()
{
    (void)save(); // which logs a failure
}

void ManagedObjectContext::rollback()
{
    using State = ManagedObject::State;
    for (EntityObjects &objects : objects_) {
        for (ManagedObject *object : objects.changed) {
            object->listed_ = false;
            object->changedColumns_ = 0;
            if (object->state_ == State::Inserted) {
                object->state_ = State::Gone;
                objects.registered.remove(object->id_);
            } else if (object->state_ != State::Gone) {
                object->state_ = State::Fault;
                std::fill_n(object->values_, object->entity().attributes().size(), AttributeValue());
                std::fill_n(object->toOne_, object->entity().toOneRelationships().size(), ManagedObject::ToOneLink());
            }
        }
        objects.changed.clear();
    }
    for (const auto &object : owned_) {
        for (size_t slot = 0; slot < object->entity().toManyRelationships().size(); ++slot) {
            object->toMany_[slot].members.clear();
            object->toMany_[slot].loaded = object->state_ == State::Gone;
        }
    }
    forgetFailedReads();
}

bool ManagedObjectContext::hasChanges() const
{
    // What was inserted and deleted again needs no save.
    return std::any_of(objects_.begin(), objects_.end(), [](const EntityObjects &objects) {
        return std::any_of(objects.changed.begin(), objects.changed.end(),
                           [](const ManagedObject *object) { return object->state_ != ManagedObject::State::Gone; });
    });
}

// Moves a long log into the file when the event loop is idle, so that no save has to wait for it.
void ManagedObjectContext::checkpointLater()
{
    if (checkpointPending_ || QCoreApplication::instance() == nullptr)
        return;
    checkpointPending_ = true;
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [this, alive = std::weak_ptr<bool>(alive_)] {
            if (alive.expired())
                return;
            checkpointPending_ = false;
            if (const auto access = coordinator_.access())
                access->checkpoint(true);
        },
        Qt::QueuedConnection);
}

} // namespace kesto
