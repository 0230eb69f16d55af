#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

#include <sqlite3.h>

#include <array>
#include <memory>

namespace kesto::bench
{

// Two databases with the same members, so that a baseline is written once for both. Each sets the connection up as the
// program's own store does. A failure ends the program: there is nothing to measure then.

[[noreturn]] void fail(const QString &reason);

/// The C API, as directly as it goes: prepared statements, texts bound without a copy.
class PlainDatabase
{
public:
    class Statement
    {
    public:
        Statement(PlainDatabase &database, const char *sql);
        ~Statement() { sqlite3_finalize(statement_); }
        Statement(const Statement &) = delete;
        Statement &operator=(const Statement &) = delete;

        void bind(int position, qint64 value) { sqlite3_bind_int64(statement_, position, value); }
        void bind(int position, double value) { sqlite3_bind_double(statement_, position, value); }
        void bindNull(int position) { sqlite3_bind_null(statement_, position); }
        void bind(int position, const QString &value)
        {
            QByteArray &text = texts_[static_cast<size_t>(position)];
            text = value.toUtf8();
            sqlite3_bind_text64(statement_, position, text.constData(), static_cast<sqlite3_uint64>(text.size()),
                                SQLITE_STATIC, SQLITE_UTF8);
        }
        /// The text must stay as it is until the statement has run.
        void bindUtf8(int position, const char *text)
        {
            sqlite3_bind_text(statement_, position, text, -1, SQLITE_STATIC);
        }
        /// The next row; false behind the last.
        bool next()
        {
            const int result = sqlite3_step(statement_);
            if (result != SQLITE_ROW && result != SQLITE_DONE)
                fail(QString::fromUtf8(sqlite3_errmsg(sqlite3_db_handle(statement_))));
            return result == SQLITE_ROW;
        }
        void reset() { sqlite3_reset(statement_); }
        void execute()
        {
            next();
            reset();
        }

        [[nodiscard]] bool isNull(int column) const { return sqlite3_column_type(statement_, column) == SQLITE_NULL; }
        [[nodiscard]] qint64 integer(int column) const { return sqlite3_column_int64(statement_, column); }
        [[nodiscard]] double real(int column) const { return sqlite3_column_double(statement_, column); }
        [[nodiscard]] QString text(int column) const
        {
            const auto *utf8 = reinterpret_cast<const char *>(sqlite3_column_text(statement_, column));
            return QString::fromUtf8(utf8, sqlite3_column_bytes(statement_, column));
        }

    private:
        sqlite3_stmt *statement_ = nullptr;
        std::array<QByteArray, 12> texts_; // by position, until the statement has run
    };

    explicit PlainDatabase(const QString &path);
    ~PlainDatabase() { sqlite3_close(handle_); }
    PlainDatabase(const PlainDatabase &) = delete;
    PlainDatabase &operator=(const PlainDatabase &) = delete;

    void execute(const char *sql);

private:
    sqlite3 *handle_ = nullptr;
};

/// Qt's SQL classes, with prepared forward-only queries.
class QtDatabase
{
public:
    class Statement
    {
    public:
        Statement(QtDatabase &database, const char *sql);

        template <class T>
        void bind(int position, const T &value)
        {
            query_.bindValue(position - 1, value);
        }
        void bindNull(int position) { query_.bindValue(position - 1, QVariant(QMetaType::fromType<qlonglong>())); }
        bool next()
        {
            if (!query_.isActive())
                run();
            return query_.next();
        }
        void reset() { query_.finish(); }
        void execute() { run(); }

        [[nodiscard]] bool isNull(int column) const { return query_.isNull(column); }
        [[nodiscard]] qint64 integer(int column) const { return query_.value(column).toLongLong(); }
        [[nodiscard]] double real(int column) const { return query_.value(column).toDouble(); }
        [[nodiscard]] QString text(int column) const { return query_.value(column).toString(); }

    private:
        void run();
        QSqlQuery query_;
    };

    explicit QtDatabase(const QString &path);
    ~QtDatabase();
    QtDatabase(const QtDatabase &) = delete;
    QtDatabase &operator=(const QtDatabase &) = delete;

    void execute(const char *sql);

private:
    QString name_;
};

/// A checksum over all rows of the tables in the order of their keys.
[[nodiscard]] quint64 contentChecksum(const QString &path, std::initializer_list<const char *> tables);

} // namespace kesto::bench
