#include "app/AppFixture.h"

#include "components/NavigationController.h"
#include "components/SideMenuContainer.h"

#include <QCoreApplication>

#include <utility>

namespace kesto::test
{

AppFixture::AppFixture(TestPlatform::Options options)
    : platform_(std::move(options))
{
    defaults().setValue(platform_.platform().version(), Keys::kAppVersionKey);
}

AppFixture::~AppFixture() { quit(); }

AppDelegate &AppFixture::launch(const QSizeF &size, const AppDelegate::LaunchOptions &options)
{
    window().setSize(size);
    delegate_ = std::make_unique<AppDelegate>(platform_.platform());
    EXPECT_TRUE(delegate_->application(options));
    return *delegate_;
}

void AppFixture::quit()
{
    delegate_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void AppFixture::restart(const QString &version)
{
    quit();
    platform_.restart(version);
}

void AppFixture::startDiet() { defaults().setValue(platform_.date(2024, 3, 1), Keys::kStartDietDateKey); }

ViewController *AppFixture::mainScreen()
{
    ViewController *content = nullptr;
    if (auto *phoneRoot = qobject_cast<SideMenuContainer *>(window().rootViewController()))
        content = phoneRoot->centerViewController();
    else if (auto *tabletRoot = qobject_cast<SplitViewController *>(window().rootViewController()))
        content = tabletRoot->detail();
    auto *stack = qobject_cast<NavigationController *>(content);
    return stack != nullptr ? stack->rootViewController() : nullptr;
}

QString AppFixture::alertMessage()
{
    const ShownAlert *alert = AlertCenter::sharedCenter().current();
    return alert != nullptr ? alert->message() : QString();
}

void AppFixture::answerAlert(const QString &onlyButton)
{
    ShownAlert *alert = AlertCenter::sharedCenter().current();
    ASSERT_NE(alert, nullptr);
    EXPECT_EQ(alert->buttonTitles(), QStringList(onlyButton));
    alert->answer(0);
}

void AppFixture::turnEventLoop()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace kesto::test
