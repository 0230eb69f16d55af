// Which file is opened, and the moves between the local file and the cloud's.

#include "StoreFixture.h"

#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/objectgraph/SqlStore.h"
#include "platform/objectgraph/StoreRefusal.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <QDir>
#include <QUrl>

namespace kesto::test
{
namespace
{

using testing::Contains;
using testing::IsSupersetOf;
using testing::Not;

MATCHER_P(HasPrefix, prefix, "") { return arg.startsWith(prefix); }

QString line(const char *text, const QString &path = {})
{
    return QString::fromUtf8(text) + (path.isNull() ? QString() : QUrl::fromLocalFile(path).toString());
}

TEST(Stores, FirstStartWithTheCloudOpensItsFileAndMergesNothing)
{
    StoreFixture program(withCloud());
    LogCapture log;
    program.settle();
    EXPECT_EQ(program.file(), QStringLiteral("iCloudDiet.sqlite"));
    EXPECT_FALSE(program.defaults().boolForKey(Keys::kOldDataMerged));
    EXPECT_FALSE(QFile::exists(program.path("Diet.sqlite")));
    EXPECT_EQ(program.manager().persistentStoreCoordinator()->persistentStoreOptions().ubiquitousContentName,
              QStringLiteral("kestoDietIcloudStore"));
    EXPECT_EQ(program.platform.cloudStore().synchronizeCount(), 1);
    EXPECT_THAT(log.lines(),
                IsSupersetOf({line("instance.startDietDay - (null)"), line("return context"), line("!old data merged"),
                              line("not database file exises"), line("add iclouyd key"),
                              line("added normal store to url - ", program.path("iCloudDiet.sqlite"))}));
}

TEST(Stores, WithoutACloudTheLocalFileIsUsedWhateverTheSwitchesSay)
{
    StoreFixture program; // the use of the cloud is on by default
    program.weigh(program.platform.date(2024, 3, 1), 80);
    EXPECT_EQ(program.file(), QStringLiteral("Diet.sqlite"));
    EXPECT_EQ(program.manager().cloudStore(), nullptr);
    for (const bool use : {false, true, false}) {
        // What the settings store when the switch is turned, over and over.
        program.defaults().setBool(!use, Keys::kDisableiCloud);
        program.defaults().setBool(use, Keys::kUseICloudKey);
        program.restart();
        program.settle();
        EXPECT_EQ(program.file(), QStringLiteral("Diet.sqlite"));
        EXPECT_EQ(program.weight(program.platform.date(2024, 3, 1)), 80);
        program.weigh(program.platform.date(2024, 3, 1), 80); // still writable
        EXPECT_FALSE(program.defaults().boolForKey(Keys::kDisableiCloud));
    }
}

TEST(Stores, LocalDataAreMovedIntoTheCloudOnceAndBackWhenItIsTurnedOff)
{
    StoreFixture program(withCloud());
    const QDateTime first = program.platform.date(2024, 3, 1);
    const QDateTime second = program.platform.date(2024, 3, 2);
    const QDateTime third = program.platform.date(2024, 3, 3);
    program.defaults().setBool(false, Keys::kUseICloudKey);
    program.weigh(first, 81);
    EXPECT_EQ(program.file(), QStringLiteral("Diet.sqlite"));

    program.defaults().setBool(true, Keys::kUseICloudKey);
    program.restart();
    {
        LogCapture log;
        program.settle();
        EXPECT_THAT(log.lines(),
                    IsSupersetOf({line("old database file exist"), line("start merging from normal store to iCLoud"),
                                  line("merged to icloud store, from url _ ", program.path("Diet.sqlite")) +
                                      line(", to new url - ", program.path("iCloudDiet.sqlite"))}));
    }
    EXPECT_EQ(program.file(), QStringLiteral("iCloudDiet.sqlite"));
    EXPECT_TRUE(program.defaults().boolForKey(Keys::kOldDataMerged));
    EXPECT_TRUE(QFile::exists(program.path("Diet.sqlite")));
    EXPECT_EQ(program.weight(first), 81);
    program.weigh(second, 80.5F);

    program.restart();
    {
        LogCapture log;
        program.settle();
        EXPECT_THAT(log.lines(), IsSupersetOf({line("merged alredy"), line("add iclouyd key")}));
    }
    EXPECT_EQ(program.weight(second), 80.5F);

    // Turned off; it goes before the use that another setting still asks for.
    program.defaults().setBool(true, Keys::kDisableiCloud);
    program.restart();
    {
        LogCapture log;
        program.settle();
        EXPECT_THAT(
            log.lines(),
            IsSupersetOf({line("REMOVE ICLOUD STORE fron urk - ", program.path("iCloudDiet.sqlite")),
                          line("merged from removing icloude store, to new url - ", program.path("Diet.sqlite"))}));
    }
    EXPECT_EQ(program.file(), QStringLiteral("Diet.sqlite"));
    EXPECT_FALSE(program.defaults().boolForKey(Keys::kOldDataMerged));
    EXPECT_FALSE(program.defaults().boolForKey(Keys::kDisableiCloud));
    EXPECT_TRUE(QFile::exists(program.path("iCloudDiet.sqlite")));
    EXPECT_EQ(program.weight(first), 81);
    EXPECT_EQ(program.weight(second), 80.5F);

    program.weigh(third, 80);
    program.restart(); // the use is on again: what was typed since goes along
    program.settle();
    EXPECT_EQ(program.file(), QStringLiteral("iCloudDiet.sqlite"));
    EXPECT_EQ(program.weight(third), 80);
}

TEST(Stores, WhatIsTypedDuringAMoveIsInTheResult)
{
    StoreFixture program(withCloud());
    program.defaults().setBool(false, Keys::kUseICloudKey);
    for (int day = 0; day < 3000; ++day)
        program.context().insert<DietDay>().setDate(program.platform.date(2010, 1, 1).addDays(day));
    ASSERT_TRUE(program.context().save());
    program.defaults().setBool(true, Keys::kUseICloudKey);
    program.restart();
    for (int day = 0; day < 60; ++day)
        program.weigh(program.platform.date(2020, 1, 1).addDays(day), static_cast<float>(60 + day));
    program.restart();
    program.settle();
    EXPECT_EQ(program.file(), QStringLiteral("iCloudDiet.sqlite"));
    for (int day = 0; day < 60; ++day)
        EXPECT_EQ(program.weight(program.platform.date(2020, 1, 1).addDays(day)), static_cast<float>(60 + day)) << day;
    EXPECT_EQ(program.context().fetch<DietDay>()->size(), 3060U);
}

TEST(Stores, AStaleOrMissingCloudFileNeverReplacesWhatWasTypedLocally)
{
    StoreFixture program(withCloud());
    const QDateTime day = program.platform.date(2024, 3, 1);
    program.settle(); // an empty cloud file
    program.defaults().setBool(false, Keys::kUseICloudKey);
    program.restart();
    program.weigh(day, 79);
    program.defaults().setBool(true, Keys::kDisableiCloud);
    program.restart();
    program.settle();
    EXPECT_EQ(program.file(), QStringLiteral("Diet.sqlite"));
    EXPECT_EQ(program.weight(day), 79);
}

TEST(Stores, AMoveThatFailsLeavesTheDataInUseAndIsTriedAgain)
{
    StoreFixture program(withCloud());
    const QDateTime day = program.platform.date(2024, 3, 1);
    program.defaults().setBool(false, Keys::kUseICloudKey);
    program.weigh(day, 79);
    program.defaults().setBool(true, Keys::kUseICloudKey);
    ASSERT_TRUE(QDir().mkpath(program.path("iCloudDiet.sqlite/in the way")));
    program.restart();
    program.settle();
    EXPECT_EQ(program.file(), QStringLiteral("Diet.sqlite"));
    EXPECT_FALSE(program.defaults().boolForKey(Keys::kOldDataMerged));
    program.weigh(day, 78.5F);
    ASSERT_TRUE(QDir(program.path("iCloudDiet.sqlite")).removeRecursively());
    program.restart();
    program.settle();
    EXPECT_EQ(program.file(), QStringLiteral("iCloudDiet.sqlite"));
    EXPECT_EQ(program.weight(day), 78.5F);
}

/// Leaves one file name of a folder unusable for writing while it exists.
class Blocked
{
public:
    explicit Blocked(const QString &path)
        : path_(path)
    {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            content_ = file.readAll();
        file.remove();
        QDir().mkpath(path + QStringLiteral("/in the way"));
    }
    ~Blocked()
    {
        QDir(path_).removeRecursively();
        QFile file(path_);
        EXPECT_TRUE(content_.isEmpty() || (file.open(QIODevice::WriteOnly) && file.write(content_) > 0));
    }
    Blocked(const Blocked &) = delete;
    Blocked &operator=(const Blocked &) = delete;

private:
    QString path_;
    QByteArray content_;
};

TEST(Stores, AMoveWhoseMarkerCanNotBeWrittenIsAbandoned)
{
    StoreFixture program(withCloud());
    const QDateTime day = program.platform.date(2024, 3, 1);
    program.defaults().setBool(false, Keys::kUseICloudKey);
    program.weigh(day, 79);
    const auto moveFails = [&](const char *source, const char *target, float weight) {
        ASSERT_TRUE(program.defaults().synchronize());
        program.restart();
        {
            const Blocked settings(program.platform.defaultsPath());
            program.settle();
            ASSERT_EQ(program.file(), QLatin1String(source));
            EXPECT_FALSE(QFile::exists(program.path(target)));
            program.weigh(day, weight);
            program.restart(); // nothing of this run reaches the settings, as after a kill
        }
        program.platform.restart();
        program.settle();
        EXPECT_EQ(program.file(), QLatin1String(target)) << "the next start tries again";
        EXPECT_EQ(program.weight(day), weight);
    };
    program.defaults().setBool(true, Keys::kUseICloudKey);
    moveFails("Diet.sqlite", "iCloudDiet.sqlite", 78.5F);
    program.defaults().setBool(true, Keys::kDisableiCloud);
    program.defaults().setBool(false, Keys::kUseICloudKey);
    moveFails("iCloudDiet.sqlite", "Diet.sqlite", 78);
}

TEST(Stores, MarkersThatTheFilesContradictLoseNothing)
{
    StoreFixture program(withCloud());
    const QDateTime day = program.platform.date(2024, 3, 1);
    program.weigh(day, 79); // in the cloud file, the only one
    program.defaults().setBool(false, Keys::kUseICloudKey);
    program.restart();
    program.settle();
    EXPECT_EQ(program.file(), QStringLiteral("Diet.sqlite"));
    EXPECT_EQ(program.weight(day), 79);

    program.defaults().setBool(true, Keys::kUseICloudKey);
    program.defaults().setBool(true, Keys::kOldDataMerged);
    program.restart();
    ASSERT_TRUE(QFile::remove(program.path("iCloudDiet.sqlite")));
    program.settle();
    EXPECT_EQ(program.file(), QStringLiteral("iCloudDiet.sqlite"));
    EXPECT_EQ(program.weight(day), 79);
}

/// Writes a store file that is no database.
void writeGarbage(const QString &path)
{
    QFile garbage(path);
    ASSERT_TRUE(garbage.open(QIODevice::WriteOnly));
    garbage.write("this is no database, but somebody may still want it back");
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(Stores, ADamagedFileIsReportedAndSetAsideOnlyOnRequest)
{
    StoreFixture program;
    const QString path = program.path("Diet.sqlite");
    writeGarbage(path);
    writeGarbage(path + QStringLiteral(".damaged-1")); // an earlier copy
    LogCapture log;
    program.settle();
    ASSERT_TRUE(program.manager().storeProblem().has_value());
    EXPECT_EQ(program.manager().storeProblem()->kind, StoreProblem::Kind::Damaged);
    EXPECT_EQ(program.manager().storeProblem()->path, path);
    EXPECT_THAT(log.lines(), Contains(HasPrefix(QStringLiteral("error while additing presitance store - "))));
    EXPECT_THAT(log.lines(), Not(Contains(HasPrefix(QStringLiteral("added normal")))));
    EXPECT_FALSE(program.manager().isStoreOpen());
    program.context().insert<DietDay>().setWeight(70);
    EXPECT_FALSE(program.context().save());
    const QByteArray content = contentOf(path);
    EXPECT_TRUE(content.startsWith("this is no database"));

    EXPECT_EQ(pathForStoreCopy(path), path + QStringLiteral(".damaged-2"));
    writeGarbage(path + QStringLiteral("-wal"));
    program.defaults().setValue(QStringLiteral("1.0"), Keys::kAppVersionKey);
    ASSERT_TRUE(program.manager().startWithEmptyStore());
    program.settle();
    EXPECT_FALSE(program.manager().storeProblem().has_value());
    EXPECT_EQ(program.file(), QStringLiteral("Diet.sqlite"));
    EXPECT_EQ(contentOf(path + QStringLiteral(".damaged-2")), content);
    EXPECT_EQ(contentOf(path + QStringLiteral(".damaged-2-wal")), content);
    EXPECT_TRUE(QFile::exists(path + QStringLiteral(".damaged-1")));
    EXPECT_FALSE(program.defaults().valueForKey(Keys::kAppVersionKey).isValid()) << "the catalogue is imported again";
    program.weigh(program.platform.date(2024, 3, 1), 80);
    program.restart();
    EXPECT_EQ(program.weight(program.platform.date(2024, 3, 1)), 80);
    EXPECT_EQ(program.context().fetch<DietDay>()->size(), 1U) << "what was inserted without a store is dropped";
}

TEST(Stores, AKillWhileAFileIsSetAsideKeepsItsLog)
{
    StoreFixture program;
    const QString path = program.path("Diet.sqlite");
    writeGarbage(path + QStringLiteral(".damaged-3"));
    writeGarbage(path + QStringLiteral("-wal")); // killed between the two renames
    program.settle();
    EXPECT_TRUE(program.manager().isStoreOpen());
    EXPECT_EQ(contentOf(path + QStringLiteral(".damaged-3-wal")), contentOf(path + QStringLiteral(".damaged-3")));
}

TEST(Stores, AFileOfANewerVersionStaysAsItIs)
{
    StoreFixture program;
    program.settle();
    const QString path = program.path("Diet.sqlite");
    program.restart();
    {
        SQLite::Database file(path.toStdString(), SQLite::OPEN_READWRITE);
        file.exec("PRAGMA user_version = 99");
    }
    const QByteArray content = contentOf(path);
    program.settle();
    ASSERT_TRUE(program.manager().storeProblem().has_value());
    EXPECT_EQ(program.manager().storeProblem()->kind, StoreProblem::Kind::Newer);
    EXPECT_EQ(contentOf(path), content);
}

TEST(Stores, TellWhatKeepsAFileFromBeingOpened)
{
    using Kind = StoreProblem::Kind;
    for (const auto &[code, kind] :
         {std::pair(SQLITE_CORRUPT, Kind::Damaged), std::pair(SQLITE_NOTADB, Kind::Damaged),
          std::pair(static_cast<int>(StoreRefusal::Damaged), Kind::Damaged), std::pair(SQLITE_BUSY, Kind::InUse),
          std::pair(SQLITE_FULL, Kind::NoSpace), std::pair(SQLITE_READONLY_DIRECTORY, Kind::NoPermission),
          std::pair(SQLITE_CANTOPEN_ISDIR, Kind::NoPermission), std::pair(SQLITE_IOERR_READ, Kind::Other),
          std::pair(0, Kind::Other)})
        EXPECT_EQ(storeProblem(QStringLiteral("/p"), {.code = code}).kind, kind) << code;
}

TEST(Stores, TheContextIsAnnouncedOnce)
{
    StoreFixture program;
    int announced = 0;
    QObject::connect(&program.platform.platform().shared<NotificationCenter>(), &NotificationCenter::posted,
                     [&](const QString &name) {
                         EXPECT_EQ(name, CoreDataManager::kCoreDataReadyNotification);
                         EXPECT_NE(CoreDataManager::sharedManager().managedObjectContext(), nullptr);
                         ++announced;
                     });
    program.settle();
    EXPECT_EQ(program.manager().managedObjectContext(), program.manager().managedObjectContext());
    QCoreApplication::processEvents();
    EXPECT_EQ(announced, 1);
}

TEST(Stores, TheLanguageComesFromTheSettings)
{
    StoreFixture program({.language = QStringLiteral("en")});
    program.defaults().setValue(QStringLiteral("ru"), Keys::kLangluageCodeKey);
    EXPECT_EQ(program.manager().langluageCode(), QStringLiteral("ru"));
    EXPECT_EQ(program.platform.strings().langluageCode(), QStringLiteral("ru"));
}

} // namespace
} // namespace kesto::test
