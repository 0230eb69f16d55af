// The plan that arrives from another device, and the diet days that follow from it.

#include "StoreFixture.h"

#include "model/DishInDietDay.h"
#include "model/JornalDay.h"

namespace kesto::test
{
namespace
{

using testing::Contains;
using testing::ElementsAre;

std::vector<QDateTime> attackDays(ManagedObjectContext &context)
{
    FetchRequest request;
    request.predicate = attribute("chB") == true;
    request.sortDescriptors = {{"date"}};
    std::vector<QDateTime> dates;
    for (const DietDay *day : context.fetchOrLog<DietDay>(request))
        dates.push_back(*day->date());
    return dates;
}

TEST(CalendarRebuild, DeletesEarlierDaysAndMarksTheAttackDays)
{
    StoreFixture program;
    const QDateTime start = program.platform.date(2024, 3, 10);
    for (int day = -3; day <= 1; ++day)
        program.weigh(start.addDays(day), 80);
    DietDay *earlier = DietDay::dayWithoutCreation(start.addDays(-1), program.context());
    program.context().insert<DishInDietDay>().setDietDays(earlier);
    program.context().insert<JornalDay>().setDay(earlier);
    program.defaults().setValue(start, Keys::kStartDietDateKey);
    program.defaults().setInteger(3, Keys::kPeriod1Key);
    LogCapture log;
    program.manager().updateSqliteFileForNewStartDietDay();
    EXPECT_THAT(log.lines(), Contains(QStringLiteral("updateSqliteFileForNewStartDietDay")));
    EXPECT_FALSE(program.context().hasChanges());
    program.restart();
    EXPECT_THAT(attackDays(program.context()), ElementsAre(start, start.addDays(1), start.addDays(2)));
    EXPECT_EQ(program.context().fetch<DietDay>()->size(), 3U);
    EXPECT_TRUE(program.context().fetch<DishInDietDay>()->empty());
    EXPECT_TRUE(program.context().fetch<JornalDay>()->empty());
    EXPECT_EQ(program.weight(start), 80); // a day that existed keeps what it has

    // Back by a week: nothing lies before it, and the later Attack days stay as they are.
    program.defaults().setValue(start.addDays(-7), Keys::kStartDietDateKey);
    program.manager().updateSqliteFileForNewStartDietDay();
    EXPECT_EQ(attackDays(program.context()).size(), 6U);
}

TEST(CalendarRebuild, StepsBy86400SecondsAcrossAChangeOfTheClocks)
{
    StoreFixture program; // Europe/Berlin: 2024-03-31 has 23 hours
    const QDateTime start = program.platform.date(2024, 3, 30);
    program.defaults().setValue(start, Keys::kStartDietDateKey);
    program.defaults().setInteger(4, Keys::kPeriod1Key);
    program.manager().updateSqliteFileForNewStartDietDay();
    EXPECT_THAT(attackDays(program.context()),
                ElementsAre(start, program.platform.date(2024, 3, 31), program.platform.date(2024, 4, 1, 1),
                            program.platform.date(2024, 4, 2, 1)));
}

TEST(CalendarRebuild, WithoutAttackDaysOrWithoutAStartNothingIsMade)
{
    StoreFixture program;
    const QDateTime day = program.platform.date(2024, 3, 1);
    program.weigh(day, 80);
    program.defaults().setInteger(5, Keys::kPeriod1Key);
    program.manager().updateSqliteFileForNewStartDietDay();
    EXPECT_EQ(program.context().fetchOrLog<DietDay>().size(), 1U);
    program.defaults().setValue(day.addDays(1), Keys::kStartDietDateKey);
    program.defaults().setInteger(0, Keys::kPeriod1Key);
    program.manager().updateSqliteFileForNewStartDietDay();
    EXPECT_TRUE(program.context().fetchOrLog<DietDay>().empty());
}

class CloudChange : public testing::Test
{
protected:
    CloudChange()
        : program(withCloud())
        , start(program.platform.date(2024, 3, 10))
    {
    }

    void change(const QVariantMap &values) { program.platform.cloudStore().changeExternally(values); }

    StoreFixture program;
    QDateTime start;
};

TEST_F(CloudChange, CopiesThePlanAndRebuildsForANewStart)
{
    program.weigh(start.addDays(-1), 80);
    LogCapture log;
    change({{Keys::kStartDietDateKey, start},
            {Keys::kPeriod1Key, 2},
            {Keys::kPeriod2Key, 70},
            {Keys::kPeriod3Key, 100},
            {Keys::kIdealWidth, 72.8},
            {Keys::kFavoriteDishesKey, QStringList{QStringLiteral("Ёжики")}}});
    EXPECT_THAT(log.lines(),
                ElementsAre(QStringLiteral("cloudStoreChanged"), QStringLiteral("updateSqliteFileForNewStartDietDay")));
    program.restart();
    EXPECT_EQ(program.manager().startDietDay(), start);
    EXPECT_EQ(program.defaults().integerForKey(Keys::kPeriod2Key), 70);
    EXPECT_EQ(program.defaults().integerForKey(Keys::kPeriod3Key), 100);
    EXPECT_EQ(program.defaults().floatForKey(Keys::kIdealWidth), 72.0F);
    EXPECT_EQ(program.defaults().stringArrayForKey(Keys::kFavoriteDishesKey), QStringList{QStringLiteral("Ёжики")});
    EXPECT_EQ(attackDays(program.context()).size(), 2U);
    EXPECT_EQ(program.weight(start.addDays(-1)), std::nullopt);
}

TEST_F(CloudChange, RebuildsOnlyWhenTheStartChangedOrWasUnknown)
{
    LogCapture log;
    const auto rebuilt = [&] { return log.take().contains(QStringLiteral("updateSqliteFileForNewStartDietDay")); };
    (void)program.manager();
    change({{Keys::kPeriod1Key, 1}});
    EXPECT_TRUE(rebuilt()); // no start before, none now: an unknown one never counts as the same
    change({{Keys::kStartDietDateKey, start}});
    EXPECT_TRUE(rebuilt());
    change({{Keys::kPeriod1Key, 4}});
    EXPECT_FALSE(rebuilt());
    EXPECT_EQ(program.defaults().integerForKey(Keys::kPeriod1Key), 4);
    change({{Keys::kStartDietDateKey, start.addDays(1)}});
    EXPECT_TRUE(rebuilt());
    change({{Keys::kStartDietDateKey, QVariant()}, {Keys::kFavoriteDishesKey, QVariant()}});
    EXPECT_TRUE(rebuilt());
    EXPECT_FALSE(program.defaults().valueForKey(Keys::kStartDietDateKey).isValid());
    EXPECT_EQ(program.manager().startDietDay(), std::nullopt);
}

TEST_F(CloudChange, IsNotHeardWhileTheUseOfTheCloudIsOff)
{
    program.defaults().setBool(false, Keys::kUseICloudKey);
    (void)program.manager();
    change({{Keys::kStartDietDateKey, start}});
    EXPECT_FALSE(program.defaults().valueForKey(Keys::kStartDietDateKey).isValid());
    EXPECT_EQ(program.platform.cloudStore().synchronizeCount(), 0);
}

} // namespace
} // namespace kesto::test
