#include "objectgraph/StoreProcess.h"

#include "objectgraph/GraphTest.h"

#include <QCoreApplication>
#include <QFile>

#include <random>
#include <unistd.h>

namespace kesto::test
{

namespace
{

constexpr int kLong = 30'000;

class StoreProcessTest : public GraphTest
{
protected:
    StoreProcessTest()
    {
        graph_.reset();
        QFile::remove(path());
    }

    /// Opens what a killed process left and checks that every save up to one is there, whole; at most one more can be,
    /// which was not acknowledged any more. Gives the number of the last.
    static qint64 checkSaves(const QString &file, qint64 acknowledged)
    {
        OpenGraph graph(file);
        EXPECT_TRUE(graph.attached) << graph.error.message().toStdString();
        const auto counters = graph.fetch("Person");
        const qint64 number = counters.empty() ? 0 : get(*counters.front(), "age").toLongLong();
        EXPECT_TRUE(number == acknowledged || number == acknowledged + 1) << number << " of " << acknowledged;
        const auto rows = graph.fetch("Pet", {.fetchBatchSize = 1000});
        EXPECT_EQ(static_cast<qint64>(rows.size()), number);
        if (!rows.empty()) {
            EXPECT_EQ(get(*rows.back(), "name").toString(), QString::number(number));
            EXPECT_EQ(one(*rows.back(), "owner"), counters.front());
        }
        return number;
    }

    std::mt19937 random_{20240307};
    int pick(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
};

TEST_F(StoreProcessTest, ASecondProcessIsRefusedWhileTheFirstHoldsTheFile)
{
    StoreProcess first("hold", path());
    ASSERT_EQ(first.next(kLong), 0);
    OpenGraph here(path());
    EXPECT_FALSE(here.attached);
    EXPECT_TRUE(here.error.message().contains(QStringLiteral("in use"))) << here.error.message().toStdString();
    StoreProcess second("hold", path());
    EXPECT_EQ(second.next(kLong), -1);
    EXPECT_EQ(second.wait(), 3);
    first.kill();
    StoreProcess third("hold", path());
    EXPECT_EQ(third.next(kLong), 0);
}

TEST_F(StoreProcessTest, KilledTwoHundredTimesItKeepsEveryAcknowledgedSave)
{
    qint64 number = 0;
    qint64 acknowledgedSaves = 0;
    for (int round = 0; round < 200; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        StoreProcess child("save", path());
        qint64 acknowledged = number;
        if (round % 10 != 0) { // else killed while it starts
            ASSERT_EQ(child.next(kLong), 0);
            for (int saves = pick(8); saves > 0; --saves)
                ASSERT_TRUE(child.next(kLong));
        }
        ::usleep(static_cast<unsigned>(pick(round % 20 == 1 ? 150'000 : 12'000)));
        acknowledged = std::max(acknowledged, child.kill());
        acknowledgedSaves += acknowledged - number;
        number = checkSaves(path(), acknowledged);
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_GT(acknowledgedSaves, 800);
    RecordProperty("acknowledgedSaves", std::to_string(acknowledgedSaves));
    OpenGraph graph(path());
    for (qint64 i = 0; const ManagedObject *row : graph.fetch("Pet"))
        ASSERT_EQ(get(*row, "name").toString(), QString::number(++i));
}

TEST_F(StoreProcessTest, KilledInAMoveItLeavesOneCompleteFile)
{
    QString source = path("a.sqlite"), target = path("b.sqlite");
    {
        OpenGraph graph(source);
        ManagedObject &counter = graph.insert("Person", {{"age", 0}});
        Q_UNUSED(counter)
        for (int i = 0; i < 15; ++i)
            graph.insert("Passport", {{"name", QString(500'000, u'ж')}});
        ASSERT_TRUE(graph.save());
    }
    qint64 number = 0;
    const struct
    {
        const char *death;
        int mostWrites;
        bool moves;
    } table[] = {
        {"duringMove", 3'000, false}, // the passports alone are more pages than that
        {"rename", 1, true},
        {"afterMove", 2 * kSavesAfterMove, true}, // a save writes more than two pieces
    };
    for (int round = 0; round < 30; ++round) {
        const auto &[death, mostWrites, moves] = table[round % 3];
        const int writes = 1 + pick(mostWrites);
        SCOPED_TRACE("round " + std::to_string(round) + ", " + death + ' ' + std::to_string(writes));
        StoreProcess child("move", source, target, death, writes);
        ASSERT_EQ(child.next(kLong), 0);
        while (child.next(kLong)) {
        }
        EXPECT_EQ(child.wait(), -1) << "it ended by itself";
        const qint64 acknowledged = std::max(number, child.kill());
        // The target appears complete or not at all.
        ASSERT_EQ(QFile::exists(target), moves);
        if (moves) {
            std::swap(source, target);
            checkSaves(source, acknowledged);
            QFile::remove(target);
            QFile::remove(target + QStringLiteral("-wal"));
        }
        number = checkSaves(source, acknowledged);
        OpenGraph graph(source);
        ASSERT_EQ(graph.fetch("Passport").size(), 15U);
        ASSERT_FALSE(HasFailure());
    }
    // The next move clears away what the killed ones left.
    StoreProcess last("move", source, target);
    while (last.next(kLong)) {
    }
    EXPECT_EQ(last.wait(), 0);
    EXPECT_EQ(files(), (QStringList{QStringLiteral("a.sqlite"), QStringLiteral("b.sqlite")}));
}

} // namespace

} // namespace kesto::test

int main(int argc, char **argv)
{
    if (argc == 7)
        return kesto::test::runStoreProcess(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
