#include "platform/objectgraph/SqlStore.h"

#include "platform/objectgraph/StoreRefusal.h"

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
const QString kCannotOpen = QStringLiteral("cannot open the store");

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
        bind(position, *number);
    else if (const auto *real = std::get_if<double>(&value))
        note(sqlite3_bind_double(statement_, position, *real));
    else if (const auto *text = std::get_if<QString>(&value))
        bindUtf8(position, text->toUtf8());
    else if (const auto *bytes = std::get_if<QByteArray>(&value))
        note(sqlite3_bind_blob64(statement_, position, bytes->isNull() ? "" : bytes->constData(),
                                 static_cast<sqlite3_uint64>(bytes->size()), SQLITE_STATIC));
    else
        note(sqlite3_bind_null(statement_, position));
}

void SqlStatement::bind(int position, qint64 value) { note(sqlite3_bind_int64(statement_, position, value)); }

void SqlStatement::note(int bound)
{
    if (bound != SQLITE_OK && failedBind_ == SQLITE_OK)
        failedBind_ = bound;
}

void SqlStatement::bindUtf8(int position, const QByteArray &value)
{
    const QByteArray &kept = texts_.emplace_back(value.isNull() ? QByteArray("") : value);
    note(sqlite3_bind_text64(statement_, position, kept.constData(), static_cast<sqlite3_uint64>(kept.size()),
                             SQLITE_STATIC, SQLITE_UTF8));
}

int SqlStatement::step() { return failedBind_ != SQLITE_OK ? failedBind_ : sqlite3_step(statement_); }

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

Result<std::unique_ptr<SqlStore>> SqlStore::open(const QString &path, const ManagedObjectModel &model)
{
    try {
        // Without SQLite's own lock around every call: the coordinator's lock stands around all of them.
        auto database = std::make_unique<SQLite::Database>(
            QFile::encodeName(path).toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE | SQLite::OPEN_NOMUTEX);
        std::unique_ptr<SqlStore> store(new SqlStore(path, std::move(database)));
        if (auto refused = store->prepareFile(model))
            return tl::unexpected(std::move(*refused));
        return store;
    } catch (const SQLite::Exception &exception) {
        return failure(kCannotOpen, path,
                       exception.getErrorCode() == SQLITE_BUSY ? QStringLiteral("it is in use by another process")
                                                               : QString::fromUtf8(exception.what()),
                       exception.getExtendedErrorCode());
    }
}

std::optional<Error> SqlStore::prepareFile(const ManagedObjectModel &model)
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
        return Error{kCannotOpen, path_, QStringLiteral("it is a database of another program"),
                     static_cast<int>(StoreRefusal::ForeignDatabase)};
    const int version = database.execAndGet("PRAGMA user_version");
    if (version > model.version())
        return Error{kCannotOpen, path_,
                     QStringLiteral("it was written by a newer version of the program (%1, this one knows %2)")
                         .arg(version)
                         .arg(model.version()),
                     static_cast<int>(StoreRefusal::NewerModel)};
    sqlite3_db_config(handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
    const std::string journal = database.execAndGet("PRAGMA journal_mode=WAL").getString();
    if (journal != "wal")
        return Error{kCannotOpen, path_, QStringLiteral("it can't keep a write-ahead log")};
    database.exec("PRAGMA synchronous=FULL");
    database.exec("PRAGMA cache_size=-8000");
    database.exec("PRAGMA temp_store=MEMORY");
    const bool hasState = database.execAndGet("SELECT count(*) FROM sqlite_schema WHERE name = '_state'").getInt() != 0;
    if (version < model.version() || empty || !hasState)
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
    database.exec(
        "CREATE TABLE IF NOT EXISTS \"_state\" (name TEXT PRIMARY KEY, value INTEGER NOT NULL) STRICT, WITHOUT ROWID");
    for (const EntityDescription &entity : model.entities()) {
        // Also the keys of rows that are gone but that others still name.
        std::string largest = "SELECT ifnull(max(\"_pk\"), 0) AS key FROM " + quoted(entity.name());
        for (const EntityDescription &source : model.entities()) {
            for (const RelationshipDescription &relationship : source.toOneRelationships()) {
                if (relationship.destinationEntity == &entity)
                    largest += " UNION ALL SELECT ifnull(max(" + quoted(relationship.name) + "), 0) FROM " +
                               quoted(source.name());
            }
        }
        SQLite::Statement seed(database, "INSERT OR IGNORE INTO \"_state\" SELECT ?, max(key) FROM (" + largest + ')');
        seed.bind(1, entity.name());
        seed.exec();
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

Result<void> SqlStore::execute(const char *sql)
{
    if (sqlite3_exec(handle(), sql, nullptr, nullptr, nullptr) == SQLITE_OK)
        return {};
    return tl::unexpected(error(QStringLiteral("cannot run %1").arg(QString::fromUtf8(sql))));
}

Result<void> SqlStore::begin()
{
    if (sqlite3_get_autocommit(handle()) == 0) {
        if (auto ended = execute("ROLLBACK"); !ended)
            return ended;
    }
    return execute("BEGIN IMMEDIATE");
}

Error SqlStore::error(const QString &what) const
{
    return {what, path_, QString::fromUtf8(sqlite3_errmsg(handle())), sqlite3_extended_errcode(handle())};
}

std::optional<qint64> SqlStore::maximumKey(const EntityDescription &entity)
{
    SqlStatement query = statement("max " + QByteArray::fromStdString(entity.name()), [&] {
        return "SELECT max(ifnull((SELECT max(\"_pk\") FROM " + quoted(entity.name()) +
               "), 0), ifnull((SELECT value FROM \"_state\" WHERE name = ?), 0))";
    });
    if (!query)
        return std::nullopt;
    query.bindUtf8(1, QByteArray::fromStdString(entity.name()));
    return query.step() == SQLITE_ROW ? std::optional(qint64(sqlite3_column_int64(query.get(), 0))) : std::nullopt;
}

bool SqlStore::rememberKeys(const EntityDescription &entity)
{
    SqlStatement update = statement("keys " + QByteArray::fromStdString(entity.name()), [&] {
        return "INSERT INTO \"_state\" SELECT ?, ifnull(max(\"_pk\"), 0) FROM " + quoted(entity.name()) +
               " WHERE true ON CONFLICT (name) DO UPDATE SET value = max(value, excluded.value)";
    });
    if (!update)
        return false;
    update.bindUtf8(1, QByteArray::fromStdString(entity.name()));
    return update.step() == SQLITE_DONE;
}

} // namespace kesto
