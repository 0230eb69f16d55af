#include "PlanFixture.h"

#include "plan/DietPeriodsSelector.h"
#include "recipes/PeriodSelectorViewController.h"

namespace kesto::test
{
namespace
{

struct PeriodAnswer : PeriodSelectorDelegate
{
    void updateToPeriod(int period) override { answers.append(period); }
    QList<int> answers;
};

TEST(PeriodSelector, AnswersTheRow)
{
    PlanFixture program;
    PeriodAnswer answer;
    PeriodSelectorViewController selector(2, &answer);
    selector.loadViewIfNeeded();
    QStringList titles;
    for (int row = 0; row < 5; ++row) {
        const TableRow &shown = selector.table()->rowAt({0, row});
        titles.append(shown.title);
        EXPECT_EQ(shown.accessory == TableRow::Accessory::Checkmark, row == 2);
    }
    for (int row = 0; row < 5; ++row)
        selector.selectRow(0, row);
    EXPECT_EQ(titles, texts({"Все", "Атака", "Круиз", "Консол.", "Стаб."}));
    EXPECT_EQ(answer.answers, QList<int>({0, 1, 2, 3, 4}));
}

TEST(DietPeriodsSelector, AlwaysHoldsStabilization)
{
    PlanFixture program;
    DietPeriodsSelector selector;
    EXPECT_EQ(selector.selectedPeriods(), QStringLiteral("3"));
    for (const auto &[touched, periods] :
         {std::pair(0, "0, 3"), std::pair(2, "0, 2, 3"), std::pair(3, "0, 2, 3"), std::pair(1, "0, 1, 2, 3"),
          std::pair(0, "1, 2, 3"), std::pair(4, "1, 2, 3"), std::pair(-1, "1, 2, 3")}) {
        selector.buttonTouched(touched);
        EXPECT_EQ(selector.selectedPeriods(), QLatin1String(periods));
    }
    EXPECT_EQ(selector.index(0).data(DietPeriodsSelector::ImageRole), QStringLiteral("period_0.png"));
    EXPECT_EQ(selector.index(3).data(DietPeriodsSelector::ImageRole), QStringLiteral("period_3_s.png"));
    EXPECT_EQ(selector.index(0).data(DietPeriodsSelector::PressedImageRole), QStringLiteral("period_0_s.png"));
    EXPECT_EQ(selector.index(3).data(DietPeriodsSelector::TitleRole), QStringLiteral("Стабилизация"));
}

} // namespace
} // namespace kesto::test
