#include <gmock/gmock.h>

#include <QAccessible>
#include <QGuiApplication>

int main(int argc, char **argv)
{
    testing::InitGoogleMock(&argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral("1.0"));
    const QGuiApplication application(argc, argv);
    QAccessible::setActive(true);
    return RUN_ALL_TESTS();
}
