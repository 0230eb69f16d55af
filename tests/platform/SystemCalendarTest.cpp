#include "platform/SystemCalendar.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <vector>

using namespace kesto;

namespace
{

TEST(SystemCalendar, TellsOfAnotherZoneWhenTheFileIsReplacedOrWhenAsked)
{
    const QByteArray before = qgetenv("TZ");
    const QTemporaryDir folder;
    SystemCalendar calendar(folder.filePath(u"localtime"_qs));
    std::vector<QByteArray> zones;
    QObject::connect(&calendar, &SystemCalendar::changed,
                     [&](const Calendar &now) { zones.push_back(now.timeZone().id()); });
    calendar.follow();
    calendar.refresh();
    EXPECT_TRUE(zones.empty());
    qputenv("TZ", "Asia/Tokyo");
    ASSERT_TRUE(QFile::link(u"/usr/share/zoneinfo/Asia/Tokyo"_qs, folder.filePath(u"localtime"_qs)));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !zones.empty(); }));
    qputenv("TZ", "Africa/Cairo");
    calendar.refresh();
    calendar.refresh();
    EXPECT_EQ(zones, (std::vector<QByteArray>{"Asia/Tokyo", "Africa/Cairo"}));
    qputenv("TZ", before);
}

} // namespace
