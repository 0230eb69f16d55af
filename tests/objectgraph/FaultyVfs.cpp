#include "objectgraph/FaultyVfs.h"

#include <algorithm>
#include <new>
#include <utility>

namespace kesto::test
{

namespace
{

/// A file of SQLite's with the real one behind it in the same piece of memory.
struct ShimFile
{
    sqlite3_file base;
    FaultyVfs *vfs;
    std::string *path;
    [[nodiscard]] sqlite3_file *real() { return reinterpret_cast<sqlite3_file *>(this + 1); }
};

ShimFile &shim(sqlite3_file *file) { return *reinterpret_cast<ShimFile *>(file); }
sqlite3_file *real(sqlite3_file *file) { return shim(file).real(); }
FaultyVfs &owner(sqlite3_vfs *vfs) { return *static_cast<FaultyVfs *>(vfs->pAppData); }

int closeFile(sqlite3_file *file)
{
    const int result = real(file)->pMethods->xClose(real(file));
    delete shim(file).path;
    return result;
}
int readFile(sqlite3_file *file, void *bytes, int count, sqlite3_int64 offset)
{
    return real(file)->pMethods->xRead(real(file), bytes, count, offset);
}
int writeFile(sqlite3_file *file, const void *bytes, int count, sqlite3_int64 offset)
{
    const int refused = shim(file).vfs->before(FaultyVfs::Kind::Write, *shim(file).path);
    if (refused == SQLITE_FULL)
        return refused;
    const int result =
        real(file)->pMethods->xWrite(real(file), bytes, refused == SQLITE_OK ? count : count / 2, offset);
    return refused == SQLITE_OK ? result : SQLITE_IOERR_WRITE;
}
int truncateFile(sqlite3_file *file, sqlite3_int64 size)
{
    const int refused = shim(file).vfs->before(FaultyVfs::Kind::Truncate, *shim(file).path);
    return refused == SQLITE_OK ? real(file)->pMethods->xTruncate(real(file), size) : SQLITE_IOERR_TRUNCATE;
}
int syncFile(sqlite3_file *file, int flags)
{
    const int refused = shim(file).vfs->before(FaultyVfs::Kind::Sync, *shim(file).path);
    return refused == SQLITE_OK ? real(file)->pMethods->xSync(real(file), flags) : SQLITE_IOERR_FSYNC;
}
int fileSize(sqlite3_file *file, sqlite3_int64 *size) { return real(file)->pMethods->xFileSize(real(file), size); }
int lockFile(sqlite3_file *file, int level) { return real(file)->pMethods->xLock(real(file), level); }
int unlockFile(sqlite3_file *file, int level) { return real(file)->pMethods->xUnlock(real(file), level); }
int checkReserved(sqlite3_file *file, int *held) { return real(file)->pMethods->xCheckReservedLock(real(file), held); }
int controlFile(sqlite3_file *file, int what, void *value)
{
    return real(file)->pMethods->xFileControl(real(file), what, value);
}
int sectorSize(sqlite3_file *file) { return real(file)->pMethods->xSectorSize(real(file)); }
int characteristics(sqlite3_file *file) { return real(file)->pMethods->xDeviceCharacteristics(real(file)); }

// No shared memory: what is locked exclusively needs none.
const sqlite3_io_methods kMethods{1,           closeFile,  readFile,       writeFile,  truncateFile,
                                  syncFile,    fileSize,   lockFile,       unlockFile, checkReserved,
                                  controlFile, sectorSize, characteristics};

int openFile(sqlite3_vfs *vfs, const char *path, sqlite3_file *file, int flags, int *outFlags)
{
    auto *opened = new (static_cast<void *>(file)) ShimFile{{nullptr}, &owner(vfs), nullptr};
    sqlite3_vfs *realVfs = owner(vfs).real();
    const int result = realVfs->xOpen(realVfs, path, opened->real(), flags, outFlags);
    if (result != SQLITE_OK)
        return result;
    opened->path = new std::string(path != nullptr ? path : "");
    opened->base.pMethods = &kMethods;
    return SQLITE_OK;
}

int deleteFile(sqlite3_vfs *vfs, const char *path, int sync)
{
    const int refused = owner(vfs).before(FaultyVfs::Kind::Delete, path);
    sqlite3_vfs *realVfs = owner(vfs).real();
    return refused == SQLITE_OK ? realVfs->xDelete(realVfs, path, sync) : SQLITE_IOERR_DELETE;
}

} // namespace

FaultyVfs::FaultyVfs()
    : real_(sqlite3_vfs_find(nullptr))
    , shim_(*real_)
{
    shim_.zName = "faulty";
    shim_.szOsFile = static_cast<int>(sizeof(ShimFile)) + real_->szOsFile;
    shim_.pAppData = this;
    shim_.xOpen = openFile;
    shim_.xDelete = deleteFile;
    // The others work on names only, but find their data in the real one.
    shim_.xAccess = [](sqlite3_vfs *vfs, const char *path, int flags, int *result) {
        return owner(vfs).real()->xAccess(owner(vfs).real(), path, flags, result);
    };
    shim_.xFullPathname = [](sqlite3_vfs *vfs, const char *path, int size, char *result) {
        return owner(vfs).real()->xFullPathname(owner(vfs).real(), path, size, result);
    };
    sqlite3_vfs_register(&shim_, 1);
}

FaultyVfs::~FaultyVfs()
{
    sqlite3_vfs_register(real_, 1);
    sqlite3_vfs_unregister(&shim_);
}

void FaultyVfs::fail(int nth, bool diskFull, Lasting lasting)
{
    const std::lock_guard lock(mutex_);
    countdown_ = nth;
    diskFull_ = diskFull;
    lasting_ = lasting;
    failed_ = false;
}

void FaultyVfs::heal()
{
    const std::lock_guard lock(mutex_);
    countdown_ = 0;
}

int FaultyVfs::take(Kind kind)
{
    const std::lock_guard lock(mutex_);
    return std::exchange(counts_[kind], 0);
}

bool FaultyVfs::everythingIsSynced() const
{
    const std::lock_guard lock(mutex_);
    return std::none_of(unsynced_.begin(), unsynced_.end(), [](const auto &file) { return file.second; });
}

int FaultyVfs::before(Kind kind, const std::string &path)
{
    const std::lock_guard lock(mutex_);
    ++counts_[kind];
    // A full disk refuses only what needs space.
    const bool counts = !diskFull_ || kind == Kind::Write;
    if (countdown_ > 0 && counts && --countdown_ == 0) {
        if (lasting_ == Lasting::FromThenOn)
            countdown_ = 1;
        failed_ = true;
        return diskFull_ ? SQLITE_FULL : SQLITE_IOERR;
    }
    const bool isLog = path.ends_with("-wal");
    if (kind == Kind::Truncate && isLog && unsynced_[path.substr(0, path.size() - 4)])
        brokenOrder_ = true;
    if (kind != Kind::Truncate)
        unsynced_[path] = kind == Kind::Write;
    return SQLITE_OK;
}

} // namespace kesto::test
