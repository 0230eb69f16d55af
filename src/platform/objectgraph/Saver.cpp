#include "platform/objectgraph/Saver.h"

#include "platform/objectgraph/PersistentStoreCoordinator.h"
#include "platform/objectgraph/SqlStore.h"

#include <sqlite3.h>

#include <algorithm>
#include <bit>

namespace kesto
{

namespace
{

/// New rows per INSERT: every statement has to open the table and all its indexes.
constexpr int kRowsTogether = 16;

} // namespace

Result<void> Saver::save()
{
    Result<void> written = store_.begin();
    for (const EntityDescription &entity : context_.persistentStoreCoordinator().managedObjectModel().entities()) {
        if (written && !writeEntity(entity, context_.objectsOf(entity).changed))
            written = tl::unexpected(
                store_.error(QStringLiteral("cannot write %1").arg(QString::fromStdString(entity.name()))));
    }
    if (written)
        written = store_.execute("COMMIT");
    if (!written) {
        (void)store_.execute("ROLLBACK"); // when this fails, too, the next begin() tries it again
        return written;
    }
    settle();
    return {};
}

bool Saver::writeEntity(const EntityDescription &entity, const std::vector<ManagedObject *> &changed)
{
    using State = ManagedObject::State;
    const bool deletes = std::any_of(changed.begin(), changed.end(),
                                     [](const ManagedObject *object) { return object->state_ == State::Deleted; });
    if (deletes && !store_.rememberKeys(entity))
        return false;
    for (size_t i = 0; i < changed.size(); ++i) {
        const ManagedObject &object = *changed[i];
        bool written = true;
        switch (object.state_) {
        case State::Inserted: {
            size_t last = i + 1;
            while (last < changed.size() && changed[last]->state_ == State::Inserted)
                ++last;
            written = insertRows(entity, changed.data() + i, changed.data() + last);
            i = last - 1;
            break;
        }
        case State::Updated:
            written = updateRow(entity, object);
            break;
        case State::Deleted:
            written = deleteRow(entity, object);
            break;
        default:
            break;
        }
        if (!written)
            return false;
    }
    return true;
}

bool Saver::insertRows(const EntityDescription &entity, const ManagedObject *const *first,
                       const ManagedObject *const *last)
{
    for (const int rows : {kRowsTogether, 1}) {
        if (last - first >= rows)
            first = insertRows(entity, rows, first, last);
        if (first == nullptr)
            return false;
    }
    return true;
}

const ManagedObject *const *Saver::insertRows(const EntityDescription &entity, int rows,
                                              const ManagedObject *const *first, const ManagedObject *const *last)
{
    const auto attributes = static_cast<int>(entity.attributes().size());
    const auto toOnes = static_cast<int>(entity.toOneRelationships().size());
    QByteArray key("i");
    key.append(static_cast<char>(entity.index())).append(static_cast<char>(rows));
    SqlStatement statement = store_.statement(key, [&] {
        // Columns by name: in a file of an earlier version they have another order.
        std::string names = "\"_pk\"";
        std::string values = "(?";
        for (int column = 0; column < attributes + toOnes; ++column) {
            names += ", " + quoted(entity.columnName(column));
            values += ", ?";
        }
        // OR FAIL: SQLite need not be able to undo this statement alone, as a failure rolls back the transaction.
        std::string sql = "INSERT OR FAIL INTO " + quoted(entity.name()) + " (" + names + ") VALUES ";
        for (int row = 0; row < rows; ++row)
            sql += (row == 0 ? "" : ", ") + values + ')';
        return sql;
    });
    if (!statement)
        return nullptr;
    while (last - first >= rows) {
        int position = 1;
        for (const auto *const end = first + rows; first != end; ++first) {
            const ManagedObject &object = **first;
            statement.bind(position++, object.id_);
            for (int slot = 0; slot < attributes; ++slot)
                statement.bind(position++, object.values_[slot]);
            for (int slot = 0; slot < toOnes; ++slot) {
                const qint64 id = object.toOne_[slot].id;
                statement.bind(position++, id != 0 ? AttributeValue(id) : AttributeValue());
            }
        }
        if (statement.step() != SQLITE_DONE)
            return nullptr;
        statement.rewind();
    }
    return first;
}

bool Saver::updateRow(const EntityDescription &entity, const ManagedObject &object)
{
    const quint64 mask = object.changedColumns_;
    QByteArray key("u");
    key.append(static_cast<char>(entity.index())).append(reinterpret_cast<const char *>(&mask), sizeof mask);
    SqlStatement statement = store_.statement(key, [&] {
        std::string sql = "UPDATE " + quoted(entity.name()) + " SET ";
        for (quint64 rest = mask; rest != 0; rest &= rest - 1)
            sql += (rest == mask ? "" : ", ") + quoted(entity.columnName(std::countr_zero(rest))) + " = ?";
        return sql + " WHERE \"_pk\" = ?";
    });
    if (!statement)
        return false;
    const auto attributes = static_cast<int>(entity.attributes().size());
    int position = 1;
    for (quint64 rest = mask; rest != 0; rest &= rest - 1) {
        const int column = std::countr_zero(rest);
        if (column < attributes)
            statement.bind(position++, object.values_[column]);
        else {
            const qint64 id = object.toOne_[column - attributes].id;
            statement.bind(position++, id != 0 ? AttributeValue(id) : AttributeValue());
        }
    }
    statement.bind(position, object.id_);
    return statement.step() == SQLITE_DONE;
}

bool Saver::deleteRow(const EntityDescription &entity, const ManagedObject &object)
{
    SqlStatement statement = store_.statement("d" + QByteArray(1, static_cast<char>(entity.index())), [&] {
        return "DELETE FROM " + quoted(entity.name()) + " WHERE \"_pk\" = ?";
    });
    if (!statement)
        return false;
    statement.bind(1, object.id_);
    return statement.step() == SQLITE_DONE;
}

void Saver::settle()
{
    using State = ManagedObject::State;
    for (auto &objects : context_.objects_) {
        for (ManagedObject *object : objects.changed) {
            object->listed_ = false;
            object->changedColumns_ = 0;
            if (object->state_ == State::Deleted) {
                object->state_ = State::Gone;
                objects.registered.remove(object->id_);
            } else if (object->state_ != State::Gone)
                object->state_ = State::Clean;
        }
        objects.changed.clear();
    }
}

} // namespace kesto
