#pragma once

#include <sqlite3.h>

#include <map>
#include <mutex>
#include <string>

namespace kesto::test
{

/// SQLite's view of the disk, which can be made to fail. The default while it lives; files opened before go on without
/// it. Counts what changes a file and remembers what a loss of power would lose.
class FaultyVfs
{
public:
    enum class Kind { Write, Sync, Truncate, Delete };
    enum class Lasting { Once, FromThenOn };

    FaultyVfs();
    ~FaultyVfs();
    FaultyVfs(const FaultyVfs &) = delete;
    FaultyVfs &operator=(const FaultyVfs &) = delete;

    /// The nth operation from now on fails (1 is the next). A failing write leaves half of its bytes, one that finds
    /// the disk full none.
    void fail(int nth, bool diskFull, Lasting lasting);
    void heal();
    /// Whether an operation failed since the last call of fail().
    [[nodiscard]] bool hasFailed() const { return failed_; }

    /// Of a kind, since the last call with this kind.
    [[nodiscard]] int take(Kind kind);
    /// Whether every byte written to a file that still exists was synced.
    [[nodiscard]] bool everythingIsSynced() const;
    /// Whether a log was ever cut short while pages in its database were not synced.
    [[nodiscard]] bool hasBrokenOrder() const { return brokenOrder_; }

    // For the callbacks.
    int before(Kind kind, const std::string &path);
    sqlite3_vfs *real() { return real_; }

private:
    sqlite3_vfs *real_;
    sqlite3_vfs shim_;
    mutable std::mutex mutex_;
    std::map<std::string, bool> unsynced_;
    std::map<Kind, int> counts_;
    int countdown_ = 0;
    bool diskFull_ = false;
    Lasting lasting_ = Lasting::Once;
    bool failed_ = false;
    bool brokenOrder_ = false;
};

} // namespace kesto::test
