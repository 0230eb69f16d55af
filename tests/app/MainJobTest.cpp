#include "app/MainJob.h"

#include "app/MainJobJornal.h"
#include "app/Person.h"
#include "app/Program.h"
#include "model/DietDay.h"
#include "platform/Platform.h"
#include "recipes/FavoritesManager.h"
#include "store/CoreDataManager.h"
#include "support/FakeClock.h"

#include <QCoreApplication>
#include <QProcess>
#include <QQuickWindow>
#include <QTemporaryDir>

namespace kesto::test
{

namespace
{

class MainJobTest : public testing::TestWithParam<MainJob>
{
};

/// What the killed process printed behind a word.
QStringList printed(const QString &output, const QString &word)
{
    for (const QString &line : output.split(u'\n')) {
        if (line.startsWith(word + u' '))
            return line.mid(word.size() + 1).split(u'|');
    }
    return {};
}

TEST_P(MainJobTest, EverythingIsThereAfterAKill)
{
    const QTemporaryDir root;
    const QString folder = root.filePath(QStringLiteral("data"));
    QProcess killed;
    killed.start(QCoreApplication::applicationFilePath(), {QLatin1String(GetParam().name), folder});
    ASSERT_TRUE(killed.waitForFinished(150'000));
    const QString output = QString::fromUtf8(killed.readAllStandardOutput());
    const QStringList plan = printed(output, QStringLiteral("PLAN"));
    ASSERT_EQ(plan.size(), 6) << output.toStdString() << killed.readAllStandardError().toStdString();
    ASSERT_EQ(killed.exitStatus(), QProcess::CrashExit);

    FakeClock clock(mainJobNow());
    QString error;
    const std::unique_ptr<Program> program = Program::start({.dataFolder = folder,
                                                             .resourcesFolder = QStringLiteral(KESTO_SHARE),
                                                             .language = QStringLiteral("ru"),
                                                             .device = GetParam().device,
                                                             .size = GetParam().size,
                                                             .clock = &clock},
                                                            &error);
    ASSERT_NE(program, nullptr) << error.toStdString();
    const Person user(program->view());
    ASSERT_TRUE(user.waitsToSee(QAccessible::Heading, QStringLiteral("Календарь диеты")));
    EXPECT_TRUE(user.waitsToSee(QAccessible::Button, QStringLiteral("2 марта 2026, Атака, Ч/Б")));
    EXPECT_TRUE(user.waitsToSee(QAccessible::ListItem, plan[0]));
    EXPECT_EQ(plannedDishes(), plan);
    EXPECT_EQ(shoppingList(), printed(output, QStringLiteral("LIST")));
    EXPECT_EQ(shoppingList().filter(QStringLiteral("*")).size(), 2);
    EXPECT_EQ(figures(), printed(output, QStringLiteral("FIGURES")));
    EXPECT_TRUE(figures().contains(QStringLiteral("Вес=92.0 кг"))) << figures().join(u'|').toStdString();
    EXPECT_EQ(FavoritesManager::sharedManager().dishesIDS(), printed(output, QStringLiteral("LIKED")));
    EXPECT_EQ(FavoritesManager::sharedManager().favoritiesDishes().size(), 1U);
    const QStringList journal = journalOfToday();
    EXPECT_EQ(journal, printed(output, QStringLiteral("JOURNAL")));
    EXPECT_EQ(journal.filter(QStringLiteral(" done")).size(), 2);
    EXPECT_EQ(journal.filter(QStringLiteral("reminds 2026-03-02 17:00:00 +0000")).size(), 1);
    EXPECT_TRUE(journal.contains(QStringLiteral("notification 2026-03-02 17:00:00 +0000 Пора на пробежку")));
    EXPECT_EQ(journal.filter(QStringLiteral("drink 2")).size(), 1);
    EXPECT_EQ(journal.filter(QStringLiteral("food ")).size(), 3);
    EXPECT_TRUE(journal.constLast().startsWith(QStringLiteral("timer 2026-03-02"))) << journal.join(u'|').toStdString();
    const DietDay *day = DietDay::dayWithoutCreation(program->platform().calendar().startOfDay(QDate(2026, 3, 2)),
                                                     *CoreDataManager::sharedManager().managedObjectContext());
    ASSERT_NE(day, nullptr);
    EXPECT_EQ(day->weight(), 91.0F);
    EXPECT_EQ(day->chB(), true);
}

INSTANTIATE_TEST_SUITE_P(Devices, MainJobTest, testing::ValuesIn(mainJobs),
                         [](const auto &job) { return std::string(job.param.name); });

} // namespace

} // namespace kesto::test
