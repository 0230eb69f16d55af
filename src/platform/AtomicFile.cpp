#include "platform/AtomicFile.h"

#include "platform/Log.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

#include <cerrno>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace kesto
{

namespace
{

// A failed system call sets errno; where Qt stops by itself, only the device knows why.
tl::unexpected<Error> systemFailure(const char *what, const QString &where, const QFileDevice &file, int code)
{
    return failure(QString::fromLatin1(what), where, code != 0 ? qt_error_string(code) : file.errorString(), code);
}

#ifdef Q_OS_UNIX
bool sync(int file)
{
    int result = 0;
    do {
        errno = 0;
        result = ::fsync(file);
    } while (result != 0 && errno == EINTR);
    return result == 0;
}

// A file that was created or renamed survives a power cut only when its folder is on disk, too.
class Folder
{
public:
    explicit Folder(const QString &path)
        : descriptor_(::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
        , openError_(descriptor_ < 0 ? errno : 0)
    {
    }
    ~Folder()
    {
        if (descriptor_ >= 0)
            ::close(descriptor_);
    }
    Folder(const Folder &) = delete;
    Folder &operator=(const Folder &) = delete;

    // 0, or why it cannot be synced. A folder that may be entered but not listed cannot be opened, and is not synced.
    [[nodiscard]] int openError() const { return openError_ == EACCES ? 0 : openError_; }
    // 0 or errno. Some file systems cannot sync a folder, and say so with EINVAL.
    [[nodiscard]] int sync() const
    {
        return descriptor_ < 0 || kesto::sync(descriptor_) || errno == EINVAL ? 0 : errno;
    }

private:
    int descriptor_;
    int openError_;
};
#else
bool sync(int) { return true; }

class Folder
{
public:
    explicit Folder(const QString &) {}
    [[nodiscard]] int openError() const { return 0; }
    [[nodiscard]] int sync() const { return 0; }
};
#endif

} // namespace

namespace AtomicFile
{

Result<QByteArray> read(const QString &path)
{
    constexpr const char *what = "cannot read the file";
    QFile file(path);
    errno = 0;
    if (!file.open(QIODevice::ReadOnly)) {
#ifdef Q_OS_UNIX
        const int code = errno;
#else
        const int code = file.exists() ? EIO : ENOENT;
#endif
        return systemFailure(what, path, file, code);
    }
    errno = 0;
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return systemFailure(what, path, file, errno);
    return bytes;
}

bool isMissing(const Error &error) { return error.code == ENOENT; }

Result<void> write(const QByteArray &bytes, const QString &path)
{
    constexpr const char *what = "cannot write the file";
    // Opened first: nothing may fail for want of a descriptor after the file has been replaced.
    const Folder folder(QFileInfo(path).absolutePath());
    if (const int code = folder.openError(); code != 0)
        return failure(QString::fromLatin1(what), path, qt_error_string(code), code);

    QSaveFile file(path);
    errno = 0;
    if (!file.open(QIODevice::WriteOnly) || !file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner))
        return systemFailure(what, path, file, errno);
    // QSaveFile::commit() renames the file even if it could not write its buffer, and does not look at the result of
    // its fsync (Qt 6.4).
    errno = 0;
    if (file.write(bytes) != bytes.size() || !file.flush() || !sync(file.handle()))
        return systemFailure(what, path, file, errno);
    errno = 0;
    if (!file.commit())
        return systemFailure(what, path, file, errno);
    if (const int code = folder.sync(); code != 0)
        return failure(QStringLiteral("cannot sync the folder of the file"), path, qt_error_string(code), code);
    return {};
}

void removeLeftOvers(const QString &path)
{
    const QFileInfo file(path);
    QDir folder = file.absoluteDir();
    // QSaveFile appends a point and six letters.
    const QRegularExpression pattern(QRegularExpression::anchoredPattern(QRegularExpression::escape(file.fileName()) +
                                                                         QStringLiteral("\\.[A-Za-z]{6}")));
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QString &name : names) {
        if (pattern.match(name).hasMatch() && !folder.remove(name))
            log("The left-over file %@ can't be removed", folder.filePath(name));
    }
}

} // namespace AtomicFile

Result<void> makePrivateFolder(const QString &path)
{
    const QFileInfo folder(path);
    if (folder.isDir())
        return {};
    const QString above = folder.absolutePath();
    if (above != folder.absoluteFilePath()) {
        if (const Result<void> made = makePrivateFolder(above); !made)
            return made;
    }
    errno = 0;
    const QFileDevice::Permissions owner = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    int code = QDir().mkdir(folder.absoluteFilePath(), owner) ? 0 : (errno != 0 ? errno : EIO);
    if (code == 0)
        code = Folder(above).sync();
    if (code != 0)
        return failure(QStringLiteral("cannot create the folder"), path, qt_error_string(code), code);
    return {};
}

} // namespace kesto
