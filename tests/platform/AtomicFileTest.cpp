#include "platform/AtomicFile.h"
#include "support/LogCapture.h"
#include "support/ResourceLimit.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cerrno>

#include <sys/stat.h>

using namespace kesto;
using kesto::test::LogCapture;
using kesto::test::ResourceLimit;

namespace
{

mode_t modeOf(const QString &path)
{
    struct stat status = {};
    EXPECT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
    return status.st_mode & 0777;
}

class AtomicFileTest : public testing::Test
{
protected:
    QTemporaryDir folder_;
    const QString path_ = folder_.filePath(u"Файл [1].plist"_qs);

    [[nodiscard]] QStringList names() const
    {
        return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
};

TEST_F(AtomicFileTest, WritesForTheUserOnlyAndCreatesPrivateFolders)
{
    const mode_t before = umask(0);
    ASSERT_TRUE(AtomicFile::write("one", path_));
    ASSERT_TRUE(QFile::setPermissions(path_, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
    ASSERT_TRUE(AtomicFile::write("two", path_));
    const QString inner = folder_.filePath(u"a/b/c"_qs);
    const Result<void> made = makePrivateFolder(inner);
    umask(before);
    EXPECT_EQ(modeOf(path_), 0600u);
    ASSERT_TRUE(made) << made.error().message().toStdString();
    for (const char16_t *name : {u"a", u"a/b", u"a/b/c"})
        EXPECT_EQ(modeOf(folder_.filePath(QString::fromUtf16(name))), 0700u);
    EXPECT_TRUE(makePrivateFolder(inner));
    EXPECT_FALSE(makePrivateFolder(path_ + u"/below"_qs));
    EXPECT_EQ(*AtomicFile::read(path_), "two");
}

TEST_F(AtomicFileTest, AFullDiskLeavesTheOldContent)
{
    ASSERT_TRUE(AtomicFile::write("old", path_));
    // Below and above the size of the buffer, which is written at different moments.
    for (const int size : {100, 20'000, 100'000}) {
        for (const rlim_t room : {rlim_t(0), rlim_t(64)}) {
            const ResourceLimit full(RLIMIT_FSIZE, room);
            const Result<void> written = AtomicFile::write(QByteArray(size, 'x'), path_);
            ASSERT_FALSE(written) << size << ' ' << room;
            EXPECT_EQ(written.error().code, EFBIG);
            EXPECT_EQ(written.error().where, path_);
        }
        EXPECT_EQ(*AtomicFile::read(path_), "old");
    }
    EXPECT_FALSE(AtomicFile::write("new", folder_.filePath(u"none/a"_qs)));
    EXPECT_EQ(names().size(), 1);
    EXPECT_TRUE(AtomicFile::write("new", path_));
}

TEST_F(AtomicFileTest, TellsAMissingFileFromOneThatCannotBeRead)
{
    EXPECT_TRUE(AtomicFile::isMissing(AtomicFile::read(path_).error()));
    ASSERT_TRUE(AtomicFile::write("a", path_));
    const ResourceLimit noDescriptors(RLIMIT_NOFILE, 0);
    const Result<QByteArray> read = AtomicFile::read(path_);
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().code, EMFILE);
    EXPECT_FALSE(AtomicFile::isMissing(read.error()));
    EXPECT_EQ(AtomicFile::write("b", path_).error().code, EMFILE);
}

TEST_F(AtomicFileTest, RemovesOnlyItsOwnLeftOvers)
{
    const QString name = u"Файл [1].plist"_qs;
    const QStringList kept{name,
                           name + u".damaged-1"_qs,
                           name + u".backup1"_qs,
                           name + u".1a2b3c"_qs,
                           u"other.plist.abcDEF"_qs,
                           u"Файл 1.plist.abcDEF"_qs};
    const QStringList left{name + u".abcDEF"_qs, name + u".ZZZZZZ"_qs};
    for (const QString &file : kept + left)
        ASSERT_TRUE(AtomicFile::write("x", folder_.filePath(file)));
    AtomicFile::removeLeftOvers(path_);
    QStringList expected = kept;
    expected.sort();
    QStringList found = names();
    found.sort();
    EXPECT_EQ(found, expected);
}

} // namespace
