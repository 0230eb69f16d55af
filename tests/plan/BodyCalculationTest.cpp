#include "plan/BodyCalculation.h"
#include "support/Printing.h"
#include "util/TypedNumber.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace kesto::test
{
namespace
{

float below(float value) { return std::nextafter(value, -1000.0F); }
float above(float value) { return std::nextafter(value, 1000.0F); }

TEST(BodyCalculation, StatusBandsHoldTheirUpperBound)
{
    const QString far = QStringLiteral("Значительно ниже нормы");
    const QString under = QStringLiteral("Недовес");
    const QString normal = QStringLiteral("Нормальный диапазон");
    const QString over = QStringLiteral("Избыточный вес");
    const QString obese = QStringLiteral("Умеренное ожирение");
    const QString veryObese = QStringLiteral("Значительное ожирение");
    for (const auto &[bound, upTo, beyond] :
         {std::tuple(15.0F, far, far), std::tuple(16.0F, far, under), std::tuple(18.5F, under, normal),
          std::tuple(25.0F, normal, over), std::tuple(30.0F, over, obese), std::tuple(35.0F, obese, veryObese)}) {
        EXPECT_EQ(BodyCalculation::statusForBmi(below(bound)), upTo) << bound;
        EXPECT_EQ(BodyCalculation::statusForBmi(bound), upTo) << bound;
        EXPECT_EQ(BodyCalculation::statusForBmi(above(bound)), beyond) << bound;
    }
}

TEST(BodyCalculation, AttackBandsHoldTheirLowerBound)
{
    for (const auto &[bound, before, from] : {std::tuple(5.0F, 2, 3), std::tuple(10.0F, 3, 4), std::tuple(15.0F, 4, 5),
                                              std::tuple(22.0F, 5, 6), std::tuple(26.0F, 6, 7)}) {
        EXPECT_EQ(BodyCalculation::attackDays(below(bound)), before) << bound;
        EXPECT_EQ(BodyCalculation::attackDays(bound), from) << bound;
        EXPECT_EQ(BodyCalculation::attackDays(above(bound)), from) << bound;
    }
    EXPECT_EQ(BodyCalculation::attackDays(-40), 2);
    EXPECT_EQ(BodyCalculation::attackDays(0), 2);
    EXPECT_EQ(BodyCalculation::attackDays(200), 7);
}

struct WholeCase
{
    BodyInputs inputs;
    float ideal;
    float difference;
    int period1;
    int period2;
    int period3;
};

TEST(BodyCalculation, FollowsFromTheInputs)
{
    for (const WholeCase &each : std::initializer_list<WholeCase>{
             // Nothing entered: 60 kg and 170 cm.
             {{}, 62, -2, 2, -14, -20},
             {{.weight = 60, .height = 170}, 62, -2, 2, -14, -20},
             {{.weight = 100, .height = 180, .male = true}, 75, 25, 6, 175, 250},
             {{.weight = 100, .height = 180}, 70, 30, 7, 210, 300},
             // The wrist's ends do not ask for the sex.
             {{.weight = 100, .height = 180, .handType = 0}, 60, 40, 7, 280, 400},
             {{.weight = 100, .height = 180, .male = true, .handType = 0}, 60, 40, 7, 280, 400},
             {{.weight = 100, .height = 180, .handType = 2}, 81, 19, 5, 133, 190},
             {{.weight = 100, .height = 180, .male = true, .handType = 2}, 81, 19, 5, 133, 190},
             // A wanted weight stays; days are cut off toward zero, on both sides of it.
             {{.weight = 70.5F, .height = 170, .wantedWeight = 62}, 62, 8.5F, 3, 59, 85},
             {{.weight = 60, .height = 170, .wantedWeight = 62.25F}, 62, -2.25F, 2, -15, -22},
             {{.weight = 65, .height = 170, .wantedWeight = 60}, 62, 5, 3, 35, 50},
             // Halves go away from zero: 18.5 and 21.5.
             {{.weight = 50, .height = 100, .handType = 0}, 19, 31, 7, 217, 310},
             {{.weight = 50, .height = 100}, 22, 28, 7, 196, 280},
         }) {
        const BodyCalculation result = BodyCalculation::calculate(each.inputs);
        const auto what = testing::Message() << each.inputs.weight << ' ' << each.inputs.height << ' '
                                             << each.inputs.handType << ' ' << each.inputs.wantedWeight;
        EXPECT_EQ(result.idealWeidht, each.ideal) << what;
        EXPECT_EQ(result.wantedWeight, each.inputs.wantedWeight == 0 ? each.ideal : each.inputs.wantedWeight) << what;
        EXPECT_EQ(result.difWeight, each.difference) << what;
        EXPECT_EQ(result.period1, each.period1) << what;
        EXPECT_EQ(result.period2, each.period2) << what;
        EXPECT_EQ(result.period3, each.period3) << what;
    }
    EXPECT_EQ(BodyCalculation::calculate({.weight = 60, .height = 170}).bmi, 60.0F / (1.7F * 1.7F));
}

// Figures that come out differently in double precision.
TEST(BodyCalculation, IsSinglePrecision)
{
    const auto wanting = [](float weight, float wanted) {
        return BodyCalculation::calculate({.weight = weight, .height = 170, .wantedWeight = wanted});
    };
    EXPECT_EQ(wanting(40.1F, 40).period3, 0);
    EXPECT_EQ(wanting(40.2F, 42).period3, -17);
    for (const auto &[weight, height] : {std::pair(81.0F, 180.0F), std::pair(49.0F, 140.0F)})
        EXPECT_EQ(BodyCalculation::calculate({.weight = weight, .height = height}).bodyStatus,
                  QStringLiteral("Избыточный вес"))
            << "a body-mass index of 25 exactly, but for the last digit of the height's square";
}

TEST(BodyCalculation, HoldsWhatNoIntegerHolds)
{
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    constexpr float huge = std::numeric_limits<float>::max();
    const BodyCalculation gain = BodyCalculation::calculate({.wantedWeight = huge});
    EXPECT_EQ(gain.period1, 2);
    EXPECT_EQ(gain.period2, least);
    EXPECT_EQ(gain.period3, least);
    const BodyCalculation loss = BodyCalculation::calculate({.wantedWeight = -huge});
    EXPECT_EQ(loss.period1, 7);
    EXPECT_EQ(loss.period2, most);
    EXPECT_EQ(loss.period3, most);
    const BodyCalculation none = BodyCalculation::calculate({.weight = std::numeric_limits<float>::quiet_NaN()});
    EXPECT_EQ(none.period2, 0);
}

} // namespace
} // namespace kesto::test
