#include "Probe.h"

#include <sqlite3.h>

#include <cstring>

namespace kesto::bench
{

namespace
{

int statementCount = 0;
int syncCount = 0;

int countStatement(unsigned, void *, void *, void *text)
{
    if (std::strncmp(static_cast<const char *>(text), "--", 2) != 0) // those are parts of a running statement
        ++statementCount;
    return 0;
}

int attach(sqlite3 *database, char **, const void *)
{
    sqlite3_trace_v2(database, SQLITE_TRACE_STMT, &countStatement, nullptr);
    return SQLITE_OK;
}

// A file system that hands everything to the default one and counts the syncs.

sqlite3_vfs *base = nullptr;

struct CountedFile
{
    sqlite3_file file;
    sqlite3_file *real;
};

sqlite3_file *real(sqlite3_file *file) { return reinterpret_cast<CountedFile *>(file)->real; }

#define KESTO_FORWARD(name, parameters, ...)                                                                           \
    int file##name parameters { return real(file)->pMethods->x##name(real(file), ##__VA_ARGS__); }

KESTO_FORWARD(Read, (sqlite3_file * file, void *bytes, int size, sqlite3_int64 at), bytes, size, at)
KESTO_FORWARD(Write, (sqlite3_file * file, const void *bytes, int size, sqlite3_int64 at), bytes, size, at)
KESTO_FORWARD(Truncate, (sqlite3_file * file, sqlite3_int64 size), size)
KESTO_FORWARD(FileSize, (sqlite3_file * file, sqlite3_int64 *size), size)
KESTO_FORWARD(Lock, (sqlite3_file * file, int level), level)
KESTO_FORWARD(Unlock, (sqlite3_file * file, int level), level)
KESTO_FORWARD(CheckReservedLock, (sqlite3_file * file, int *result), result)
KESTO_FORWARD(FileControl, (sqlite3_file * file, int operation, void *argument), operation, argument)
KESTO_FORWARD(SectorSize, (sqlite3_file * file))
KESTO_FORWARD(DeviceCharacteristics, (sqlite3_file * file))
KESTO_FORWARD(ShmMap, (sqlite3_file * file, int region, int size, int extend, void volatile **memory), region, size,
              extend, memory)
KESTO_FORWARD(ShmLock, (sqlite3_file * file, int offset, int count, int flags), offset, count, flags)
KESTO_FORWARD(ShmUnmap, (sqlite3_file * file, int remove), remove)
KESTO_FORWARD(Fetch, (sqlite3_file * file, sqlite3_int64 at, int size, void **bytes), at, size, bytes)
KESTO_FORWARD(Unfetch, (sqlite3_file * file, sqlite3_int64 at, void *bytes), at, bytes)

#undef KESTO_FORWARD

void fileShmBarrier(sqlite3_file *file) { real(file)->pMethods->xShmBarrier(real(file)); }

int fileSync(sqlite3_file *file, int flags)
{
    ++syncCount;
    return real(file)->pMethods->xSync(real(file), flags);
}

int fileClose(sqlite3_file *file) { return real(file)->pMethods->xClose(real(file)); }

constexpr sqlite3_io_methods kMethods{
    3,
    fileClose,
    fileRead,
    fileWrite,
    fileTruncate,
    fileSync,
    fileFileSize,
    fileLock,
    fileUnlock,
    fileCheckReservedLock,
    fileFileControl,
    fileSectorSize,
    fileDeviceCharacteristics,
    fileShmMap,
    fileShmLock,
    fileShmBarrier,
    fileShmUnmap,
    fileFetch,
    fileUnfetch,
};

int openFile(sqlite3_vfs *, const char *name, sqlite3_file *file, int flags, int *outFlags)
{
    auto *counted = reinterpret_cast<CountedFile *>(file);
    counted->real = reinterpret_cast<sqlite3_file *>(counted + 1);
    const int result = base->xOpen(base, name, counted->real, flags, outFlags);
    counted->file.pMethods = counted->real->pMethods != nullptr ? &kMethods : nullptr;
    return result;
}

int deleteFile(sqlite3_vfs *, const char *name, int sync) { return base->xDelete(base, name, sync); }
int accessFile(sqlite3_vfs *, const char *name, int flags, int *result)
{
    return base->xAccess(base, name, flags, result);
}
int fullPathname(sqlite3_vfs *, const char *name, int size, char *result)
{
    return base->xFullPathname(base, name, size, result);
}
int randomness(sqlite3_vfs *, int size, char *bytes) { return base->xRandomness(base, size, bytes); }
int sleepFor(sqlite3_vfs *, int microseconds) { return base->xSleep(base, microseconds); }
int currentTime(sqlite3_vfs *, double *time) { return base->xCurrentTime(base, time); }
int lastError(sqlite3_vfs *, int size, char *text) { return base->xGetLastError(base, size, text); }
int currentTimeInt64(sqlite3_vfs *, sqlite3_int64 *time) { return base->xCurrentTimeInt64(base, time); }

sqlite3_vfs counting{};

} // namespace

Probe::Probe()
{
    reset();
    base = sqlite3_vfs_find(nullptr);
    counting.iVersion = 2;
    counting.szOsFile = static_cast<int>(sizeof(CountedFile)) + base->szOsFile;
    counting.mxPathname = base->mxPathname;
    counting.zName = "counting";
    counting.xOpen = openFile;
    counting.xDelete = deleteFile;
    counting.xAccess = accessFile;
    counting.xFullPathname = fullPathname;
    counting.xRandomness = randomness;
    counting.xSleep = sleepFor;
    counting.xCurrentTime = currentTime;
    counting.xGetLastError = lastError;
    counting.xCurrentTimeInt64 = currentTimeInt64;
    sqlite3_vfs_register(&counting, 1);
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(&attach));
}

Probe::~Probe()
{
    sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&attach));
    sqlite3_vfs_unregister(&counting);
    sqlite3_vfs_register(base, 1);
}

void Probe::reset()
{
    statementCount = 0;
    syncCount = 0;
}

int Probe::statements() const { return statementCount; }

int Probe::syncs() const { return syncCount; }

} // namespace kesto::bench
