// Which file is opened, and the moves between the local file and the cloud's.

#include "StoreFixture.h"

#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/objectgraph/SqlStore.h"

#include <QDir>
#include <QUrl>

namespace kesto::test
{
namespace
{

using testing::Contains;
using testing::IsSupersetOf;
using testing::Not;

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
    EXPECT_EQ(program.context().fetchOrLog<DietDay>().size(), 3060U);
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

TEST(Stores, AFileThatCanNotBeOpenedLeavesAContextWithoutAStore)
{
    StoreFixture program;
    QFile garbage(program.path("Diet.sqlite"));
    ASSERT_TRUE(garbage.open(QIODevice::WriteOnly));
    garbage.write("this is no database, but somebody may still want it back");
    garbage.close();
    LogCapture log;
    program.settle();
    const QString reason = QStringLiteral("error while additing presitance store - ") + program.path("Diet.sqlite") +
                           QStringLiteral(": file is not a database");
    EXPECT_THAT(log.lines(), Contains(reason));
    EXPECT_THAT(log.lines(),
                Not(Contains(testing::ResultOf(
                    [](const QString &text) { return text.startsWith(QStringLiteral("added normal")); }, true))));
    EXPECT_TRUE(program.context().fetchOrLog<DietDay>().empty());
    program.context().insert<DietDay>().setWeight(70);
    EXPECT_FALSE(program.context().save());
    ASSERT_TRUE(garbage.open(QIODevice::ReadOnly));
    EXPECT_TRUE(garbage.readAll().startsWith("this is no database"));
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
