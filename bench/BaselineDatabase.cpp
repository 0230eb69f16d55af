#include "BaselineDatabase.h"

#include "Checksum.h"

#include <QFile>
#include <QSqlError>

#include <cstdio>
#include <cstdlib>

namespace kesto::bench
{

namespace
{

// As the program's store has it: the same durability, no checkpoint inside a commit, and a log that has its first
// commit behind it.
constexpr const char *kSettings[] = {
    "PRAGMA locking_mode=EXCLUSIVE",
    "PRAGMA journal_mode=WAL",
    "PRAGMA synchronous=FULL",
    "PRAGMA wal_autocheckpoint=0",
    "PRAGMA cache_size=-8000",
    "PRAGMA temp_store=MEMORY",
    "INSERT OR REPLACE INTO \"_log\" VALUES (1, 1)",
};

} // namespace

void fail(const QString &reason)
{
    std::fprintf(stderr, "kesto_bench: %s\n", qPrintable(reason));
    std::exit(1);
}

PlainDatabase::PlainDatabase(const QString &path)
{
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &handle_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                        nullptr) != SQLITE_OK)
        fail(path);
    for (const char *setting : kSettings)
        execute(setting);
}

void PlainDatabase::execute(const char *sql)
{
    if (sqlite3_exec(handle_, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        fail(QString::fromUtf8(sqlite3_errmsg(handle_)));
}

PlainDatabase::Statement::Statement(PlainDatabase &database, const char *sql)
{
    if (sqlite3_prepare_v3(database.handle_, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement_, nullptr) != SQLITE_OK)
        fail(QString::fromUtf8(sqlite3_errmsg(database.handle_)));
}

QtDatabase::QtDatabase(const QString &path)
    : name_(path)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name_);
    database.setDatabaseName(path);
    if (!database.open())
        fail(database.lastError().text());
    for (const char *setting : kSettings)
        execute(setting);
}

QtDatabase::~QtDatabase()
{
    QSqlDatabase::database(name_, false).close();
    QSqlDatabase::removeDatabase(name_);
}

void QtDatabase::execute(const char *sql)
{
    QSqlQuery query(QSqlDatabase::database(name_));
    if (!query.exec(QString::fromUtf8(sql)))
        fail(query.lastError().text());
}

QtDatabase::Statement::Statement(QtDatabase &database, const char *sql)
    : query_(QSqlDatabase::database(database.name_))
{
    query_.setForwardOnly(true);
    if (!query_.prepare(QString::fromUtf8(sql)))
        fail(query_.lastError().text());
}

void QtDatabase::Statement::run()
{
    if (!query_.exec())
        fail(query_.lastError().text());
}

quint64 contentChecksum(const QString &path, std::initializer_list<const char *> tables)
{
    sqlite3 *handle = nullptr;
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &handle, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
        fail(path);
    Checksum checksum;
    for (const char *table : tables) {
        sqlite3_stmt *rows = nullptr;
        const QByteArray sql = QByteArray("SELECT * FROM \"") + table + "\" ORDER BY \"_pk\"";
        if (sqlite3_prepare_v2(handle, sql.constData(), -1, &rows, nullptr) != SQLITE_OK)
            fail(QString::fromUtf8(sqlite3_errmsg(handle)));
        qint64 count = 0;
        for (; sqlite3_step(rows) == SQLITE_ROW; ++count) {
            for (int column = 0; column < sqlite3_column_count(rows); ++column) {
                checksum.add(static_cast<qint64>(sqlite3_column_type(rows, column)));
                checksum.add(QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(rows, column))));
            }
        }
        checksum.add(count);
        sqlite3_finalize(rows);
    }
    sqlite3_close(handle);
    return checksum.value();
}

} // namespace kesto::bench
