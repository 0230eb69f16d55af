#include "objectgraph/GraphTest.h"
#include "platform/objectgraph/StoreRefusal.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <sys/stat.h>
#include <unistd.h>

namespace kesto::test
{

namespace
{

constexpr int kForeign = static_cast<int>(StoreRefusal::ForeignDatabase);

/// Everything in a folder, by name.
std::map<QString, QByteArray> contents(const QString &folder)
{
    std::map<QString, QByteArray> result;
    for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files | QDir::Hidden))
        result[file.fileName()] = bytesOf(file.filePath());
    return result;
}

class StoreFileTest : public GraphTest
{
protected:
    StoreFileTest() { graph_.reset(); }

    void runSql(const QString &file, const char *sql)
    {
        sqlite3 *database = nullptr;
        ASSERT_EQ(sqlite3_open(file.toUtf8().constData(), &database), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(database, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
        sqlite3_close(database);
    }
    QString valueOf(const QString &file, const char *sql)
    {
        sqlite3 *database = nullptr;
        EXPECT_EQ(sqlite3_open(file.toUtf8().constData(), &database), SQLITE_OK);
        sqlite3_stmt *statement = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(database, sql, -1, &statement, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
        QString result;
        if (sqlite3_step(statement) == SQLITE_ROW)
            result = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(statement, 0)));
        sqlite3_finalize(statement);
        sqlite3_close(database);
        return result;
    }
    /// Tries to attach a file: it is refused with a reason, and nothing in the folder is another than before.
    void expectRefused(const QString &file, const char *reason, std::initializer_list<int> codes,
                       const ManagedObjectModel &model = peopleModel())
    {
        const auto before = contents(folder_.path());
        {
            OpenGraph refused(file, model);
            EXPECT_FALSE(refused.attached);
            EXPECT_EQ(refused.error.where, file);
            EXPECT_THAT(codes,
                        testing::Contains(refused.error.code > 0 ? refused.error.code & 0xff : refused.error.code));
            EXPECT_TRUE(refused.error.message().contains(QString::fromUtf8(reason)))
                << refused.error.message().toStdString();
            EXPECT_TRUE(refused.coordinator.persistentStorePath().isNull());
            EXPECT_TRUE(refused.fetch("Person").empty());
            refused.insert("Person", {});
            EXPECT_FALSE(refused.save());
        }
        EXPECT_EQ(before, contents(folder_.path()));
    }
};

const ManagedObjectModel &olderModel()
{
    static const ManagedObjectModel model(
        "People", 1,
        {EntityDescription("Pet", {{"weight", AttributeType::Float}},
                           {{.name = "owner", .destination = "Person", .inverse = "pets"}}),
         EntityDescription("Person", {{"age", AttributeType::Integer}, {"name", AttributeType::String}},
                           {{.name = "pets", .destination = "Pet", .inverse = "owner", .toMany = true}})});
    return model;
}

TEST_F(StoreFileTest, AnOlderFileGetsWhatItLacksAndKeepsItsRows)
{
    const QString file = path("older.sqlite");
    {
        OpenGraph older(file, olderModel());
        ManagedObject &anna = older.insert("Person", {{"name", QStringLiteral("Anna")}, {"age", 0}});
        older.insert("Pet", {{"weight", 2.5}, {"owner", QVariant::fromValue(&anna)}});
        ASSERT_TRUE(older.save());
    }
    for (int round = 0; round < 2; ++round) {
        OpenGraph newer(file);
        ASSERT_TRUE(newer.attached) << newer.error.message().toStdString();
        ManagedObject *anna = newer.find("Person", "Anna");
        ASSERT_NE(anna, nullptr);
        EXPECT_EQ(get(*anna, "age"), QVariant(0));
        EXPECT_EQ(get(*anna, "pets").value<QList<ManagedObject *>>().size(), 1);
        EXPECT_EQ(get(*newer.fetch("Pet").front(), "weight"), QVariant(2.5F));
        EXPECT_EQ(one(*anna, "passport") != nullptr, round == 1);
        EXPECT_EQ(get(*anna, "rank").isValid(), round == 1);
        // The columns have another order than the model's.
        set(*anna, "rank", 7);
        set(*anna, "photo", QByteArray("p"));
        set(*anna, "passport", &newer.insert("Passport", {{"name", QStringLiteral("A")}}));
        newer.insert("Person", {{"name", QStringLiteral("B%1").arg(round)}, {"height", 1.5}, {"age", 5}});
        ASSERT_TRUE(newer.save()) << newer.error.message().toStdString();
        EXPECT_EQ(newer.fetch("Person", {.predicate = attribute("height") == 1.5 && attribute("age") == 5}).size(),
                  static_cast<size_t>(round) + 1);
    }
    EXPECT_EQ(valueOf(file, "PRAGMA user_version"), QStringLiteral("2"));
    EXPECT_EQ(valueOf(file, "SELECT group_concat(name) FROM (SELECT name FROM sqlite_schema WHERE type = 'index' "
                            "ORDER BY name)"),
              QStringLiteral("Person.born,Person.boss,Person.name,Pet.owner,Pet.sitter"));

    // And back: the older program refuses it, whether its log was left behind or not.
    const auto refuse = [&](const QString &folder) {
        const auto before = contents(folder);
        {
            OpenGraph older(folder + QStringLiteral("/older.sqlite"), olderModel());
            EXPECT_FALSE(older.attached);
            EXPECT_EQ(older.error.code, static_cast<int>(StoreRefusal::NewerModel));
        }
        EXPECT_EQ(before, contents(folder));
    };
    refuse(folder_.path());
    QDir(folder_.path()).mkdir(QStringLiteral("killed"));
    {
        OpenGraph newer(file);
        newer.insert("Person", {{"name", QStringLiteral("In the log")}});
        ASSERT_TRUE(newer.save());
        for (const char *name : {"older.sqlite", "older.sqlite-wal"})
            writeBytes(path("killed/") + QString::fromUtf8(name), bytesOf(path(name)));
    }
    ASSERT_GT(QFileInfo(path("killed/older.sqlite-wal")).size(), 0);
    refuse(path("killed"));
    OpenGraph newer(path("killed/older.sqlite"));
    EXPECT_NE(newer.find("Person", "In the log"), nullptr);
}

TEST_F(StoreFileTest, WhatIsNotOursIsRefusedAndUntouched)
{
    {
        OpenGraph ours(path("ours.sqlite"));
        for (int i = 0; i < 100; ++i)
            ours.insert("Person", {{"name", QString(500, u'x')}});
        ASSERT_TRUE(ours.save());
    }
    const QByteArray whole = bytesOf(path("ours.sqlite"));
    ASSERT_GT(whole.size(), 40'000);

    runSql(path("foreign.sqlite"), "CREATE TABLE Person (name TEXT); INSERT INTO Person VALUES ('x')");
    expectRefused(path("foreign.sqlite"), "another program", {kForeign});
    runSql(path("foreign-wal.sqlite"), "PRAGMA journal_mode=WAL; CREATE TABLE t (x); PRAGMA user_version=1");
    expectRefused(path("foreign-wal.sqlite"), "another program", {kForeign});
    // A foreign program that was killed: its log is not ours to move.
    {
        sqlite3 *database = nullptr;
        ASSERT_EQ(sqlite3_open(path("running.sqlite").toUtf8().constData(), &database), SQLITE_OK);
        sqlite3_exec(database, "PRAGMA journal_mode=WAL; CREATE TABLE t (x)", nullptr, nullptr, nullptr);
        for (const char *name : {"", "-wal"})
            writeBytes(path("killed.sqlite") + QString::fromUtf8(name),
                       bytesOf(path("running.sqlite") + QString::fromUtf8(name)));
        sqlite3_close(database);
    }
    ASSERT_GT(QFileInfo(path("killed.sqlite-wal")).size(), 0);
    expectRefused(path("killed.sqlite"), "another program", {kForeign});

    writeBytes(path("garbage.sqlite"), QByteArray(5000, 'g'));
    expectRefused(path("garbage.sqlite"), "not a database", {SQLITE_NOTADB});
    writeBytes(path("stub.sqlite"), whole.left(50));
    expectRefused(path("stub.sqlite"), "", {SQLITE_CORRUPT, SQLITE_NOTADB});
    for (const qsizetype size : {qsizetype(600), qsizetype(4096), qsizetype(4096 * 3), whole.size() - 4096}) {
        writeBytes(path("cut.sqlite"), whole.left(size));
        expectRefused(path("cut.sqlite"), "", {SQLITE_CORRUPT, SQLITE_NOTADB});
    }
    QDir(folder_.path()).mkdir(QStringLiteral("folder.sqlite"));
    expectRefused(path("folder.sqlite"), "", {SQLITE_CANTOPEN});
    expectRefused(path("missing/store.sqlite"), "", {SQLITE_CANTOPEN});
    expectRefused(path("garbage.sqlite/store.sqlite"), "", {SQLITE_CANTOPEN});
}

TEST_F(StoreFileTest, AFileThatWasNotClosedIsCheckedBeforeItIsUsed)
{
    {
        OpenGraph ours(path("ours.sqlite"));
        for (int i = 0; i < 100; ++i)
            ours.insert("Person", {{"name", QString(500, u'x')}});
        ASSERT_TRUE(ours.save());
        (void)ours.coordinator.access()->execute("PRAGMA wal_checkpoint(TRUNCATE)");
        ours.insert("Person", {{"name", QStringLiteral("Anna")}});
        ASSERT_TRUE(ours.save());
        for (const char *suffix : {"", "-wal"})
            writeBytes(path("killed.sqlite") + QString::fromUtf8(suffix),
                       bytesOf(path("ours.sqlite") + QString::fromUtf8(suffix)));
    }
    QByteArray bytes = bytesOf(path("killed.sqlite"));
    std::fill(bytes.end() - 4096, bytes.end(), 'x'); // a page of rows
    writeBytes(path("killed.sqlite"), bytes);
    expectRefused(path("killed.sqlite"), "", {SQLITE_CORRUPT, static_cast<int>(StoreRefusal::Damaged)});
    for (const char *suffix : {"", "-wal"}) // whole again
        QFile::remove(path("killed.sqlite") + QString::fromUtf8(suffix));
    QFile::rename(path("ours.sqlite"), path("killed.sqlite"));
    OpenGraph whole(path("killed.sqlite"));
    EXPECT_NE(whole.find("Person", "Anna"), nullptr);
}

TEST_F(StoreFileTest, AChangedModelNeedsAHigherVersion)
{
    reopen();
    (void)person("Anna");
    save();
    EXPECT_FALSE(graph().coordinator.access()->execute("SELECT \"nickname\" FROM Person")) << "it is no text";
    graph_.reset();
    const auto changed = [](const AttributeDescription &age, int version) {
        return std::make_unique<ManagedObjectModel>(
            "People", version,
            std::vector{EntityDescription("Person", {{"name", AttributeType::String, true}, age}, {})});
    };
    const AttributeDescription added{"nickname", AttributeType::String};
    const AttributeDescription text{"age", AttributeType::String};
    for (const AttributeDescription &attribute : {added, text})
        expectRefused(path(), "its version is still 2", {static_cast<int>(StoreRefusal::SchemaChanged)},
                      *changed(attribute, 2));
    // A file of before fingerprints were kept tells its columns only.
    runSql(path(), "DROP TABLE \"_state\"");
    expectRefused(path(), "Person.nickname is not in the file", {static_cast<int>(StoreRefusal::SchemaChanged)},
                  *changed(added, 2));
    const auto higher = changed(added, 3);
    OpenGraph newer(path(), *higher);
    EXPECT_NE(newer.find("Person", "Anna"), nullptr);
}

TEST_F(StoreFileTest, OnlyItsOwnerCanReadAStore)
{
    const auto mode = [](const QString &file) {
        return QFile::permissions(file) &
               (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOwner);
    };
    writeBytes(path("old.sqlite"), {});
    QFile::setPermissions(path("old.sqlite"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    const mode_t before = ::umask(0);
    SqlStore::makeFile(path("new.sqlite"));
    EXPECT_EQ(mode(path("new.sqlite")), 0) << "from the first moment on";
    for (const char *name : {"old.sqlite", "new.sqlite"}) {
        OpenGraph graph(path(name));
        graph.insert("Person", {});
        ASSERT_TRUE(graph.save());
        const QString target = path("moved to ") + QString::fromUtf8(name);
        const auto moved = graph.coordinator.migratePersistentStore(target, {}, [&]() -> Result<void> {
            EXPECT_EQ(mode(target), 0);
            return {};
        });
        EXPECT_TRUE(moved);
        graph.insert("Person", {});
        ASSERT_TRUE(graph.save());
        for (const QString &file : files())
            EXPECT_EQ(mode(folder_.filePath(file)), 0) << file.toStdString();
    }
    ::umask(before);
}

TEST_F(StoreFileTest, AnEmptyFileAndAnotherNameBecomeAStore)
{
    writeBytes(path("empty.sqlite"), {});
    const QString files[] = {path("empty.sqlite"), path("Дневник 100% 'x'.sqlite")};
    for (const QString &file : files) {
        {
            OpenGraph graph(file);
            ASSERT_TRUE(graph.attached) << graph.error.message().toStdString();
            graph.insert("Person", {{"name", QStringLiteral("Anna")}});
            EXPECT_TRUE(graph.save());
            EXPECT_EQ(graph.coordinator.persistentStorePath(), file);
        }
        EXPECT_FALSE(QFile::exists(file + QStringLiteral("-wal"))); // one file to copy when the program is closed
        OpenGraph again(file);
        EXPECT_NE(again.find("Person", "Anna"), nullptr);
    }
}

TEST_F(StoreFileTest, AFolderThatCanNotBeWrittenIsRefused)
{
    {
        OpenGraph make(path());
    }
    if (::geteuid() != 0) {
        QFile::setPermissions(folder_.path(), QFile::ReadOwner | QFile::ExeOwner);
        expectRefused(path(), "", {SQLITE_CANTOPEN, SQLITE_READONLY});
        expectRefused(path("new.sqlite"), "", {SQLITE_CANTOPEN});
        QFile::setPermissions(folder_.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    // The same for a user whom nothing stops: a disk that takes nothing.
    FaultyVfs disk;
    disk.fail(1, false, FaultyVfs::Lasting::FromThenOn);
    const QByteArray before = bytesOf(path());
    for (const bool diskFull : {false, true}) {
        disk.fail(1, diskFull, FaultyVfs::Lasting::FromThenOn);
        OpenGraph refused(path());
        EXPECT_FALSE(refused.attached);
        EXPECT_FALSE(refused.error.message().isEmpty());
    }
    EXPECT_EQ(bytesOf(path()), before);
    disk.heal();
    OpenGraph graph(path());
    EXPECT_TRUE(graph.attached);
}

TEST_F(StoreFileTest, AFailureWhileAFileIsMadeOrBroughtUpToDateLosesNothing)
{
    FaultyVfs disk;
    for (const bool exists : {false, true}) {
        bool failed = true;
        for (int nth = 1; failed; ++nth) {
            SCOPED_TRACE("operation " + std::to_string(nth));
            const QString file = path("made%1_%2.sqlite").arg(exists).arg(nth);
            if (exists) {
                OpenGraph older(file, olderModel());
                older.insert("Person", {{"name", QStringLiteral("Anna")}});
                ASSERT_TRUE(older.save());
            }
            disk.fail(nth, false, FaultyVfs::Lasting::Once);
            {
                OpenGraph graph(file);
                failed = disk.hasFailed();
                EXPECT_TRUE(graph.attached || failed);
            }
            disk.heal();
            OpenGraph graph(file);
            ASSERT_TRUE(graph.attached) << graph.error.message().toStdString();
            EXPECT_EQ(graph.find("Person", "Anna") != nullptr, exists);
            graph.insert("Person", {{"born", QDateTime::fromMSecsSinceEpoch(0)}});
            EXPECT_TRUE(graph.save()) << graph.error.message().toStdString();
        }
    }
}

TEST_F(StoreFileTest, OnlyOneConnectionUsesAFile)
{
    reopen();
    (void)person("Anna");
    save();
    OpenGraph second(path());
    EXPECT_FALSE(second.attached);
    EXPECT_EQ(second.error.code & 0xff, SQLITE_BUSY) << second.error.message().toStdString();
    // A refused file leaves the one that is attached; another one takes its place.
    EXPECT_FALSE(graph().coordinator.addPersistentStore(path("missing/x"), {}));
    EXPECT_NE(graph().find("Person", "Anna"), nullptr);
    const PersistentStoreOptions options{.ubiquitousContentName = QStringLiteral("cloud")};
    EXPECT_TRUE(graph().coordinator.addPersistentStore(path("other.sqlite"), options));
    EXPECT_EQ(graph().coordinator.persistentStoreOptions(), options);
    EXPECT_TRUE(second.coordinator.addPersistentStore(path(), {}));
    EXPECT_NE(second.find("Person", "Anna"), nullptr);
}

} // namespace

} // namespace kesto::test
