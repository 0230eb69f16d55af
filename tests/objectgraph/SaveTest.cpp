#include "objectgraph/GraphTest.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <functional>

namespace kesto::test
{

namespace
{

using testing::ElementsAre;
using Kind = FaultyVfs::Kind;
using Lasting = FaultyVfs::Lasting;

class SaveTest : public GraphTest
{
protected:
    SaveTest()
        : disk_(breakableDisk())
    {
    }
    [[nodiscard]] qint64 logSize() const { return QFileInfo(path() + QStringLiteral("-wal")).size(); }

    /// What a crash would leave now, opened.
    void checkCrashed(const QString &file, const std::function<bool(OpenGraph &)> &isRight)
    {
        const QString copy = path("crashed.sqlite");
        for (const char *suffix : {"", "-wal"})
            writeBytes(copy + QString::fromUtf8(suffix), bytesOf(file + QString::fromUtf8(suffix)));
        OpenGraph crashed(copy);
        ASSERT_TRUE(crashed.attached) << crashed.error.message().toStdString();
        EXPECT_TRUE(isRight(crashed));
    }
    bool failsAt(int nth, bool diskFull, Lasting lasting);

    FaultyVfs &disk_;
};

/// Anna, Boris and two pets are there; Boris goes, Anna changes, Clara and 40 pets of hers come.
void prepare(OpenGraph &graph)
{
    ManagedObject &anna = graph.insert("Person", {{"name", QStringLiteral("Anna")}, {"age", 30}});
    graph.insert("Person", {{"name", QStringLiteral("Boris")}});
    for (const char *pet : {"Rex", "Tom"})
        graph.insert("Pet", {{"name", QString::fromUtf8(pet)}, {"owner", QVariant::fromValue(&anna)}});
    ASSERT_TRUE(graph.save());
}

void change(OpenGraph &graph)
{
    graph.context.deleteObject(*graph.find("Person", "Boris"));
    set(*graph.find("Person", "Anna"), "age", 31);
    ManagedObject &clara = graph.insert("Person", {{"name", QStringLiteral("Clara")}});
    set(*graph.find("Pet", "Tom"), "owner", &clara);
    for (int i = 0; i < 40; ++i)
        graph.insert("Pet", {{"name", QString(500, u'x')}, {"owner", QVariant::fromValue(&clara)}});
}

bool isBefore(OpenGraph &graph)
{
    return names(graph.fetch("Person")) == std::vector<std::string>{"Anna", "Boris"} &&
           get(*graph.find("Person", "Anna"), "age") == QVariant(30) &&
           members(*graph.find("Person", "Anna"), "pets") == std::vector<std::string>{"Rex", "Tom"} &&
           graph.fetch("Pet").size() == 2;
}

bool isAfter(OpenGraph &graph)
{
    return names(graph.fetch("Person")) == std::vector<std::string>{"Anna", "Clara"} &&
           get(*graph.find("Person", "Anna"), "age") == QVariant(31) &&
           members(*graph.find("Person", "Anna"), "pets") == std::vector<std::string>{"Rex"} &&
           members(*graph.find("Person", "Clara"), "pets").size() == 41 && graph.fetch("Pet").size() == 42;
}

/// One save whose nth operation fails, when it has so many.
bool SaveTest::failsAt(int nth, bool diskFull, Lasting lasting)
{
    SCOPED_TRACE("operation " + std::to_string(nth) + (diskFull ? ", full" : ", broken"));
    const QString file = path("failing.sqlite");
    QFile::remove(file);
    OpenGraph graph(file);
    EXPECT_TRUE(graph.attached);
    prepare(graph);
    change(graph);
    disk_.fail(nth, diskFull, lasting);
    const bool saved = graph.save();
    const bool failed = disk_.hasFailed();
    EXPECT_EQ(saved, !failed);
    if (failed) {
        EXPECT_FALSE(graph.error.message().isEmpty());
        EXPECT_EQ(graph.error.code & 0xff, diskFull ? SQLITE_FULL : SQLITE_IOERR);
        EXPECT_TRUE(graph.context.hasChanges());
        if (lasting == Lasting::FromThenOn) {
            EXPECT_FALSE(graph.save());
        }
        disk_.heal();
        checkCrashed(file, [](OpenGraph &crashed) { return isBefore(crashed) || isAfter(crashed); });
        EXPECT_TRUE(isAfter(graph)); // in memory
        EXPECT_TRUE(graph.save()) << graph.error.message().toStdString();
    }
    disk_.heal();
    EXPECT_FALSE(graph.context.hasChanges());
    EXPECT_TRUE(isAfter(graph));
    EXPECT_TRUE(disk_.everythingIsSynced());
    checkCrashed(file, isAfter);
    return failed;
}

TEST_F(SaveTest, AFailureAtAnyPointLeavesEverythingUnsavedAndLosesNothing)
{
    for (const bool diskFull : {false, true}) {
        for (const Lasting lasting : {Lasting::Once, Lasting::FromThenOn}) {
            int nth = 1;
            while (failsAt(nth, diskFull, lasting))
                ++nth;
            EXPECT_GT(nth, 5); // writes of several pages, a sync
        }
    }
}

TEST_F(SaveTest, EachSaveIsOneSyncAndDurable)
{
    const auto saveChange = [&](int age) {
        set(person("Anna"), "age", age);
        (void)disk_.take(Kind::Sync);
        save();
        EXPECT_TRUE(disk_.everythingIsSynced());
        return disk_.take(Kind::Sync);
    };
    EXPECT_EQ(saveChange(1), 1); // in a new file
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(saveChange(i + 10), 1);
    reopen();
    EXPECT_EQ(saveChange(2), 1); // right after opening
    // Until the log is moved into the file, which waits for the event loop.
    int saves = 0;
    for (; logSize() < 5'000'000; ++saves) {
        set(person("Anna"), "photo", QByteArray(100'000 + saves, 'x'));
        EXPECT_EQ(saveChange(saves + 100), 1);
    }
    QCoreApplication::processEvents();
    EXPECT_LT(logSize(), 100'000);
    EXPECT_EQ(saveChange(3), 1);
    EXPECT_EQ(saveChange(4), 1);
    EXPECT_FALSE(disk_.hasBrokenOrder());
    reopen();
    EXPECT_EQ(get(person("Anna"), "age"), QVariant(4));
    EXPECT_EQ(get(person("Anna"), "photo").toByteArray().size(), 100'000 + saves - 1);
    (void)disk_.take(Kind::Sync);
    save(); // nothing to save
    EXPECT_EQ(disk_.take(Kind::Sync), 0);
}

TEST_F(SaveTest, TheLogHasABoundWithoutAnEventLoop)
{
    constexpr qint64 kBound = 16'000 * 4'120LL + 9'000'000; // one save more
    qint64 largest = 0;
    bool cut = false;
    for (int i = 0; i < 12; ++i) {
        set(person("Anna"), "photo", QByteArray(8'000'000 + i, 'x'));
        save();
        cut = cut || logSize() < largest;
        largest = std::max(largest, logSize());
    }
    EXPECT_TRUE(cut);
    EXPECT_LT(largest, kBound);
    EXPECT_FALSE(disk_.hasBrokenOrder());
    reopen();
    EXPECT_EQ(get(person("Anna"), "photo").toByteArray().size(), 8'000'011);
}

TEST_F(SaveTest, ATransactionThatCouldNotBeRolledBackDoesNotStopTheNextSave)
{
    (void)person("Anna");
    ASSERT_TRUE(graph().coordinator.access()->execute("BEGIN; INSERT INTO Pet (name) VALUES ('half of a save')"));
    EXPECT_TRUE(graph().save());
    reopen();
    EXPECT_THAT(names(graph().fetch("Person")), ElementsAre("Anna"));
    EXPECT_EQ(graph().fetch("Pet").size(), 0U);
}

TEST_F(SaveTest, AFailureWhileTheLogIsMovedLosesNothing)
{
    bool failed = true;
    for (int nth = 1; failed; nth = nth < 8 ? nth + 1 : nth * 2) {
        SCOPED_TRACE("operation " + std::to_string(nth));
        reopen();
        set(person("Anna"), "photo", QByteArray(4'500'000, 'x'));
        save();
        disk_.fail(nth, false, Lasting::Once);
        QCoreApplication::processEvents(); // moves the log
        failed = disk_.hasFailed();
        set(person("Anna"), "age", nth);
        const bool saved = graph().save();
        if (!saved) {
            EXPECT_TRUE(graph().save());
        }
        disk_.heal();
        EXPECT_EQ(get(person("Anna"), "photo").toByteArray().size(), 4'500'000);
        reopen();
        EXPECT_EQ(get(person("Anna"), "age"), QVariant(nth));
        EXPECT_EQ(get(person("Anna"), "photo").toByteArray().size(), 4'500'000);
        set(person("Anna"), "photo", QVariant());
        save();
    }
    EXPECT_FALSE(disk_.hasBrokenOrder());
}

} // namespace

} // namespace kesto::test
