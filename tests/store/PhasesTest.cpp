#include "StoreFixture.h"

namespace kesto::test
{
namespace
{

TEST(Phases, FollowFromTheStoredLengths)
{
    StoreFixture program;
    const QDateTime start = program.platform.date(2024, 3, 29); // the clocks change two days later
    program.defaults().setValue(start, Keys::kStartDietDateKey);
    for (const auto &[attack, cruise, consolidation, day, phase] : {std::tuple(3, 70, 100, -1, -1),
                                                                    {3, 70, 100, 0, 0},
                                                                    {3, 70, 100, 2, 0},
                                                                    {3, 70, 100, 3, 1},
                                                                    {3, 70, 100, 72, 1},
                                                                    {3, 70, 100, 73, 2},
                                                                    {3, 70, 100, 172, 2},
                                                                    {3, 70, 100, 173, 3},
                                                                    {3, 70, 100, 9999, 3},
                                                                    {0, 0, 0, 0, 3},
                                                                    {0, 0, 0, -1, -1},
                                                                    {2, -14, -20, 0, 0},
                                                                    {2, -14, -20, 1, 0},
                                                                    {2, -14, -20, 2, 3},
                                                                    {2, -14, -20, -31, 3},
                                                                    {2, -14, -20, -33, -1},
                                                                    {2, -14, 30, -5, 2},
                                                                    {0, 5, 0, 0, 1},
                                                                    {7, 2147483647, 2147483647, 9999, 1}}) {
        program.defaults().setInteger(attack, Keys::kPeriod1Key);
        program.defaults().setInteger(cruise, Keys::kPeriod2Key);
        program.defaults().setInteger(consolidation, Keys::kPeriod3Key);
        const QDateTime date = program.platform.calendar().dateByAdding(day, Calendar::Unit::Day, start);
        EXPECT_EQ(CoreDataManager::dietPeriodForCalendar(program.platform.calendar(), date), phase)
            << attack << ' ' << cruise << ' ' << consolidation << ": day " << day;
    }
}

} // namespace
} // namespace kesto::test
