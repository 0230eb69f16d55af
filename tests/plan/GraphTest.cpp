#include "PlanFixture.h"

#include "model/DietDay.h"
#include "objectgraph/StatementLog.h"
#include "plan/GraphViewController.h"

#include <QDir>

#include <cmath>

namespace kesto::test
{
namespace
{

using Index = QList<qsizetype>;

TEST(WeightGraph, ThinsToAboutSixtyPoints)
{
    struct Row
    {
        qsizetype count;
        qsizetype kept;
        qsizetype first;
        qsizetype last;
    };
    for (const Row &row : {Row{0, 0, 0, 0}, Row{2, 2, 0, 1}, Row{60, 60, 0, 59}, Row{61, 60, 1, 60},
                           Row{100, 60, 40, 99}, Row{120, 60, 60, 119}, Row{121, 61, 0, 120}, Row{150, 75, 0, 148},
                           Row{179, 90, 0, 178}, Row{180, 60, 0, 177}, Row{365, 61, 0, 360}}) {
        const Index kept = thinnedIndices(row.count);
        ASSERT_EQ(kept.size(), row.kept) << row.count;
        EXPECT_EQ(kept.value(0), row.first) << row.count;
        EXPECT_EQ(kept.isEmpty() ? 0 : kept.last(), row.last) << row.count;
    }
}

TEST(WeightGraph, SpacesPointsByIndexAndMapsValuesBetweenTheBounds)
{
    const QRectF area(10, 20, 300, 130);
    struct Row
    {
        double least;
        double most;
        double value;
        double y;
    };
    for (const Row &row : {Row{70, 80, 70, 135}, Row{70, 80, 80, 35}, Row{70, 80, 75, 85}, Row{70, 70, 70, 85},
                           Row{1e-3, 1e9, 1e9, 35}, Row{1e9, 1e9, 1e9, 85}})
        EXPECT_NEAR(GraphScale(area, 5, row.least, row.most).y(row.value), row.y, 0.01);
    const GraphScale scale(area, 4, 0, 1);
    EXPECT_EQ((QList<qreal>{scale.x(0), scale.x(1), scale.x(3)}), (QList<qreal>{10, 110, 310}));
    EXPECT_EQ(GraphScale(area, 1, 0, 1).x(0), 160);
    EXPECT_EQ(
        (Index{scale.nearestIndex(-50), scale.nearestIndex(159), scale.nearestIndex(161), scale.nearestIndex(900)}),
        (Index{0, 1, 2, 3}));
    EXPECT_EQ(GraphScale(area, 0, 0, 1).nearestIndex(10), -1);
}

TEST(WeightGraph, PutsGridLinesAtRoundValues)
{
    const auto check = [](double least, double most, const QList<double> &values, int decimals) {
        const GraphGrid grid = graphGrid(least, most, 5);
        EXPECT_EQ(grid.decimals, decimals) << least;
        ASSERT_EQ(grid.values.size(), values.size()) << least;
        for (qsizetype i = 0; i < values.size(); ++i)
            EXPECT_NEAR(grid.values[i], values[i], 1e-6) << least;
    };
    check(71.3, 80.2, {72, 74, 76, 78, 80}, 0);
    check(77.2, 77.9, {77.2, 77.4, 77.6, 77.8}, 1);
    check(70, 70, {70}, 0);
    check(0.001, 1e9, {0, 2e8, 4e8, 6e8, 8e8, 1e9}, 0);
    check(-5, 5, {-4, -2, 0, 2, 4}, 0);
    EXPECT_TRUE(graphGrid(0, std::numeric_limits<double>::infinity(), 5).values.isEmpty());
}

TEST(WeightGraph, TrendWeighsByTheDaysThatPassed)
{
    const auto at = [](int day, float value) {
        return GraphPoint{QDateTime(QDate(2024, 1, 1).addDays(day), QTime(0, 0), Qt::UTC), value};
    };
    const QList<float> trend = graphTrend({at(0, 80), at(1, 70), at(1, 200), at(8, 79)});
    ASSERT_EQ(trend.size(), 4);
    EXPECT_FLOAT_EQ(trend[1], 79) << "a tenth after a day";
    EXPECT_FLOAT_EQ(trend[2], 79) << "no time passed";
    EXPECT_FLOAT_EQ(trend[3], 79);
    EXPECT_NEAR(graphTrend({at(0, 80), at(7, 70)})[1], 80 - 10 * (1 - std::pow(0.9, 7)), 1e-4);
}

/// Today is 7 March 2024.
struct Graph
{
    explicit Graph(bool metric = true)
        : program({}, metric)
    {
        program.storePlan(program.dayStart(2024, 3, 3), 3, 10, 10);
        program.defaults().setFloat(65, Keys::kIdealWidth);
    }
    DietDay &weigh(int daysAgo, float kilograms)
    {
        const QDateTime date =
            program.calendar().dateByAdding(-daysAgo, Calendar::Unit::Day, program.dayStart(2024, 3, 7));
        auto &day = program.context().insert<DietDay>();
        day.setDate(date);
        day.setWeight(kilograms);
        return day;
    }
    void open()
    {
        ASSERT_TRUE(program.context().save().has_value());
        screen.loadViewIfNeeded();
        screen.loadData();
    }

    PlanFixture program;
    GraphViewController screen;
};

TEST(Graph, ShowsTheWeightsOfTheRangeUpToToday)
{
    Graph at;
    at.weigh(-1, 60); // tomorrow
    at.weigh(0, 77.2F);
    at.weigh(3, 0);
    at.weigh(4, std::numeric_limits<float>::quiet_NaN());
    at.weigh(6, 78);
    at.weigh(7, 90); // at midnight seven days ago, before this time of that day
    at.open();
    EXPECT_EQ(at.screen.values(), (QList<float>{78, 77.2F}));
    EXPECT_EQ(at.screen.minText(), QStringLiteral("Мин: 77.2 кг"));
    EXPECT_EQ(at.screen.maxText(), QStringLiteral("Макс: 78.0 кг"));
    EXPECT_EQ(at.screen.idealText(), QStringLiteral("Ваш идеальный вес: 65.0 кг"));
    EXPECT_EQ(at.screen.periodText(), QStringLiteral("от 01.03 до 07.03"));
    EXPECT_EQ(at.screen.differenceText(), QStringLiteral("-0.8 кг"));
    EXPECT_EQ(at.screen.content().phases, (QList<int>{-1, 1}));

    at.screen.setSelectedRange(1);
    EXPECT_EQ(at.screen.numberOfDates(), 3);
    at.screen.setSelectedRange(7); // no segment: one day
    EXPECT_EQ(at.screen.errorText(), QStringLiteral("Слишком мало данных для построения графика"));
    EXPECT_EQ(at.screen.minText() + at.screen.maxText() + at.screen.idealText() + at.screen.periodText(), QString());
    EXPECT_EQ(at.screen.numberOfDates(), 0);
}

TEST(Graph, ReadsInPoundsAndInches)
{
    Graph at(false);
    at.weigh(1, 80).setWaist(100);
    at.weigh(0, 81).setWaist(90);
    at.open();
    EXPECT_EQ(at.screen.minText(), QStringLiteral("Мин: 176.4 lbs"));
    EXPECT_EQ(at.screen.differenceText(), QStringLiteral("2.2 lbs"));
    at.screen.setSelectedMeasure(1);
    EXPECT_EQ(at.screen.values(), (QList<float>{100, 90}));
    EXPECT_EQ(at.screen.differenceText(), QStringLiteral("-3.9 ″"));
    EXPECT_EQ(at.screen.idealText(), QString()) << "the ideal is a weight";
}

TEST(Graph, OffersAGirthWithTwoValuesAndFallsBackToTheWeight)
{
    Graph at;
    at.weigh(20, 80).setHip(100);
    at.weigh(1, 79).setHip(99);
    at.weigh(0, 78).setChest(90);
    at.open();
    EXPECT_EQ(at.screen.measureTitles(), QStringList{QStringLiteral("Вес")});
    at.screen.setSelectedRange(1);
    EXPECT_EQ(at.screen.measureTitles(), (QStringList{QStringLiteral("Вес"), QStringLiteral("Бёдра")}));
    at.screen.setSelectedMeasure(1);
    EXPECT_EQ(at.screen.values(), (QList<float>{100, 99}));
    at.screen.setSelectedRange(0);
    EXPECT_EQ(at.screen.selectedMeasure(), 0);
    EXPECT_EQ(at.screen.values(), (QList<float>{79, 78}));
}

TEST(Graph, ComparesAPointWithTheWeekBeforeOrTheValueBefore)
{
    Graph at;
    at.weigh(10, 79);
    at.weigh(7, 78);
    at.weigh(2, 77.5F);
    at.weigh(0, 77.2F);
    at.open();
    at.screen.moveSelection(-1);
    EXPECT_EQ(at.screen.selectedPoint(), 1) << "the first key begins at the latest point";
    EXPECT_EQ(at.screen.spokenText(), QStringLiteral("07 марта, 77.2 кг, на 0.8 меньше, чем неделю назад"));
    at.screen.moveSelection(-5);
    EXPECT_EQ(at.screen.spokenText(), QStringLiteral("05 марта, 77.5 кг, на 0.5 меньше, чем 29 февраля"));
    at.screen.setSelectedPoint(9);
    EXPECT_EQ(at.screen.selectedPoint(), -1);
}

TEST(Graph, RemembersTheTrendAndComputesItFromBeforeTheRange)
{
    Graph at;
    for (int day = 0; day < 30; ++day)
        at.weigh(day, 70 + static_cast<float>(day));
    at.open();
    EXPECT_TRUE(at.screen.content().trend.isEmpty());
    at.screen.setTrendShown(true);
    const QList<float> week = at.screen.content().trend;
    ASSERT_EQ(week.size(), 7);
    at.screen.setSelectedRange(1);
    EXPECT_EQ(at.screen.content().trend.last(), week.last());
    EXPECT_TRUE(GraphViewController().isTrendShown());
}

TEST(Graph, AChangeOfTheRangeTakesOneStatementHoweverManyDaysThereAre)
{
    StatementLog log; // sees connections that are opened during its life
    Graph at;
    for (int day = 0; day < 800; ++day)
        at.weigh(day, 70);
    at.open();
    for (const int range : {1, 2, 0}) {
        (void)log.take();
        at.screen.setSelectedRange(range);
        EXPECT_LE(log.count(), 1) << range;
    }
}

TEST(Graph, SavesPicturesUnderNamesOfTheirOwn)
{
    Graph at;
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::green);
    const QDir folder(at.program.platform.platform().picturesFolder());
    for (int i = 0; i < 2; ++i)
        at.screen.takePicture(picture, GraphViewController::Destination::File);
    ASSERT_EQ(folder.entryList(QDir::Files),
              (QStringList{QStringLiteral("kesto-2024-03-07-2.png"), QStringLiteral("kesto-2024-03-07.png")}));
    EXPECT_EQ(QImage(folder.filePath(QStringLiteral("kesto-2024-03-07.png"))), picture);
}

} // namespace
} // namespace kesto::test
