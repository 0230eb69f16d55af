#include "objectgraph/StatementLog.h"

#include <sqlite3.h>

#include <utility>

namespace kesto::test
{

namespace
{

QStringList statements;

int note(unsigned, void *, void *statement, void *)
{
    statements.append(QString::fromUtf8(sqlite3_sql(static_cast<sqlite3_stmt *>(statement))));
    return 0;
}

int traceConnection(sqlite3 *connection, char **, const void *)
{
    return sqlite3_trace_v2(connection, SQLITE_TRACE_STMT, note, nullptr);
}

auto entryPoint() { return reinterpret_cast<void (*)()>(&traceConnection); }

} // namespace

StatementLog::StatementLog()
{
    statements.clear();
    sqlite3_auto_extension(entryPoint());
}

StatementLog::~StatementLog() { sqlite3_cancel_auto_extension(entryPoint()); }

QStringList StatementLog::take() { return std::exchange(statements, {}); }

} // namespace kesto::test
