#include "StoreFixture.h"

namespace kesto::test
{
namespace
{

struct PhaseCase
{
    int attack;
    int cruise;
    int consolidation;
    int day;
    int phase;
};

TEST(Phases, FollowFromTheStoredLengths)
{
    StoreFixture program;
    const QDateTime start = program.platform.date(2024, 3, 29); // the clocks change two days later
    program.defaults().setValue(start, Keys::kStartDietDateKey);
    for (const auto &[attack, cruise, consolidation, day, phase] : std::initializer_list<PhaseCase>{
             {3, 70, 100, -1, -1},
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
         }) {
        program.defaults().setInteger(attack, Keys::kPeriod1Key);
        program.defaults().setInteger(cruise, Keys::kPeriod2Key);
        program.defaults().setInteger(consolidation, Keys::kPeriod3Key);
        const QDateTime date = program.platform.calendar().dateByAdding(day, Calendar::Unit::Day, start);
        EXPECT_EQ(CoreDataManager::dietPeriodForCalendar(program.platform.calendar(), date), phase)
            << attack << ' ' << cruise << ' ' << consolidation << ": day " << day;
    }
}

TEST(Phases, CountCalendarDaysInEveryZone)
{
    // Spring and autumn changes, a zone off the hour, and one whose clocks skip midnight.
    for (const auto &[zone, year, month, day] :
         {std::tuple("Europe/Berlin", 2024, 3, 30), std::tuple("Europe/Berlin", 2024, 10, 26),
          std::tuple("America/New_York", 2024, 3, 9), std::tuple("America/New_York", 2024, 11, 2),
          std::tuple("Asia/Kolkata", 2024, 3, 30), std::tuple("America/Sao_Paulo", 2018, 11, 3)}) {
        StoreFixture program({.timeZone = zone});
        const Calendar &calendar = program.platform.calendar();
        const QDate first(year, month, day);
        program.defaults().setValue(calendar.startOfDay(first), Keys::kStartDietDateKey);
        program.defaults().setInteger(2, Keys::kPeriod1Key);
        program.defaults().setInteger(2, Keys::kPeriod2Key);
        const int phases[] = {-1, 0, 0, 1, 1, 3, 3};
        for (int i = 0; i < 7; ++i)
            EXPECT_EQ(CoreDataManager::dietPeriodForCalendar(calendar, calendar.startOfDay(first.addDays(i - 1))),
                      phases[i])
                << zone << ' ' << i;
    }
}

} // namespace
} // namespace kesto::test
