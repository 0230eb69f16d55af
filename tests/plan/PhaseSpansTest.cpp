#include "plan/PhaseSpans.h"
#include "store/StoreFixture.h"

namespace kesto::test
{
namespace
{

// The bar and the calendar are two ways to the same answer, whatever the lengths.
TEST(PhaseSpans, AgreeWithThePhaseOfEveryDate)
{
    StoreFixture program;
    const Calendar &calendar = program.platform.calendar();
    const QDate start(2024, 3, 29); // the clocks change two days later
    program.defaults().setValue(calendar.startOfDay(start), Keys::kStartDietDateKey);
    for (const auto &[attack, cruise, consolidation] : {std::tuple(3, 70, 100),
                                                        {2, -14, -20},
                                                        {5, -3, 10},
                                                        {5, -10, 3},
                                                        {2, 10, -5},
                                                        {2, -14, 30},
                                                        {0, 0, 0},
                                                        {0, 5, 0},
                                                        {1, 1, 1}}) {
        program.defaults().setInteger(attack, Keys::kPeriod1Key);
        program.defaults().setInteger(cruise, Keys::kPeriod2Key);
        program.defaults().setInteger(consolidation, Keys::kPeriod3Key);
        qint64 day = 0;
        for (const PhaseSpan &span : phaseSpans(attack, cruise, consolidation)) {
            EXPECT_EQ(span.firstDay, day);
            const qint64 end = day + span.days.value_or(20);
            for (; day < end; ++day)
                ASSERT_EQ(CoreDataManager::dietPeriodForCalendar(calendar, calendar.startOfDay(start.addDays(day))),
                          span.phase)
                    << attack << ' ' << cruise << ' ' << consolidation << ": day " << day;
        }
    }
}

TEST(PhaseSpans, LeaveOutPhasesWithoutDays)
{
    EXPECT_THAT(phaseSpans(2, -14, -20), testing::ElementsAre(PhaseSpan{0, 0, 2}, PhaseSpan{3, 2, std::nullopt}));
    constexpr int most = std::numeric_limits<int>::max();
    EXPECT_THAT(phaseSpans(7, most, most),
                testing::ElementsAre(PhaseSpan{0, 0, 7}, PhaseSpan{1, 7, most}, PhaseSpan{2, qint64(most) + 7, most},
                                     PhaseSpan{3, 2 * qint64(most) + 7, std::nullopt}));
}

TEST(PhaseSpans, AreDrawnWithTheirDates)
{
    const TestPlatform platform({.language = QStringLiteral("en")});
    const auto dates = [](const QVariantList &bar) {
        QStringList lines;
        for (const QVariant &each : bar) {
            const QVariantMap span = each.toMap();
            lines.append(span[QStringLiteral("name")].toString() + QStringLiteral(": ") +
                         span[QStringLiteral("dates")].toString());
        }
        return lines;
    };
    EXPECT_EQ(dates(phaseBar(phaseSpans(1, 25, 400), QDate(2024, 2, 5))),
              QStringList({QStringLiteral("Attack: 5\u00a0Feb"), QStringLiteral("Cruise: 6\u00a0Feb\u00a0– 1\u00a0Mar"),
                           QStringLiteral("Consolidation: 2\u00a0Mar\u00a0– 5\u00a0Apr\u00a02025"),
                           QStringLiteral("Stabilization: 6\u00a0Apr\u00a02025\u00a0–\u00a0…")}));
}

} // namespace
} // namespace kesto::test
