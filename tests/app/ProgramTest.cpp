#include "support/Printing.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

namespace kesto::test
{

namespace
{

class ProgramRun
{
public:
    explicit ProgramRun(const QStringList &arguments, const QStringList &unset = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString &name : unset)
            environment.remove(name);
        process_.setProcessEnvironment(environment);
        process_.start(QStringLiteral(KESTO_PROGRAM), arguments);
        process_.waitForStarted();
    }
    ~ProgramRun()
    {
        if (process_.state() != QProcess::NotRunning) {
            process_.kill();
            process_.waitForFinished();
        }
    }

    /// −1 when it crashed or is still running after two minutes.
    int exitCode()
    {
        const bool ended = process_.state() == QProcess::NotRunning || process_.waitForFinished(120'000);
        return ended && process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
    }
    QString output() { return QString::fromUtf8(process_.readAllStandardOutput()); }
    QString errors() { return QString::fromUtf8(process_.readAllStandardError()); }
    [[nodiscard]] bool isRunning() const { return process_.state() == QProcess::Running; }

private:
    QProcess process_;
};

TEST(ProgramTest, TellsItsVersionAndItsOptionsWithoutADisplay)
{
    const QStringList display{QStringLiteral("DISPLAY"), QStringLiteral("WAYLAND_DISPLAY"),
                              QStringLiteral("WAYLAND_SOCKET"), QStringLiteral("QT_QPA_PLATFORM")};
    ProgramRun version({QStringLiteral("--version")}, display);
    EXPECT_EQ(version.exitCode(), 0);
    EXPECT_TRUE(version.output().startsWith(QStringLiteral("kesto ")));
    ProgramRun help({QStringLiteral("--help")}, display);
    EXPECT_EQ(help.exitCode(), 0);
    EXPECT_TRUE(help.output().contains(QStringLiteral("--data-dir")));
    ProgramRun plain({}, display);
    EXPECT_EQ(plain.exitCode(), 1);
    EXPECT_TRUE(plain.errors().contains(QStringLiteral("no display")));
}

TEST(ProgramTest, WrongArgumentsEndItWithTwo)
{
    for (const QStringList &arguments : {QStringList{QStringLiteral("--colour")},
                                         {QStringLiteral("--language"), QStringLiteral("de")},
                                         {QStringLiteral("today")}}) {
        ProgramRun run(arguments);
        EXPECT_EQ(run.exitCode(), 2) << arguments.join(u' ').toStdString();
        EXPECT_TRUE(run.errors().startsWith(QStringLiteral("kesto: ")));
        EXPECT_EQ(run.output(), QString());
    }
}

TEST(ProgramTest, AFolderThatCannotBeUsedEndsItWithTwo)
{
    const QTemporaryDir root;
    const QString file = root.filePath(QStringLiteral("file"));
    ASSERT_TRUE(QFile(file).open(QFile::WriteOnly));
    for (const QString &option : {QStringLiteral("--data-dir"), QStringLiteral("--tour")}) {
        for (const QString &folder : {file, file + QStringLiteral("/below"), QStringLiteral("/proc/kesto")}) {
            ProgramRun run({option, folder});
            EXPECT_EQ(run.exitCode(), 2) << option.toStdString() << " " << folder.toStdString();
            EXPECT_TRUE(run.errors().contains(folder)) << run.errors().toStdString();
        }
    }
}

TEST(ProgramTest, ASecondStartOnOneFolderIsRefused)
{
    const QTemporaryDir root;
    const QString folder = root.filePath(QStringLiteral("data"));
    const QStringList arguments{QStringLiteral("--data-dir"), folder};
    ProgramRun first(arguments);
    QElapsedTimer waited;
    waited.start();
    while (!QFile::exists(folder + QStringLiteral("/Documents/Diet.sqlite")) && first.isRunning() &&
           !waited.hasExpired(60'000))
        QThread::msleep(50);
    ASSERT_TRUE(first.isRunning()) << first.errors().toStdString();
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext())
        EXPECT_FALSE(QFile::permissions(files.next()) & (QFile::ReadOther | QFile::ReadGroup))
            << files.filePath().toStdString();
    ProgramRun second(arguments);
    EXPECT_EQ(second.exitCode(), 1);
    EXPECT_TRUE(second.errors().contains(folder)) << second.errors().toStdString();
    EXPECT_TRUE(first.isRunning());
}

TEST(ProgramTest, TheTourTakesPicturesOfItsSize)
{
    const QTemporaryDir root;
    ProgramRun run({QStringLiteral("--tour"), root.filePath(QStringLiteral("new/pictures")), QStringLiteral("--device"),
                    QStringLiteral("phone"), QStringLiteral("--language"), QStringLiteral("en")},
                   {QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("DISPLAY")});
    ASSERT_EQ(run.exitCode(), 0) << run.errors().toStdString();
    EXPECT_FALSE(run.errors().contains(QStringLiteral("interface: "))) << "a view complains";
    const QStringList files = run.output().split(u'\n', Qt::SkipEmptyParts);
    EXPECT_GT(files.size(), 15);
    QList<QImage> pictures;
    for (const QString &file : files) {
        EXPECT_TRUE(QFileInfo(file).fileName().startsWith(QStringLiteral("phone-en-"))) << file.toStdString();
        pictures.append(QImage(file));
        EXPECT_EQ(pictures.last().size(), QSize(390, 844));
    }
    EXPECT_EQ(QDir(root.filePath(QStringLiteral("new/pictures"))).entryList(QDir::Files).size(), files.size());
    EXPECT_NE(pictures[0], pictures[1]) << "the preparation is over when the second is taken";
    EXPECT_NE(pictures[1], pictures[2]) << "the menu is open in the third";
}

} // namespace

} // namespace kesto::test
