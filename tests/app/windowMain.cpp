#include "app/MainJob.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QGuiApplication>

int main(int argc, char **argv)
{
    testing::InitGoogleMock(&argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral("1.0"));
    const QGuiApplication application(argc, argv);
    QAccessible::setActive(true);
    if (argc == 3) { // the process that a test starts to have it killed: a device and a folder
        testing::GTEST_FLAG(throw_on_failure) = true;
        for (const kesto::test::MainJob &job : kesto::test::mainJobs) {
            if (QLatin1String(job.name) == QString::fromLocal8Bit(argv[1]))
                kesto::test::liveThroughMainJob(job, QString::fromLocal8Bit(argv[2]));
        }
        return 1;
    }
    return RUN_ALL_TESTS();
}
