#include "util/TypedNumber.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

namespace kesto::test
{
namespace
{

TEST(TypedNumber, IsWhatTheTextBeginsWith)
{
    for (const auto &[text, number, whole] : std::initializer_list<std::tuple<const char *, float, int>>{
             {"72", 72, 72},
             {"72.5", 72.5F, 72},
             {"72,5", 72.5F, 72},
             {" 72 kg", 72, 72},
             {"-3.5", -3.5F, -3},
             {"+4", 4, 4},
             {".5", .5F, 0},
             {"7.", 7, 7},
             {"1.2.3", 1.2F, 1},
             {"1,234,5", 1.234F, 1},
             {"1e2", 100, 1},
             {"", 0, 0},
             {"abc", 0, 0},
             {"nan", 0, 0},
             {"inf", 0, 0},
             {"-", 0, 0},
             {"99999999999", 99999999999.0F, 2147483647},
             {"-99999999999", -99999999999.0F, -2147483647 - 1},
             {"1e99999", std::numeric_limits<float>::max(), 1},
             {"-1e39", std::numeric_limits<float>::lowest(), -1},
         }) {
        EXPECT_EQ(floatValue(QString::fromUtf8(text)), number) << text;
        EXPECT_EQ(integerValue(QString::fromUtf8(text)), whole) << text;
    }
    EXPECT_EQ(floatValue({}), 0);
}

} // namespace
} // namespace kesto::test
