#include "platform/Platform.h"
#include "platform/RandomSource.h"
#include "support/TestPlatform.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using namespace kesto;

namespace
{

QStringList ended; // in order

struct Store
{
    explicit Store(Platform &) { ++made; }
    ~Store() { ended.append(u"store"_qs); }
    static inline std::atomic<int> made = 0;
};

struct Favorites
{
    explicit Favorites(Platform &platform)
        : store(platform.shared<Store>())
    {
    }
    ~Favorites()
    {
        ended.append(u"favorites"_qs);
        EXPECT_EQ(&Platform::current().shared<Store>(), &store); // still there
    }
    Store &store;
};

TEST(Platform, MakesOneOfEachAndEndsTheLastMadeFirst)
{
    ended.clear();
    Store::made = 0;
    {
        test::TestPlatform test;
        EXPECT_EQ(&Platform::current(), &test.platform());
        const Favorites &favorites = test.platform().shared<Favorites>();
        EXPECT_EQ(&test.platform().shared<Favorites>(), &favorites);
        std::vector<std::thread> threads;
        for (int i = 0; i < 4; ++i)
            threads.emplace_back([&] { EXPECT_EQ(&test.platform().shared<Store>(), &favorites.store); });
        for (std::thread &thread : threads)
            thread.join();
        EXPECT_EQ(Store::made, 1);
        test.restart();
        EXPECT_EQ(ended, (QStringList{u"favorites"_qs, u"store"_qs}));
        test.platform().shared<Store>();
        EXPECT_EQ(Store::made, 2);
    }
    EXPECT_EQ(ended, (QStringList{u"favorites"_qs, u"store"_qs, u"store"_qs}));
}

TEST(RandomSource, StaysBelowItsBoundAndReachesEveryNumber)
{
    SystemRandomSource source;
    EXPECT_EQ(source.uniform(0), 0u);
    EXPECT_EQ(source.uniform(1), 0u);
    std::vector<int> counts(6);
    for (int i = 0; i < 6000; ++i)
        ++counts.at(source.uniform(6));
    for (const int count : counts)
        EXPECT_NEAR(count, 1000, 250); // more than eight standard deviations
}

} // namespace
