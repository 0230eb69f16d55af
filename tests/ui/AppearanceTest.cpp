#include "ui/Appearance.h"

#include <gtest/gtest.h>

#include <QFont>

namespace kesto::test
{

namespace
{

TEST(AppearanceTest, TextsAreAsLargeAsTheSystems)
{
    struct Case
    {
        qreal points;
        int pixels;
        qreal dots;
        qreal scale;
    };
    for (const Case &each : {Case{11, 0, 96, 1}, Case{11, 0, 120, 1.25}, Case{22, 0, 96, 2}, Case{16.5, 0, 96, 1.5},
                             Case{9, 0, 96, 1}, Case{40, 0, 96, 2}, Case{0, 22, 200, 1.5}}) {
        QFont font;
        if (each.pixels > 0)
            font.setPixelSize(each.pixels);
        else
            font.setPointSizeF(each.points);
        EXPECT_NEAR(Appearance::textScaleOf(font, each.dots), each.scale, 0.001)
            << each.points << " points, " << each.pixels << " pixels at " << each.dots;
    }
}

TEST(AppearanceTest, AScaleOutOfBoundsIsTakenBack)
{
    Appearance appearance(nullptr);
    int told = 0;
    QObject::connect(&appearance, &Appearance::textScaleChanged, [&] { ++told; });
    for (const auto &[asked, given] : {std::pair(0.5, 1.0), {1.3, 1.3}, {3.0, 2.0}, {2.5, 2.0}}) {
        appearance.setTextScale(asked);
        EXPECT_EQ(appearance.textScale(), given);
    }
    EXPECT_EQ(told, 2);
}

} // namespace

} // namespace kesto::test
