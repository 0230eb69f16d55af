#include "objectgraph/GraphTest.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <atomic>
#include <thread>

namespace kesto::test
{

namespace
{

using namespace std::chrono_literals;

class MigrationTest : public GraphTest
{
protected:
    /// Starts a move in the background; result() waits for it.
    void startMove(const QString &target, std::function<Result<void>()> beforeUse = {})
    {
        done_ = false;
        graph().coordinator.perform([this, target, beforeUse = std::move(beforeUse)] {
            const auto moved = graph().coordinator.migratePersistentStore(target, options_, beforeUse);
            moved_ = moved.has_value();
            if (!moved)
                reason_ = moved.error();
            done_ = true;
        });
    }
    bool result()
    {
        graph().coordinator.waitForBackgroundWork();
        return moved_;
    }
    void fill(int megabytes)
    {
        for (int i = 0; i < megabytes; ++i)
            insert("Person", {{"name", QStringLiteral("filling%1").arg(i)}, {"photo", QByteArray(1'000'000, 'x')}});
        save();
    }
    /// Opens a file of its own accord and checks that it has everything up to a number of saves.
    static void expectComplete(const QString &file, qsizetype saves)
    {
        OpenGraph graph(file);
        ASSERT_TRUE(graph.attached) << graph.error.message().toStdString();
        const auto found = graph.fetch("Pet");
        ASSERT_EQ(static_cast<qsizetype>(found.size()), saves);
        for (qsizetype i = 0; i < saves; ++i)
            EXPECT_EQ(get(*found[static_cast<size_t>(i)], "name").toString(), QString::number(i));
        if (saves > 0) {
            EXPECT_EQ(get(*graph.fetch("Person").front(), "age").toLongLong(), saves);
        }
    }
    /// The next acknowledged save: a new row at the end and a changed one at the front.
    void saveNext()
    {
        insert("Pet", {{"name", QString::number(saves_)}});
        set(*graph().fetch("Person", {.fetchLimit = 1}).front(), "age", ++saves_);
        save();
    }

    PersistentStoreOptions options_{.removeUbiquitousMetadata = true};
    qsizetype saves_ = 0;
    std::atomic<bool> done_ = false;
    bool moved_ = false;
    Error reason_;
};

TEST_F(MigrationTest, EverySaveMadeMeanwhileIsInTheResult)
{
    for (const int megabytes : {0, 30}) { // in one step, and in many
        SCOPED_TRACE(megabytes);
        const QString source = path(), target = path("target.sqlite");
        (void)person("Anna");
        fill(megabytes);
        for (int round = 0; round < (megabytes == 0 ? 40 : 4); ++round) {
            const qsizetype before = saves_;
            const QString to = round % 2 == 0 ? target : source;
            startMove(to);
            do
                saveNext();
            while (!done_);
            ASSERT_TRUE(result()) << reason_.message().toStdString();
            if (megabytes > 0) {
                EXPECT_GT(saves_ - before, 10); // the writer got in between
            }
            EXPECT_EQ(graph().coordinator.persistentStorePath(), to);
            EXPECT_EQ(graph().coordinator.persistentStoreOptions(), options_);
            saveNext(); // goes to the new file
        }
        EXPECT_EQ(names(graph().fetch("Person")).size(), 1U + static_cast<size_t>(megabytes));
        graph_.reset();
        EXPECT_EQ(files(), (QStringList{QStringLiteral("store.sqlite"), QStringLiteral("target.sqlite")}));
        expectComplete(source, saves_);
        QFile::remove(target);
        QFile::remove(source);
        saves_ = 0;
        reopen();
    }
}

TEST_F(MigrationTest, ASaveThatFailsMeanwhileIsNotInTheResult)
{
    FaultyVfs &disk = breakableDisk();
    (void)person("Anna");
    fill(20);
    std::atomic<int> failures = 0;
    startMove(path("target.sqlite"));
    std::this_thread::sleep_for(5ms);
    for (int i = 0; i < 3 && !done_; ++i) { // after each the copy begins anew
        // Big enough to reach the log before it fails.
        ManagedObject &lost = insert("Person", {{"photo", QByteArray(9'000'000, 'y')}});
        {
            const auto access = graph().coordinator.access(); // the copy waits, the failure hits the save
            disk.fail(1500, false, FaultyVfs::Lasting::Once);
            if (!graph().context.save())
                ++failures;
            disk.heal();
        }
        graph().context.deleteObject(lost);
        saveNext();
    }
    ASSERT_TRUE(result()) << reason_.message().toStdString();
    EXPECT_GT(failures, 0);
    saveNext();
    EXPECT_EQ(graph().fetch("Person").size(), 21U);
    graph_.reset();
    expectComplete(path("target.sqlite"), saves_);
    OpenGraph moved(path("target.sqlite"));
    EXPECT_EQ(moved.fetch("Person").size(), 21U);
}

TEST_F(MigrationTest, WhatStandsAtTheTargetIsReplacedWithItsLog)
{
    (void)person("Anna");
    for (int i = 0; i < 3; ++i)
        saveNext();
    const QString target = path("target.sqlite");
    const auto leftBehind = [&] {
        OpenGraph old(target);
        for (int i = 0; i < 50; ++i)
            old.insert("Pet", {{"name", QStringLiteral("old")}});
        EXPECT_TRUE(old.save());
        writeBytes(path("killed-wal"), bytesOf(target + QStringLiteral("-wal")));
        writeBytes(path("killed"), bytesOf(target));
    };
    leftBehind();
    QFile::remove(target);
    for (const char *suffix : {"", "-wal"})
        QFile::rename(path("killed") + QString::fromUtf8(suffix), target + QString::fromUtf8(suffix));
    writeBytes(target + QStringLiteral(".migrating"), "what a killed move left");
    writeBytes(target + QStringLiteral(".migrating-wal"), "and its log");
    startMove(target);
    ASSERT_TRUE(result()) << reason_.message().toStdString();
    saveNext();
    graph_.reset();
    EXPECT_EQ(files(), (QStringList{QStringLiteral("store.sqlite"), QStringLiteral("target.sqlite")}));
    expectComplete(target, 4);
    expectComplete(path(), 3); // the old file stays
}

TEST_F(MigrationTest, AFailedMoveLeavesTheSourceInUseAndNothingBehind)
{
    (void)person("Anna");
    saveNext();
    QDir(folder_.path()).mkdir(QStringLiteral("folder"));
    writeBytes(path("folder/inside"), "x");
    writeBytes(path("file"), "x");
    QDir(folder_.path()).mkdir(QStringLiteral("blocked.sqlite.migrating"));
    QFile::link(path(), path("alias.sqlite"));
    const QStringList before = files();
    const QString targets[] = {
        path("missing/target.sqlite"),  path("file/target.sqlite"), path("folder"), path("blocked.sqlite"), path(),
        path("folder/../store.sqlite"), path("alias.sqlite")};
    for (const QString &target : targets) {
        SCOPED_TRACE(target.toStdString());
        bool used = false;
        startMove(target, [&] {
            used = true;
            return Result<void>();
        });
        EXPECT_FALSE(result());
        EXPECT_FALSE(used);
        EXPECT_FALSE(reason_.message().isEmpty());
        EXPECT_EQ(graph().coordinator.persistentStorePath(), path());
        EXPECT_EQ(graph().coordinator.persistentStoreOptions(), PersistentStoreOptions());
        EXPECT_EQ(files(), before);
        saveNext();
    }
    // The caller's own marker could not be written.
    startMove(path("target.sqlite"), [&]() -> Result<void> {
        EXPECT_TRUE(QFile::exists(path("target.sqlite")));
        return failure(QStringLiteral("no marker"), {}, {});
    });
    EXPECT_FALSE(result());
    EXPECT_EQ(reason_.what, QStringLiteral("no marker"));
    EXPECT_EQ(files(), before);
    saveNext();
    graph_.reset();
    expectComplete(path(), saves_);
    OpenGraph detached{QString()};
    EXPECT_FALSE(detached.coordinator.migratePersistentStore(path("target.sqlite"), {}));
    EXPECT_FALSE(QFile::exists(path("target.sqlite")));
}

TEST_F(MigrationTest, ADiskThatFailsAtAnyPointLosesNothing)
{
    FaultyVfs &disk = breakableDisk();
    (void)person("Anna");
    fill(1);
    int failures = 0;
    for (int nth = 1; !moved_; nth = nth < 10 ? nth + 1 : nth * 5 / 4) {
        SCOPED_TRACE("operation " + std::to_string(nth));
        saveNext();
        const QString target = path("target%1.sqlite").arg(nth);
        disk.fail(nth, false, FaultyVfs::Lasting::FromThenOn);
        startMove(target);
        const bool moved = result();
        disk.heal();
        failures += moved ? 0 : 1;
        if (!moved) {
            EXPECT_EQ(graph().coordinator.persistentStorePath(), path());
            EXPECT_EQ(files().filter(QStringLiteral("target")), QStringList());
        }
        saveNext();
        EXPECT_EQ(graph().fetch("Pet").size(), static_cast<size_t>(saves_));
    }
    EXPECT_GT(failures, 10);
    const QString final = graph().coordinator.persistentStorePath();
    EXPECT_NE(final, path());
    graph_.reset();
    expectComplete(final, saves_);
}

TEST_F(MigrationTest, BeforeUseComesAfterTheCopyIsSafeAndBeforeAnyWriter)
{
    FaultyVfs &disk = breakableDisk();
    (void)person("Anna");
    saveNext();
    std::atomic<bool> inside = false;
    std::atomic<bool> left = false;
    startMove(path("target.sqlite"), [&] {
        inside = true;
        EXPECT_TRUE(QFile::exists(path("target.sqlite")));
        EXPECT_TRUE(disk.everythingIsSynced());
        std::this_thread::sleep_for(100ms);
        left = true;
        return Result<void>();
    });
    while (!inside)
        std::this_thread::yield();
    saveNext(); // waits, and goes to the new file
    EXPECT_TRUE(left);
    ASSERT_TRUE(result());
    graph_.reset();
    expectComplete(path("target.sqlite"), 2);
    expectComplete(path(), 1);
}

TEST_F(MigrationTest, OneMoveAtATime)
{
    (void)person("Anna");
    fill(20);
    const QString first = path("first.sqlite"), second = path("second.sqlite");
    startMove(first);
    std::this_thread::sleep_for(5ms);
    const bool secondMoved = graph().coordinator.migratePersistentStore(second, {}).has_value();
    const bool attached = !done_ && graph().coordinator.addPersistentStore(path("other.sqlite"), {});
    ASSERT_TRUE(result()) << reason_.message().toStdString();
    EXPECT_FALSE(secondMoved);
    EXPECT_FALSE(attached);
    EXPECT_EQ(graph().coordinator.persistentStorePath(), first);
    EXPECT_TRUE(graph().coordinator.migratePersistentStore(second, {}));
    EXPECT_EQ(graph().fetch("Person").size(), 21U);
}

TEST_F(MigrationTest, ReadersWaitForLockedWork)
{
    (void)person("Anna");
    save();
    graph_.reset();
    graph_ = std::make_unique<OpenGraph>(QString());
    std::vector<int> order;
    for (int i = 0; i < 2; ++i) { // the second waits for the first
        graph().coordinator.performLocked([&, i] {
            std::this_thread::sleep_for(50ms);
            EXPECT_TRUE(graph().coordinator.addPersistentStore(path(i == 0 ? "store.sqlite" : "other.sqlite"), {}));
            EXPECT_TRUE(graph().coordinator.migratePersistentStore(path(i == 0 ? "a.sqlite" : "b.sqlite"), {}));
            order.push_back(i);
        });
        if (i == 0) {
            EXPECT_EQ(graph().fetch("Person").size(), 1U);
            order.push_back(10);
            graph().coordinator.performLocked([&] {
                std::this_thread::sleep_for(50ms);
                order.push_back(11);
            });
        }
    }
    EXPECT_EQ(graph().coordinator.persistentStorePath(), path("b.sqlite"));
    graph().coordinator.waitForBackgroundWork();
    EXPECT_EQ(order, (std::vector<int>{0, 10, 11, 1}));
}

TEST_F(MigrationTest, DestructionWaitsForTheWork)
{
    auto coordinator = std::make_unique<PersistentStoreCoordinator>(peopleModel());
    PersistentStoreCoordinator &inside = *coordinator;
    std::atomic<bool> ended = false;
    coordinator->perform([&] {
        std::this_thread::sleep_for(50ms);
        EXPECT_TRUE(inside.addPersistentStore(path("late.sqlite"), {}));
        ended = true;
    });
    coordinator.reset();
    EXPECT_TRUE(ended);
    OpenGraph late(path("late.sqlite"));
    EXPECT_TRUE(late.attached);
}

} // namespace

} // namespace kesto::test
