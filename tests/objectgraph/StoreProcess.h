#pragma once

#include <QString>

#include <optional>
#include <sys/types.h>

namespace kesto::test
{

/// A child that moved its store saves so often before it ends.
inline constexpr int kSavesAfterMove = 20;

/// This program started again with a role, with a pipe on which it reports. Killed when this ends.
class StoreProcess
{
public:
    /// What it does: "hold" attaches a file and waits; "save" writes one transaction after the other; "move" does so
    /// while it moves the content to another file. Every role reports one number at a time: 0 after attaching, -1 when
    /// it was refused, else the number of the save that has just returned true.
    ///
    /// A "move" can kill itself: "duringMove" and "afterMove" at the nth write since the move has begun or ended,
    /// "rename" when it opens the target for the first time, which comes right after the renaming.
    StoreProcess(const char *role, const QString &path, const QString &target = {}, const char *death = "never",
                 int writes = 0);
    ~StoreProcess();
    StoreProcess(const StoreProcess &) = delete;
    StoreProcess &operator=(const StoreProcess &) = delete;

    /// The next report; nothing when the process has ended or the time is over.
    [[nodiscard]] std::optional<qint64> next(int milliseconds);
    /// SIGKILL; the last report that it sent.
    qint64 kill();
    /// Waits for the end; its exit code.
    int wait();

private:
    pid_t process_ = -1;
    int pipe_ = -1;
    qint64 last_ = 0;
};

/// What a child does; the exit code of the program.
int runStoreProcess(int argc, char **argv);

} // namespace kesto::test
