#include "platform/objectgraph/SqlStore.h"

#include <QFile>
#include <QFileInfo>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <set>

namespace kesto
{

namespace
{

constexpr int kApplicationId = 0x6b657374; // marks the files that are ours

std::string quoted(const std::string &name) { return '"' + name + '"'; }

const char *columnType(AttributeType type)
{
    switch (type) {
    case AttributeType::Float:
        return "REAL";
    case AttributeType::String:
        return "TEXT";
    case AttributeType::Data:
        return "BLOB";
    default:
        return "INTEGER";
    }
}

} // namespace

SqlStatement::~SqlStatement()
{
    if (statement_ == nullptr)
        return;
    sqlite3_reset(statement_);
    if (!texts_.empty())
        sqlite3_clear_bindings(statement_);
}

void SqlStatement::bind(int position, const AttributeValue &value)
{
    if (const auto *number = std::get_if<qint64>(&value))
        sqlite3_bind_int64(statement_, position, *number);
    else if (const auto *real = std::get_if<double>(&value))
        sqlite3_bind_double(statement_, position, *real);
    else if (const auto *text = std::get_if<QString>(&value))
        bindUtf8(position, text->toUtf8());
    else if (const auto *bytes = std::get_if<QByteArray>(&value))
        sqlite3_bind_blob64(statement_, position, bytes->isNull() ? "" : bytes->constData(),
                            static_cast<sqlite3_uint64>(bytes->size()), SQLITE_STATIC);
    else
        sqlite3_bind_null(statement_, position);
}

void SqlStatement::bind(int position, qint64 value) { sqlite3_bind_int64(statement_, position, value); }

void SqlStatement::bindUtf8(int position, const QByteArray &value)
{
    const QByteArray &kept = texts_.emplace_back(value.isNull() ? QByteArray("") : value);
    sqlite3_bind_text64(statement_, position, kept.constData(), static_cast<sqlite3_uint64>(kept.size()), SQLITE_STATIC,
                        SQLITE_UTF8);
}

int SqlStatement::step() { return sqlite3_step(statement_); }

void SqlStatement::rewind()
{
    sqlite3_reset(statement_);
    texts_.clear();
}

SqlStore::SqlStore(QString path, std::unique_ptr<SQLite::Database> database)
    : path_(std::move(path))
    , database_(std::move(database))
{
}

SqlStore::~SqlStore()
{
    for (sqlite3_stmt *statement : std::as_const(statements_))
        sqlite3_finalize(statement);
}

sqlite3 *SqlStore::handle() const { return database_->getHandle(); }

std::unique_ptr<SqlStore> SqlStore::open(const QString &path, const ManagedObjectModel &model, StoreError *error)
{
    try {
        // Without SQLite's own lock around every call: the coordinator's lock stands around all of them.
        auto database = std::make_unique<SQLite::Database>(
            QFile::encodeName(path).toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE | SQLite::OPEN_NOMUTEX);
        std::unique_ptr<SqlStore> store(new SqlStore(path, std::move(database)));
        if (auto refused = store->prepareFile(model)) {
            if (error != nullptr)
                *error = *refused;
            return nullptr;
        }
        return store;
    } catch (const SQLite::Exception &exception) {
        if (error != nullptr)
            *error = {exception.getExtendedErrorCode(),
                      exception.getErrorCode() == SQLITE_BUSY
                          ? QStringLiteral("%1 is in use by another process").arg(path)
                          : QStringLiteral("%1: %2").arg(path, QString::fromUtf8(exception.what()))};
        return nullptr;
    }
}

std::optional<StoreError> SqlStore::prepareFile(const ManagedObjectModel &model)
{
    SQLite::Database &database = *database_;
    database.exec("PRAGMA locking_mode=EXCLUSIVE");
    // A log that somebody left behind is moved into the file only when both are ours.
    if (QFileInfo(path_ + QStringLiteral("-wal")).size() > 0)
        sqlite3_db_config(handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    // The first read takes the lock; nothing is written before the file is known to be ours.
    const int applicationId = database.execAndGet("PRAGMA application_id");
    const bool empty = database.execAndGet("SELECT count(*) FROM sqlite_schema").getInt() == 0;
    if (!empty && applicationId != kApplicationId)
        return StoreError{0, QStringLiteral("%1 is a database of another program").arg(path_)};
    const int version = database.execAndGet("PRAGMA user_version");
    if (version > model.version())
        return StoreError{0, QStringLiteral("%1 was written by a newer version of the program (%2, this one knows %3)")
                                 .arg(path_)
                                 .arg(version)
                                 .arg(model.version())};
    sqlite3_db_config(handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
    const std::string journal = database.execAndGet("PRAGMA journal_mode=WAL").getString();
    if (journal != "wal")
        return StoreError{0, QStringLiteral("%1 can't keep a write-ahead log").arg(path_)};
    database.exec("PRAGMA synchronous=FULL");
    database.exec("PRAGMA cache_size=-8000");
    database.exec("PRAGMA temp_store=MEMORY");
    if (version < model.version() || empty)
        bringToModel(model);
    database.exec("PRAGMA wal_checkpoint(TRUNCATE)");
    startLog();
    sqlite3_wal_hook(handle(), &SqlStore::pagesLogged, this); // instead of checkpoints inside a commit
    return std::nullopt;
}

void SqlStore::bringToModel(const ManagedObjectModel &model)
{
    SQLite::Database &database = *database_;
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    database.exec("CREATE TABLE IF NOT EXISTS \"_log\" (\"_pk\" INTEGER PRIMARY KEY, opened INTEGER) STRICT");
    for (const EntityDescription &entity : model.entities()) {
        const std::string table = quoted(entity.name());
        database.exec("CREATE TABLE IF NOT EXISTS " + table + " (\"_pk\" INTEGER PRIMARY KEY) STRICT");
        std::set<std::string> present;
        SQLite::Statement columns(database, "SELECT name FROM pragma_table_info(?)");
        columns.bind(1, entity.name());
        while (columns.executeStep())
            present.insert(columns.getColumn(0).getString());
        const auto need = [&](const std::string &name, const char *type, bool indexed) {
            if (!present.contains(name))
                database.exec("ALTER TABLE " + table + " ADD COLUMN " + quoted(name) + ' ' + type);
            const std::string index = std::string(entity.name()).append(1, '.').append(name);
            if (indexed)
                database.exec("CREATE INDEX IF NOT EXISTS " + quoted(index) + " ON " + table + " (" + quoted(name) +
                              ')');
        };
        for (const AttributeDescription &attribute : entity.attributes())
            need(attribute.name, columnType(attribute.type), attribute.indexed);
        // A to-many side finds its rows through the other side's column. Of two to-one sides each has its own.
        for (const RelationshipDescription &relationship : entity.toOneRelationships())
            need(relationship.name, "INTEGER", relationship.inverseToMany);
    }
    database.exec("PRAGMA application_id=" + std::to_string(kApplicationId));
    database.exec("PRAGMA user_version=" + std::to_string(model.version()));
    transaction.commit();
}

// The first commit to an empty log syncs twice, for the log's header and for itself. One small commit here, while
// nobody waits, leaves exactly one sync to each save.
void SqlStore::startLog() { database_->exec("INSERT OR REPLACE INTO \"_log\" VALUES (1, strftime('%s', 'now'))"); }

int SqlStore::pagesLogged(void *self, sqlite3 *, const char *, int pages)
{
    static_cast<SqlStore *>(self)->logPages_ = pages;
    return SQLITE_OK;
}

void SqlStore::checkpoint(bool mayTakeTime)
{
    if (logPages_ <= (mayTakeTime ? kPagesBeforeCheckpoint : kPagesBeforeForcedCheckpoint))
        return;
    // Nothing is lost when this fails: the log stays and is read.
    if (sqlite3_wal_checkpoint_v2(handle(), nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr) != SQLITE_OK)
        return;
    try {
        startLog();
    } catch (const SQLite::Exception &) {
        return; // a full disk: the next save will say so
    }
}

sqlite3_stmt *SqlStore::prepare(const QByteArray &key, const std::string &sql)
{
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v3(handle(), sql.c_str(), static_cast<int>(sql.size() + 1), SQLITE_PREPARE_PERSISTENT,
                           &statement, nullptr) != SQLITE_OK)
        return nullptr;
    statements_.insert(QByteArray(key.constData(), key.size()), statement); // the key may not own its bytes
    return statement;
}

bool SqlStore::execute(const char *sql, StoreError *error)
{
    if (sqlite3_exec(handle(), sql, nullptr, nullptr, nullptr) == SQLITE_OK)
        return true;
    if (error != nullptr)
        *error = lastError();
    return false;
}

StoreError SqlStore::lastError() const
{
    return {sqlite3_extended_errcode(handle()), QString::fromUtf8(sqlite3_errmsg(handle()))};
}

std::optional<qint64> SqlStore::maximumKey(const EntityDescription &entity)
{
    SqlStatement query = statement("max " + QByteArray::fromStdString(entity.name()),
                                   [&] { return "SELECT max(\"_pk\") FROM \"" + entity.name() + '"'; });
    return query && query.step() == SQLITE_ROW ? std::optional(qint64(sqlite3_column_int64(query.get(), 0)))
                                               : std::nullopt;
}

} // namespace kesto
