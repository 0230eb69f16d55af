#pragma once

#include "platform/Error.h"
#include "platform/objectgraph/ManagedObjectModel.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace SQLite
{
class Database;
}

namespace kesto
{

/// A name of the model as SQL takes it.
[[nodiscard]] inline std::string quoted(const std::string &name) { return '"' + name + '"'; }

/// A prepared statement that goes back to its start when this handle ends.
class SqlStatement
{
public:
    explicit SqlStatement(sqlite3_stmt *statement)
        : statement_(statement)
    {
    }
    ~SqlStatement();
    SqlStatement(const SqlStatement &) = delete;
    SqlStatement &operator=(const SqlStatement &) = delete;

    /// Null when it could not be prepared; SqlStore::error() tells why.
    [[nodiscard]] sqlite3_stmt *get() const { return statement_; }
    explicit operator bool() const { return statement_ != nullptr; }

    /// The value must stay as it is until the statement has run. Texts and bytes are not copied.
    void bind(int position, const AttributeValue &value);
    void bind(int position, qint64 value);
    void bindUtf8(int position, const QByteArray &value);

    /// SQLITE_ROW, SQLITE_DONE or an error code; also that of a value that could not be bound.
    [[nodiscard]] int step();
    /// Back to the start, to be bound and run again.
    void rewind();

private:
    void note(int bound);

    sqlite3_stmt *statement_;
    std::vector<QByteArray> texts_; // UTF-8 of bound texts
    int failedBind_ = 0;
};

/// One open store file: the connection (exclusive, write-ahead log, every commit synced), the schema and prepared
/// statements. Not thread-safe: the coordinator's lock guards it.
class SqlStore
{
public:
    /// Opens or makes the file and brings it to the model: what a file of an older version lacks is added, the rest
    /// stays. A file that a log lies beside was not closed, so it is checked before it is used. Rows that can't be
    /// reached any more are deleted. Fails, and leaves the file untouched, when it is damaged, locked by another
    /// process, written by a newer version or by another program, or when the model was changed without a higher
    /// version; the error's code is SQLite's or a StoreRefusal.
    [[nodiscard]] static Result<std::unique_ptr<SqlStore>> open(const QString &path, const ManagedObjectModel &model);
    ~SqlStore();
    /// Makes an empty file that only its owner can read; one that exists stays as it is. SQLite gives its log the same
    /// permissions.
    static void makeFile(const QString &path);

    [[nodiscard]] const QString &path() const { return path_; }
    [[nodiscard]] sqlite3 *handle() const;

    /// A statement kept by a key that stands for its text: makeSql() gives the text the first time.
    template <class MakeSql>
    SqlStatement statement(const QByteArray &key, const MakeSql &makeSql)
    {
        const auto found = statements_.constFind(key);
        return SqlStatement(found != statements_.constEnd() ? *found : prepare(key, makeSql()));
    }

    [[nodiscard]] Result<void> execute(const char *sql);
    /// Begins a transaction. One that an earlier failure left open is rolled back first.
    [[nodiscard]] Result<void> begin();
    /// Why the last call of SQLite failed.
    [[nodiscard]] Error error(const QString &what) const;

    /// The largest key that a row of an entity ever had, 0 when there was none; nothing when it can't be read.
    [[nodiscard]] std::optional<qint64> maximumKey(const EntityDescription &entity);
    /// To be called before rows of an entity are deleted, in the same transaction: keys are never used again. False on
    /// failure.
    [[nodiscard]] bool rememberKeys(const EntityDescription &entity);

    /// To be called after each commit: moves a long log into the file. With `mayTakeTime` false only a very long one.
    void checkpoint(bool mayTakeTime);
    [[nodiscard]] bool checkpointIsDue() const { return logPages_ > kPagesBeforeCheckpoint; }

private:
    static constexpr int kPagesBeforeCheckpoint = 1000;
    static constexpr int kPagesBeforeForcedCheckpoint = 16000;

    SqlStore(QString path, std::unique_ptr<SQLite::Database> database);
    [[nodiscard]] sqlite3_stmt *prepare(const QByteArray &key, const std::string &sql);
    [[nodiscard]] std::optional<Error> prepareFile(const ManagedObjectModel &model);
    /// Why the file does not hold what this version of the model stores; null when it does.
    [[nodiscard]] QString differenceFrom(const ManagedObjectModel &model);
    [[nodiscard]] std::optional<qint64> state(const char *name);
    void bringToModel(const ManagedObjectModel &model);
    [[nodiscard]] std::set<std::string> columns(const EntityDescription &entity);
    void rememberKeysInUse(const ManagedObjectModel &model, const EntityDescription &entity);
    void deleteUnreachable(const ManagedObjectModel &model);
    [[nodiscard]] int deleteUnreachable(const EntityDescription &entity);
    void startLog();
    static int pagesLogged(void *self, sqlite3 *, const char *, int pages);

    QString path_;
    std::unique_ptr<SQLite::Database> database_;
    QHash<QByteArray, sqlite3_stmt *> statements_;
    int logPages_ = 0;
};

} // namespace kesto
