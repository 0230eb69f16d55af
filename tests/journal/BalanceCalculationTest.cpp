#include "journal/FoodBalance.h"
#include "journal/TimerViewController.h"
#include "journal/WaterBalance.h"
#include "journal/WaterVals.h"
#include "platform/UserDefaults.h"
#include "store/Keys.h"
#include "support/TestPlatform.h"

#include <QFile>
#include <QSet>

#include <gtest/gtest.h>

#include <limits>

namespace kesto::test
{

TEST(WaterNorm, IsReckonedInSinglePrecisionAndCutOff)
{
    struct Case
    {
        std::optional<float> weight;
        bool woman;
        int norm;
    };
    // Reckoned in double precision alone, 70 kg would give 2099 ml; in single precision alone, 80 kg would give 2399.
    for (const Case &each :
         {Case{{}, false, 2400}, Case{{}, true, 2600}, Case{70.F, false, 2100}, Case{80.F, false, 2400},
          Case{55.55F, false, 1666}, Case{0.F, false, 0}, Case{0.F, true, 200}, Case{-80.F, false, -2400},
          Case{1e30F, false, std::numeric_limits<int>::max()}})
        EXPECT_EQ(waterNorm(each.weight, each.woman), each.norm) << each.weight.value_or(-1);
}

TEST(ProteinNorm, FollowsSexAgeAndActivity)
{
    struct Case
    {
        bool man;
        qint64 age;
        std::array<int, 5> norms;
    };
    for (const Case &each : {Case{true, 40, {80, 96, 99, 102, 108}}, Case{true, 41, {75, 89, 92, 93, 100}},
                             Case{false, 0, {71, 82, 84, 86, 92}}, Case{false, 41, {68, 75, 77, 79, 85}}}) {
        for (int level = 0; level <= activityCount; ++level)
            EXPECT_EQ(proteinNorm(each.man, each.age, level), each.norms[static_cast<size_t>(level)]);
    }
    for (const int unknown : {-1, 5, std::numeric_limits<int>::max()})
        EXPECT_EQ(proteinNorm(true, 0, unknown), 80);
}

TEST(Foods, HaveTheirPicturesAndFigures)
{
    const TestPlatform platform;
    EXPECT_EQ(foodImage(11), QStringLiteral("meat_11"));
    EXPECT_EQ(foodImage(12), QStringLiteral("meat_13"));
    EXPECT_EQ(foodImage(40), QStringLiteral("meat_41"));
    EXPECT_EQ(foodProteinText(1), QStringLiteral("2.5 г."));
    EXPECT_EQ(foodProteinText(5), QStringLiteral("45 г."));
    for (const std::optional<int> none :
         {std::optional<int>(), std::optional(0), std::optional(41), std::optional(-1)}) {
        EXPECT_EQ(foodImage(none), QStringLiteral("protein"));
        EXPECT_TRUE(foodName(none).isNull());
        EXPECT_TRUE(foodProteinText(none).isNull());
    }
    QSet<QString> names;
    double sum = 0;
    for (int type = 1; type <= foodCount; ++type) {
        names.insert(foodName(type));
        sum += foodOfType(type)->protein;
        EXPECT_TRUE(
            QFile::exists(QStringLiteral(KESTO_RESOURCES_FOLDER "/images/") + foodImage(type) + QStringLiteral(".svg")))
            << type;
    }
    EXPECT_EQ(names.size(), foodCount);
    EXPECT_NEAR(sum, 481.6, 1e-9);
}

TEST(WaterVals, AreReadAsTheyAreStored)
{
    TestPlatform platform;
    UserDefaults &defaults = platform.userDefaults();
    EXPECT_EQ(waterValsArray(), QList<int>({150, 300, 50, 250, 200, 300, 500, 1000}));
    defaults.setValue(QStringLiteral("no portions"), Keys::kWaterWalskey);
    EXPECT_EQ(waterValsArray(), QList<int>({150, 300, 50, 250, 200, 300, 500, 1000}));

    // "10" stands between "1" and "2"; what is no volume counts nothing.
    defaults.setValue(QVariantMap{{QStringLiteral("1"), 210},
                                  {QStringLiteral("10"), 2000.9},
                                  {QStringLiteral("2"), QStringLiteral("much")},
                                  {QStringLiteral("3"), -1},
                                  {QStringLiteral("4"), 1e30},
                                  {QStringLiteral("5"), QVariantList{1}}},
                      Keys::kWaterWalskey);
    EXPECT_EQ(waterValsArray(), QList<int>({210, 2000, 0, 0, 0, 0}));
    EXPECT_EQ(waterVolume(waterValsDict(), 8), 0);

    EXPECT_EQ(waterPortionTitle(150), QStringLiteral("150 мл."));
    EXPECT_EQ(waterPortionTitle(1000), QStringLiteral(" 1 л."));
    EXPECT_EQ(waterPortionTitle(1500), QStringLiteral("1500 мл."));
    EXPECT_EQ(waterPortionTitle(0), QStringLiteral("0 мл."));
}

TEST(TimerText, ShowsHoursFromTwoOn)
{
    struct Case
    {
        double seconds;
        const char *text;
    };
    for (const Case &each :
         {Case{600, "10: 00"}, Case{599, "09: 59"}, Case{3900, "05: 00"}, Case{5400, "30: 00"}, Case{7199, "59: 59"},
          Case{7200, "02:00:00"}, Case{9000, "02:30:00"}, Case{86340, "23:59:00"}, Case{360000, "100:00:00"},
          Case{1, "00: 01"}, Case{0.4, "00: 00"}, Case{539.998, "09: 00"}, Case{598.6, "09: 59"}, Case{0, "00: 00"}})
        EXPECT_EQ(TimerViewController::textForTimeInterval(each.seconds), QString::fromUtf8(each.text)) << each.seconds;
}

} // namespace kesto::test
