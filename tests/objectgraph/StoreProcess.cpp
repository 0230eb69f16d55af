#include "objectgraph/StoreProcess.h"

#include "objectgraph/GraphTest.h"

#include <QCoreApplication>
#include <QFile>

#include <sqlite3.h>

#include <array>
#include <atomic>
#include <csignal>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kesto::test
{

namespace
{

using WriteAt = ssize_t (*)(int, const void *, size_t, off_t);
using Open = int (*)(const char *, int, int);

WriteAt writeAt = nullptr;
Open openFile = nullptr;
std::atomic<int> writesToLive = 0; // 0: any number
QByteArray fatalPath;

void die() { ::kill(::getpid(), SIGKILL); }

ssize_t countedWrite(int file, const void *bytes, size_t size, off_t offset)
{
    if (writesToLive > 0 && --writesToLive == 0)
        die();
    return writeAt(file, bytes, size, offset);
}

int watchedOpen(const char *path, int flags, int mode)
{
    if (path == fatalPath)
        die();
    return openFile(path, flags, mode);
}

/// Puts ours in the place of the system calls that SQLite makes.
void watchSystemCalls()
{
    sqlite3_vfs *vfs = sqlite3_vfs_find("unix");
    for (const char *name : {"pwrite", "pwrite64"}) {
        if (const auto call = vfs->xGetSystemCall(vfs, name)) {
            writeAt = reinterpret_cast<WriteAt>(call);
            vfs->xSetSystemCall(vfs, name, reinterpret_cast<sqlite3_syscall_ptr>(&countedWrite));
        }
    }
    openFile = reinterpret_cast<Open>(vfs->xGetSystemCall(vfs, "open"));
    vfs->xSetSystemCall(vfs, "open", reinterpret_cast<sqlite3_syscall_ptr>(&watchedOpen));
}

} // namespace

StoreProcess::StoreProcess(const char *role, const QString &path, const QString &target, const char *death, int writes)
{
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        qFatal("No pipe");
    const QByteArray file = QFile::encodeName(path), other = QFile::encodeName(target);
    const QByteArray report = QByteArray::number(ends[1]), count = QByteArray::number(writes);
    process_ = ::fork();
    if (process_ == 0) {
        ::close(ends[0]);
        ::execl("/proc/self/exe", "store-process", role, report.constData(), file.constData(), other.constData(), death,
                count.constData(), nullptr);
        ::_exit(127);
    }
    ::close(ends[1]);
    pipe_ = ends[0];
}

StoreProcess::~StoreProcess()
{
    kill();
    ::close(pipe_);
}

std::optional<qint64> StoreProcess::next(int milliseconds)
{
    pollfd ready{pipe_, POLLIN, 0};
    qint64 number = 0;
    if (::poll(&ready, 1, milliseconds) != 1 || ::read(pipe_, &number, sizeof number) != sizeof number)
        return std::nullopt;
    last_ = number;
    return number;
}

qint64 StoreProcess::kill()
{
    if (process_ > 0) {
        ::kill(process_, SIGKILL);
        (void)wait();
    }
    while (next(0)) {
    }
    return last_;
}

int StoreProcess::wait()
{
    int status = 0;
    ::waitpid(process_, &status, 0);
    process_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int runStoreProcess(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QByteArray role(argv[1]);
    const int pipe = QByteArray(argv[2]).toInt();
    const auto report = [&](qint64 number) { return ::write(pipe, &number, sizeof number) == sizeof number; };
    OpenGraph graph(QFile::decodeName(argv[3]));
    report(graph.attached ? 0 : -1);
    if (!graph.attached)
        return 3;
    if (role == "hold")
        return ::pause();

    const auto counters = graph.fetch("Person");
    ManagedObject &counter = counters.empty() ? graph.insert("Person", {{"age", 0}}) : *counters.front();
    qint64 number = get(counter, "age").toLongLong();
    std::atomic<bool> moving = role == "move";
    if (moving) {
        const QByteArray death(argv[5]);
        const int writes = QByteArray(argv[6]).toInt();
        watchSystemCalls();
        graph.coordinator.perform([&, death, writes] {
            if (death == "rename")
                fatalPath = argv[4];
            if (death == "duringMove")
                writesToLive = writes;
            if (!graph.coordinator.migratePersistentStore(QFile::decodeName(argv[4]), {}))
                ::_exit(4);
            if (death == "afterMove")
                writesToLive = writes;
            moving = false;
        });
    }
    for (int afterMove = 0; afterMove < kSavesAfterMove; afterMove += role == "move" && !moving ? 1 : 0) {
        // One transaction: a counter, a row, and now and then a long value, so that the log grows.
        set(counter, "age", ++number);
        if (role == "save")
            set(counter, "photo", QByteArray(static_cast<int>(number % 7) * 20'000, 'x'));
        graph.insert("Pet", {{"name", QString::number(number)}, {"owner", QVariant::fromValue(&counter)}});
        if (!graph.save())
            return 5;
        if (!report(number))
            return 6;
        QCoreApplication::processEvents(); // moves a long log
    }
    return 0;
}

} // namespace kesto::test
