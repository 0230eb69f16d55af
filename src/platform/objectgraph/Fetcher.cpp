#include "platform/objectgraph/Fetcher.h"

#include "platform/objectgraph/SqlStore.h"

#include <sqlite3.h>

#include <algorithm>
#include <map>

namespace kesto
{

namespace
{

/// A JSON array of keys: one bound value for any number of them, so that one prepared statement serves all.
QByteArray keyList(const std::vector<ManagedObject *> &objects)
{
    QByteArray list("[");
    list.reserve(static_cast<qsizetype>(objects.size()) * 8 + 2);
    for (const ManagedObject *object : objects)
        list.append(QByteArray::number(object->objectID())).append(',');
    if (list.size() > 1)
        list.chop(1);
    return list.append(']');
}

tl::unexpected<Error> noStore(const EntityDescription &entity)
{
    return failure(QStringLiteral("cannot read %1").arg(QString::fromStdString(entity.name())), {},
                   QStringLiteral("no persistent store is attached"));
}

} // namespace

std::string Fetcher::columns(const EntityDescription &entity)
{
    std::string list = "\"_pk\"";
    for (int column = 0; column < entity.columnCount(); ++column)
        list += ", " + quoted(entity.columnName(column));
    return list;
}

Error Fetcher::readError(const EntityDescription &entity) const
{
    return store_->error(QStringLiteral("cannot read %1").arg(QString::fromStdString(entity.name())));
}

template <class Take>
Result<void> Fetcher::readObjects(SqlStatement &statement, const EntityDescription &entity, const Take &take)
{
    int result = statement ? statement.step() : SQLITE_ERROR;
    for (; result == SQLITE_ROW; result = statement.step()) {
        ManagedObject *object = context_.materialise(entity, statement);
        if (object == nullptr)
            break;
        take(object);
    }
    return result == SQLITE_DONE ? Result<void>() : tl::unexpected(readError(entity));
}

Result<std::vector<ManagedObject *>> Fetcher::fetch(const EntityDescription &entity, const FetchRequest &request)
{
    // Prefetching needs the values of every row, so it excludes reading them later.
    const bool keysOnly = request.fetchBatchSize > 0 && request.relationshipKeyPathsForPrefetching.empty();
    const FetchStatement statement(entity, request, keysOnly);
    if (!statement.isValid())
        return failure(QStringLiteral("cannot fetch"), {}, QString::fromStdString(statement.problem()));
    const size_t unsaved = context_.objectsOf(entity).changed.size();
    // A predicate that follows a relationship to an entity with unsaved changes can only be evaluated in memory.
    const bool everything =
        std::any_of(statement.otherEntities().begin(), statement.otherEntities().end(),
                    [&](const EntityDescription *other) { return !context_.objectsOf(*other).changed.empty(); });

    Result<std::vector<ManagedObject *>> found;
    if (store_ != nullptr) {
        const auto limit = static_cast<qint64>(request.fetchLimit);
        const FetchRequest all;
        found = everything
                    ? readRows(FetchStatement(entity, all, false), entity, false, -1)
                    : readRows(statement, entity, keysOnly, limit > 0 ? limit + static_cast<qint64>(unsaved) : -1);
        if (!found)
            return found;
    }
    if (unsaved > 0 || everything)
        addUnsaved(entity, statement, request, everything, *found);
    if (request.fetchLimit > 0 && found->size() > static_cast<size_t>(request.fetchLimit))
        found->resize(static_cast<size_t>(request.fetchLimit));
    if (!request.relationshipKeyPathsForPrefetching.empty()) {
        if (auto read = prefetch(entity, *found, request.relationshipKeyPathsForPrefetching); !read)
            return tl::unexpected(std::move(read.error()));
    }
    return found;
}

Result<std::vector<ManagedObject *>> Fetcher::readRows(const FetchStatement &request, const EntityDescription &entity,
                                                       bool keysOnly, qint64 limit)
{
    std::vector<ManagedObject *> found;
    SqlStatement statement = store_->statement(request.key(), [&] { return request.sql(); });
    int result = SQLITE_ERROR;
    if (statement) {
        request.bind(statement, limit);
        result = statement.step();
        while (result == SQLITE_ROW) {
            found.push_back(keysOnly ? context_.objectFor(entity, sqlite3_column_int64(statement.get(), 0))
                                     : context_.materialise(entity, statement));
            if (found.back() == nullptr)
                break;
            // Saves the step that would only find the end.
            result = static_cast<qint64>(found.size()) == limit ? SQLITE_DONE : statement.step();
        }
    }
    if (result != SQLITE_DONE)
        return tl::unexpected(readError(entity));
    if (keysOnly) {
        auto batch = std::make_shared<ManagedObjectContext::Batch>(found);
        for (const ManagedObject *object : found) {
            if (object->state_ == ManagedObject::State::Fault)
                context_.objectsOf(entity).batches.insert(object->objectID(), batch);
        }
    }
    return found;
}

void Fetcher::addUnsaved(const EntityDescription &entity, const FetchStatement &statement, const FetchRequest &request,
                         bool everything, std::vector<ManagedObject *> &found)
{
    std::erase_if(found, [&](const ManagedObject *object) {
        return object->listed_ || (everything && !matches(request.predicate, *object));
    });
    for (ManagedObject *object : context_.objectsOf(entity).changed) {
        if (!object->isDeleted() && matches(request.predicate, *object))
            found.push_back(object);
    }
    std::sort(found.begin(), found.end(), [&](const ManagedObject *left, const ManagedObject *right) {
        for (const auto &[slot, ascending] : statement.sortKeys()) {
            if (const int order = compareValues(left->attributeAt(slot), right->attributeAt(slot)); order != 0)
                return ascending ? order < 0 : order > 0;
        }
        return left->objectID() < right->objectID();
    });
}

Result<void> Fetcher::readFaults(const EntityDescription &entity, const std::vector<ManagedObject *> &faults)
{
    if (faults.empty())
        return {};
    if (store_ == nullptr)
        return noStore(entity);
    const std::string table = quoted(entity.name());
    SqlStatement statement = store_->statement("r" + QByteArray(1, static_cast<char>(entity.index())), [&] {
        return "SELECT " + columns(entity) + " FROM " + table + " WHERE \"_pk\" IN (SELECT value FROM json_each(?))";
    });
    if (statement)
        statement.bindUtf8(1, keyList(faults));
    return readObjects(statement, entity, [](ManagedObject * /*read*/) {});
}

// Combines the rows with the unsaved changes: objects that left the set in memory are dropped, those that joined it are
// kept.
void Fetcher::adopt(ManagedObject &owner, const RelationshipDescription &relationship,
                    std::vector<ManagedObject *> rows)
{
    ManagedObject::ToManyLink &link = owner.toMany_[relationship.slot];
    std::erase_if(rows, [&](const ManagedObject *row) {
        return row->isDeleted() || row->toOne_[relationship.inverseSlot].id != owner.objectID();
    });
    for (ManagedObject *added : link.members) {
        if (std::find(rows.begin(), rows.end(), added) == rows.end())
            rows.push_back(added);
    }
    for (const ManagedObject *row : rows)
        row->toOne_[relationship.inverseSlot].object = &owner;
    link.members = std::move(rows);
    link.loaded = true;
    link.unreadable = false;
}

Result<void> Fetcher::readToMany(ManagedObject &owner, const RelationshipDescription &relationship)
{
    std::vector<ManagedObject *> rows;
    if (!owner.isInserted()) {
        const EntityDescription &destination = *relationship.destinationEntity;
        if (store_ == nullptr)
            return noStore(destination);
        QByteArray key("m");
        key.append(static_cast<char>(destination.index())).append(static_cast<char>(relationship.inverseSlot));
        SqlStatement statement = store_->statement(key, [&] {
            return "SELECT " + columns(destination) + " FROM " + quoted(destination.name()) + " WHERE " +
                   quoted(relationship.inverse) + " = ? ORDER BY \"_pk\"";
        });
        if (statement)
            statement.bind(1, owner.objectID());
        if (auto read = readObjects(statement, destination, [&](ManagedObject *row) { rows.push_back(row); }); !read)
            return read;
    }
    adopt(owner, relationship, std::move(rows));
    return {};
}

Result<void> Fetcher::prefetchToMany(const EntityDescription &destination,
                                     const std::vector<const RelationshipDescription *> &relationships,
                                     const std::vector<ManagedObject *> &owners)
{
    QByteArray key("p");
    key.append(static_cast<char>(destination.index()));
    for (const RelationshipDescription *relationship : relationships)
        key.append(static_cast<char>(relationship->inverseSlot));
    // One SELECT for each relationship, so that each uses its own index. The last column says which one.
    SqlStatement statement = store_->statement(key, [&] {
        std::string sql;
        for (size_t i = 0; i < relationships.size(); ++i) {
            sql += (i == 0 ? "SELECT " : " UNION ALL SELECT ") + columns(destination) + ", " + std::to_string(i) +
                   " FROM " + quoted(destination.name()) + " WHERE " + quoted(relationships[i]->inverse) +
                   " IN (SELECT value FROM json_each(?1))";
        }
        return sql;
    });
    if (statement)
        statement.bindUtf8(1, keyList(owners));
    std::vector<std::vector<ManagedObject *>> rows(relationships.size());
    const auto take = [&](ManagedObject *row) {
        rows[static_cast<size_t>(sqlite3_column_int(statement.get(), destination.columnCount() + 1))].push_back(row);
    };
    if (auto read = readObjects(statement, destination, take); !read)
        return read;
    const auto inOrder = [](const ManagedObject *left, const ManagedObject *right) {
        return left->objectID() < right->objectID();
    };
    for (size_t i = 0; i < relationships.size(); ++i) {
        const RelationshipDescription &relationship = *relationships[i];
        QHash<qint64, std::vector<ManagedObject *>> byOwner;
        byOwner.reserve(static_cast<qsizetype>(owners.size()));
        for (ManagedObject *row : rows[i]) {
            if (const qint64 id = row->toOne_[relationship.inverseSlot].id; id != 0)
                byOwner[id].push_back(row);
        }
        for (ManagedObject *owner : owners) {
            if (owner->toMany_[relationship.slot].loaded)
                continue;
            std::vector<ManagedObject *> members = byOwner.take(owner->objectID());
            if (!std::is_sorted(members.begin(), members.end(), inOrder))
                std::sort(members.begin(), members.end(), inOrder);
            adopt(*owner, relationship, std::move(members));
        }
    }
    return {};
}

Result<void> Fetcher::prefetch(const EntityDescription &entity, const std::vector<ManagedObject *> &objects,
                               const std::vector<std::string> &paths)
{
    if (store_ == nullptr || objects.empty())
        return {};
    std::map<std::string, std::vector<std::string>> levels; // first step -> what follows it
    for (const std::string &path : paths) {
        const size_t point = path.find('.');
        auto &rest = levels[path.substr(0, point)];
        if (point != std::string::npos)
            rest.push_back(path.substr(point + 1));
    }
    std::map<const EntityDescription *, std::vector<const RelationshipDescription *>> toMany;
    for (const auto &[name, rest] : levels) {
        const RelationshipDescription *relationship = entity.relationship(name);
        if (relationship == nullptr)
            continue;
        if (relationship->toMany) {
            toMany[relationship->destinationEntity].push_back(relationship);
            continue;
        }
        std::vector<ManagedObject *> faults;
        for (const ManagedObject *object : objects) {
            ManagedObject *target = object->toOne(relationship->slot);
            if (target != nullptr && target->state_ == ManagedObject::State::Fault)
                faults.push_back(target);
        }
        if (auto read = readFaults(*relationship->destinationEntity, faults); !read)
            return read;
    }
    for (const auto &[destination, relationships] : toMany) {
        if (auto read = prefetchToMany(*destination, relationships, objects); !read)
            return read;
    }
    for (const auto &[name, rest] : levels) {
        const RelationshipDescription *relationship = entity.relationship(name);
        if (relationship == nullptr || rest.empty())
            continue;
        std::vector<ManagedObject *> next;
        for (const ManagedObject *object : objects) {
            if (relationship->toMany) {
                const auto members = object->toMany(relationship->slot);
                next.insert(next.end(), members.begin(), members.end());
            } else if (ManagedObject *target = object->toOne(relationship->slot))
                next.push_back(target);
        }
        if (auto read = prefetch(*relationship->destinationEntity, next, rest); !read)
            return read;
    }
    return {};
}

} // namespace kesto
