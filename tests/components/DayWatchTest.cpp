#include "components/DayWatch.h"

#include "support/TestPlatform.h"

#include <gtest/gtest.h>

#include <QTest>

namespace kesto::test
{

namespace
{

TEST(DayWatch, TellsOfADayOfTheZoneOnce)
{
    TestPlatform platform;
    platform.clock().set(platform.date(2024, 3, 30, 9));
    DayWatch &watch = DayWatch::sharedWatch();
    int days = 0;
    QObject::connect(&watch, &DayWatch::dayChanged, [&] { ++days; });
    for (const auto &[now, expected] :
         {std::pair(platform.date(2024, 3, 30, 23, 59, 59), 0), std::pair(platform.date(2024, 3, 31), 1),
          std::pair(platform.date(2024, 3, 31, 23, 59, 59), 1), // an hour short
          std::pair(platform.date(2024, 4, 1), 2), std::pair(platform.date(2024, 4, 9, 12), 3),
          std::pair(platform.date(2024, 4, 8, 12), 4)}) { // the clock was set back
        platform.clock().set(now);
        watch.look();
        watch.look();
        EXPECT_EQ(days, expected) << now.toString(Qt::ISODate).toStdString();
    }
}

TEST(DayWatch, TellsOfAnotherCalendar)
{
    TestPlatform platform;
    platform.clock().set(platform.date(2024, 3, 7, 20)); // the 8th in Tokyo
    DayWatch &watch = DayWatch::sharedWatch();
    int days = 0;
    QObject::connect(&watch, &DayWatch::dayChanged, [&] { ++days; });
    platform.moveTo("Asia/Tokyo", Qt::Monday);
    EXPECT_EQ(days, 1);
    watch.look();
    platform.moveTo("Asia/Tokyo", Qt::Monday);
    EXPECT_EQ(days, 1) << "nothing new";
    platform.moveTo("Asia/Tokyo", Qt::Sunday);
    EXPECT_EQ(days, 2);
}

TEST(DayWatch, WaitsForMidnightByItself)
{
    TestPlatform platform;
    platform.clock().set(platform.date(2024, 3, 7, 23, 59, 59).addMSecs(980));
    int days = 0;
    QObject::connect(&DayWatch::sharedWatch(), &DayWatch::dayChanged, [&] { ++days; });
    QTest::qWait(60); // by this clock it is not midnight yet
    EXPECT_EQ(days, 0);
    platform.clock().advanceMSecs(20);
    EXPECT_TRUE(QTest::qWaitFor([&] { return days > 0; }));
    QTest::qWait(60);
    EXPECT_EQ(days, 1);
}

} // namespace

} // namespace kesto::test
