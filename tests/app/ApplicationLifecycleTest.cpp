#include "app/ApplicationLifecycle.h"

#include <gtest/gtest.h>

#include <QList>
#include <QStringList>

namespace kesto::test
{

namespace
{

/// What the lifecycle told, in order.
class Record
{
public:
    explicit Record(ApplicationLifecycle &lifecycle)
    {
        QObject::connect(&lifecycle, &ApplicationLifecycle::didEnterBackground, &context_,
                         [this] { told_.append(QStringLiteral("background")); });
        QObject::connect(&lifecycle, &ApplicationLifecycle::willEnterForeground, &context_,
                         [this] { told_.append(QStringLiteral("foreground")); });
        QObject::connect(&lifecycle, &ApplicationLifecycle::activeChanged, &context_, [this](bool active) {
            told_.append(active ? QStringLiteral("active") : QStringLiteral("inactive"));
        });
    }
    std::string take() { return std::exchange(told_, {}).join(u' ').toStdString(); }

private:
    QObject context_;
    QStringList told_;
};

TEST(ApplicationLifecycleTest, ADesktopsWindowIsGoneWhenMinimisedOrTheScreenIsLocked)
{
    ApplicationLifecycle lifecycle(false);
    Record record(lifecycle);
    lifecycle.setApplicationState(Qt::ApplicationInactive);
    EXPECT_EQ(record.take(), "inactive") << "another window beside it is no background";
    lifecycle.setWindowMinimized(true);
    EXPECT_EQ(record.take(), "background");
    lifecycle.setScreenLocked(true);
    lifecycle.setWindowMinimized(false);
    EXPECT_EQ(record.take(), "") << "still out of sight";
    lifecycle.setScreenLocked(false);
    EXPECT_EQ(record.take(), "foreground");
    lifecycle.setApplicationState(Qt::ApplicationActive);
    EXPECT_EQ(record.take(), "active");
    EXPECT_TRUE(lifecycle.isActive());
}

TEST(ApplicationLifecycleTest, APhonesProgramIsGoneByItsState)
{
    ApplicationLifecycle lifecycle(false);
    Record record(lifecycle);
    for (const Qt::ApplicationState gone : {Qt::ApplicationSuspended, Qt::ApplicationHidden}) {
        lifecycle.setApplicationState(gone);
        EXPECT_EQ(record.take(), "inactive background");
        lifecycle.setApplicationState(Qt::ApplicationActive);
        EXPECT_EQ(record.take(), "active foreground");
    }

    ApplicationLifecycle oneAtATime(true);
    Record shell(oneAtATime);
    oneAtATime.setApplicationState(Qt::ApplicationInactive);
    EXPECT_EQ(shell.take(), "inactive background");
    oneAtATime.setApplicationState(Qt::ApplicationSuspended);
    EXPECT_EQ(shell.take(), "");
    oneAtATime.setApplicationState(Qt::ApplicationActive);
    EXPECT_EQ(shell.take(), "active foreground");
}

TEST(ApplicationLifecycleTest, KnowsThePhonesShells)
{
    struct Case
    {
        const char *desktop;
        const char *mobile;
        bool phone;
    };
    for (const Case &each : {Case{"GNOME", "", false}, Case{"Phosh:GNOME", "", true}, Case{"KDE", "1", true},
                             Case{"KDE", "0", false}, Case{"KDE", "true", true}, Case{"", "", false}}) {
        qputenv("XDG_CURRENT_DESKTOP", each.desktop);
        qputenv("QT_QUICK_CONTROLS_MOBILE", each.mobile);
        EXPECT_EQ(ApplicationLifecycle::systemShowsOneProgramAtATime(), each.phone) << each.desktop << each.mobile;
    }
}

} // namespace

} // namespace kesto::test
