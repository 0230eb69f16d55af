#include "platform/objectgraph/SqlStore.h"

#include "platform/Log.h"
#include "platform/objectgraph/StoreRefusal.h"

#include <QFile>
#include <QFileInfo>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace kesto
{

namespace
{

constexpr int kApplicationId = 0x6b657374; // marks the files that are ours
const QString kCannotOpen = QStringLiteral("cannot open the store");

constexpr const char *kSchema = "_schema"; // in "_state": the model's fingerprint; the others are the largest keys

/// In "_state": the largest key of the rows of an entity, unless it was larger before.
std::string rememberKeysSql(const EntityDescription &entity)
{
    return "INSERT INTO \"_state\" SELECT ?, ifnull(max(\"_pk\"), 0) FROM " + quoted(entity.name()) +
           " WHERE true ON CONFLICT (name) DO UPDATE SET value = max(value, excluded.value)";
}

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

void SqlStore::makeFile(const QString &path)
{
#ifdef Q_OS_UNIX
    // Not one that exists: closing a descriptor of it would end the locks of this process. When it can't be made,
    // SQLite says why.
    const int file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file >= 0)
        ::close(file);
#else
    Q_UNUSED(path)
#endif
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
        makeFile(path);
        // NOMUTEX: the coordinator's lock guards all calls.
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
    const auto refused = [this](StoreRefusal refusal, const QString &reason) {
        return Error{kCannotOpen, path_, reason, static_cast<int>(refusal)};
    };
    SQLite::Database &database = *database_;
    // Otherwise SQLite reads the name of a column that is not there as a text.
    sqlite3_db_config(handle(), SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(handle(), SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    database.exec("PRAGMA locking_mode=EXCLUSIVE");
    // A log that was left behind is moved into the file only when both are ours and whole.
    const bool hasLog = QFileInfo(path_ + QStringLiteral("-wal")).size() > 0;
    if (hasLog)
        sqlite3_db_config(handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    // The first read takes the lock; nothing is written before the file is known to be ours.
    const int applicationId = database.execAndGet("PRAGMA application_id");
    const bool empty = database.execAndGet("SELECT count(*) FROM sqlite_schema").getInt() == 0;
    if (!empty && applicationId != kApplicationId)
        return refused(StoreRefusal::ForeignDatabase, QStringLiteral("it is a database of another program"));
    const int version = database.execAndGet("PRAGMA user_version");
    if (version > model.version())
        return refused(StoreRefusal::NewerModel,
                       QStringLiteral("it was written by a newer version of the program (%1, this one knows %2)")
                           .arg(version)
                           .arg(model.version()));
    if (hasLog) {
        const std::string found = database.execAndGet("PRAGMA quick_check(1)").getString();
        if (found != "ok")
            return refused(StoreRefusal::Damaged, QString::fromStdString(found));
    }
    if (!empty && version == model.version()) {
        if (const QString difference = differenceFrom(model); !difference.isNull())
            return refused(
                StoreRefusal::SchemaChanged,
                QStringLiteral("the model was changed but its version is still %1 (%2)").arg(version).arg(difference));
    }
    sqlite3_db_config(handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 0, nullptr);
    for (const char *suffix : {"", "-wal"})
        QFile::setPermissions(path_ + QLatin1String(suffix), QFile::ReadOwner | QFile::WriteOwner);
    const std::string journal = database.execAndGet("PRAGMA journal_mode=WAL").getString();
    if (journal != "wal")
        return Error{kCannotOpen, path_, QStringLiteral("it can't keep a write-ahead log"), SQLITE_READONLY};
    database.exec("PRAGMA synchronous=FULL");
    database.exec("PRAGMA cache_size=-8000");
    database.exec("PRAGMA temp_store=MEMORY");
    if (empty || version < model.version() || !state(kSchema))
        bringToModel(model);
    deleteUnreachable(model);
    database.exec("PRAGMA wal_checkpoint(TRUNCATE)");
    startLog();
    sqlite3_wal_hook(handle(), &SqlStore::pagesLogged, this); // instead of checkpoints inside a commit
    return std::nullopt;
}

std::optional<qint64> SqlStore::state(const char *name)
{
    if (!database_->tableExists("_state"))
        return std::nullopt;
    SQLite::Statement query(*database_, R"(SELECT value FROM "_state" WHERE name = ?)");
    query.bind(1, name);
    return query.executeStep() ? std::optional<qint64>(query.getColumn(0).getInt64()) : std::nullopt;
}

std::set<std::string> SqlStore::columns(const EntityDescription &entity)
{
    std::set<std::string> names;
    SQLite::Statement query(*database_, "SELECT name FROM pragma_table_info(?)");
    query.bind(1, entity.name());
    while (query.executeStep())
        names.insert(query.getColumn(0).getString());
    return names;
}

QString SqlStore::differenceFrom(const ManagedObjectModel &model)
{
    if (const auto fingerprint = state(kSchema)) {
        return *fingerprint == model.fingerprint()
                   ? QString()
                   : QStringLiteral("%1, in the file %2").arg(model.fingerprint()).arg(*fingerprint);
    }
    // A file of before fingerprints were kept.
    for (const EntityDescription &entity : model.entities()) {
        const std::set<std::string> present = columns(entity);
        for (int column = 0; column < entity.columnCount(); ++column) {
            if (const std::string &name = entity.columnName(column); !present.contains(name))
                return QString::fromStdString(entity.name() + '.' + name + " is not in the file");
        }
    }
    return {};
}

void SqlStore::bringToModel(const ManagedObjectModel &model)
{
    SQLite::Database &database = *database_;
    SQLite::Transaction transaction(database, SQLite::TransactionBehavior::IMMEDIATE);
    database.exec(R"(CREATE TABLE IF NOT EXISTS "_log" ("_pk" INTEGER PRIMARY KEY, opened INTEGER) STRICT)");
    database.exec(
        R"(CREATE TABLE IF NOT EXISTS "_state" (name TEXT PRIMARY KEY, value INTEGER NOT NULL) STRICT, WITHOUT ROWID)");
    for (const EntityDescription &entity : model.entities()) {
        const std::string table = quoted(entity.name());
        database.exec("CREATE TABLE IF NOT EXISTS " + table + " (\"_pk\" INTEGER PRIMARY KEY) STRICT");
        const std::set<std::string> present = columns(entity);
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
    for (const EntityDescription &entity : model.entities())
        rememberKeysInUse(model, entity);
    SQLite::Statement schema(database, R"(INSERT OR REPLACE INTO "_state" VALUES (?, ?))");
    schema.bind(1, kSchema);
    schema.bind(2, static_cast<int64_t>(model.fingerprint()));
    schema.exec();
    database.exec("PRAGMA application_id=" + std::to_string(kApplicationId));
    database.exec("PRAGMA user_version=" + std::to_string(model.version()));
    transaction.commit();
}

// Also the keys of rows that are gone but that other rows still name.
void SqlStore::rememberKeysInUse(const ManagedObjectModel &model, const EntityDescription &entity)
{
    std::string keys = "SELECT ifnull(max(\"_pk\"), 0) AS key FROM " + quoted(entity.name());
    for (const EntityDescription &source : model.entities()) {
        for (const RelationshipDescription &relationship : source.toOneRelationships()) {
            if (relationship.destinationEntity == &entity)
                keys +=
                    " UNION ALL SELECT ifnull(max(" + quoted(relationship.name) + "), 0) FROM " + quoted(source.name());
        }
    }
    SQLite::Statement insert(*database_, "INSERT OR IGNORE INTO \"_state\" SELECT ?, max(key) FROM (" + keys + ')');
    insert.bind(1, entity.name());
    insert.exec();
}

// Rows whose owners are gone: earlier versions left them behind. Deleting some can cut off others.
void SqlStore::deleteUnreachable(const ManagedObjectModel &model)
{
    try {
        SQLite::Transaction transaction(*database_, SQLite::TransactionBehavior::IMMEDIATE);
        int deleted = 0;
        for (int before = -1; deleted != before;) {
            before = deleted;
            for (const EntityDescription &entity : model.entities())
                deleted += deleteUnreachable(entity);
        }
        transaction.commit();
        if (deleted > 0)
            log("deleted %d records that nothing leads to any more", deleted);
    } catch (const SQLite::Exception &exception) {
        // They only take up room; the next start tries again.
        log("cannot delete records that nothing leads to: %@", QString::fromUtf8(exception.what()));
    }
}

int SqlStore::deleteUnreachable(const EntityDescription &entity)
{
    std::string hasNoOwner;
    for (const RelationshipDescription &relationship : entity.toOneRelationships()) {
        if (!relationship.owner)
            continue;
        // Three times as fast as NOT EXISTS: it scans the index on the column.
        const std::string column = quoted(relationship.name);
        hasNoOwner.append(hasNoOwner.empty() ? "(" : " AND (").append(column).append(" IS NULL OR ").append(column);
        hasNoOwner.append(" NOT IN (SELECT \"_pk\" FROM ").append(quoted(relationship.destination)).append("))");
    }
    if (hasNoOwner.empty())
        return 0;
    const std::string rows = " FROM " + quoted(entity.name()) + " WHERE " + hasNoOwner;
    if (database_->execAndGet("SELECT EXISTS (SELECT 1" + rows + ')').getInt() == 0)
        return 0;
    SQLite::Statement keys(*database_, rememberKeysSql(entity));
    keys.bind(1, entity.name());
    keys.exec();
    return database_->exec("DELETE" + rows);
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
    // When this fails, the log stays, and SQLite goes on reading from it.
    if (sqlite3_wal_checkpoint_v2(handle(), nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr) != SQLITE_OK)
        return;
    try {
        startLog();
    } catch (const SQLite::Exception &) {
        return; // such as a full disk; the next save reports it
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
    SqlStatement update =
        statement("keys " + QByteArray::fromStdString(entity.name()), [&] { return rememberKeysSql(entity); });
    if (!update)
        return false;
    update.bindUtf8(1, QByteArray::fromStdString(entity.name()));
    return update.step() == SQLITE_DONE;
}

} // namespace kesto
