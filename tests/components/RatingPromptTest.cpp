#include "components/RatingPrompt.h"
#include "components/AlertCenter.h"
#include "support/LogCapture.h"
#include "support/TestPlatform.h"

#include <gtest/gtest.h>

namespace kesto::test
{

class RatingPromptTest : public testing::Test
{
protected:
    enum Button { Rate, Later, Never };

    void start()
    {
        platform.restart();
        configure();
        RatingPrompt::sharedPrompt().appLaunched(true);
    }
    static void configure() { RatingPrompt::sharedPrompt().configure({.appID = QStringLiteral("kesto.test")}); }
    static bool asks() { return AlertCenter::sharedCenter().current() != nullptr; }
    static void answer(int button) { AlertCenter::sharedCenter().current()->answer(button); }
    /// Ten launches in a day, and a day later.
    void untilItAsks()
    {
        for (int launch = 0; launch < 10; ++launch)
            start();
        platform.clock().set(platform.clock().now().addDays(1));
    }

    TestPlatform platform;
};

TEST_F(RatingPromptTest, ItWantsBothTenUsesAndADay)
{
    for (int launch = 1; launch <= 12; ++launch) {
        start();
        EXPECT_FALSE(asks()) << launch; // often, and all on the first day
    }
    platform.clock().advance(86'399);
    RatingPrompt::sharedPrompt().appEnteredForeground(true);
    EXPECT_FALSE(asks());
    platform.clock().advance(1);
    RatingPrompt::sharedPrompt().appEnteredForeground(true);
    EXPECT_TRUE(asks());
    EXPECT_EQ(AlertCenter::sharedCenter().current()->title(), QStringLiteral("Оцените «Диета Кесто»"));
    EXPECT_EQ(AlertCenter::sharedCenter().current()->buttonTitles().size(), 3);
    RatingPrompt::sharedPrompt().appEnteredForeground(true); // while the question is open
    EXPECT_EQ(AlertCenter::sharedCenter().waitingCount(), 0);
}

TEST_F(RatingPromptTest, DaysAloneAreNotEnough)
{
    start();
    platform.clock().set(platform.clock().now().addDays(100));
    for (int use = 2; use <= 9; ++use) {
        RatingPrompt::sharedPrompt().appEnteredForeground(true);
        EXPECT_FALSE(asks()) << use;
    }
    RatingPrompt::sharedPrompt().appEnteredForeground(false); // the tenth, at a bad moment
    EXPECT_FALSE(asks());
    start();
    EXPECT_TRUE(asks());
}

TEST_F(RatingPromptTest, LaterMeansTwoDaysLater)
{
    untilItAsks();
    start();
    ASSERT_TRUE(asks());
    AlertCenter::sharedCenter().current()->cancel();
    for (int later = 0; later < 2; ++later) {
        platform.clock().set(platform.clock().now().addDays(2).addSecs(-1));
        start();
        EXPECT_FALSE(asks());
        platform.clock().advance(1);
        start();
        ASSERT_TRUE(asks());
        answer(Later);
    }
    // Left open when the program ended: it asks again.
    platform.clock().set(platform.clock().now().addDays(2));
    start();
    ASSERT_TRUE(asks());
    start();
    EXPECT_TRUE(asks());
}

TEST_F(RatingPromptTest, RatedOrRefusedItNeverAsksAgain)
{
    for (int button : {Rate, Never}) {
        untilItAsks();
        start();
        ASSERT_TRUE(asks());
        answer(button);
        EXPECT_EQ(platform.openedUrls().size(), 1);
        platform.clock().set(platform.clock().now().addDays(365));
        start();
        EXPECT_FALSE(asks());
        for (const QString &key : {QStringLiteral("kRatingFirstUseKey"), QStringLiteral("kRatingUsesKey"),
                                   QStringLiteral("kRatingRemindedKey"), QStringLiteral("kRatingFinishedKey")})
            platform.userDefaults().removeObjectForKey(key);
    }
    EXPECT_EQ(platform.openedUrls().first(), QUrl(QStringLiteral("appstream://kesto.test")));
}

TEST_F(RatingPromptTest, RatingFromTheMenuSettlesItToo)
{
    configure();
    RatingPrompt::sharedPrompt().rateApp();
    EXPECT_EQ(platform.openedUrls().size(), 1);
    untilItAsks();
    start();
    EXPECT_FALSE(asks());
}

} // namespace kesto::test
