#include "tour/TourGuide.h"

#include "app/RootViewConrollerViewController.h"
#include "components/AlertCenter.h"
#include "components/NavigationController.h"
#include "components/PopoverController.h"
#include "components/SideMenuContainer.h"
#include "components/SplitViewController.h"
#include "components/Window.h"
#include "ui/Appearance.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QQuickWindow>
#include <QTimer>

#include <utility>

namespace kesto
{

TourGuide::TourGuide(Program::Options options, QString folder, QString prefix)
    : options_(std::move(options))
    , folder_(std::move(folder))
    , prefix_(std::move(prefix))
{
}

bool TourGuide::startProgram()
{
    QString error;
    program_ = Program::start(options_, &error);
    if (program_ == nullptr) {
        complain(error);
        return false;
    }
    program_->userInterface().appearance().setMotion(false);
    return true;
}

Platform &TourGuide::platform() { return program_->platform(); }

Window &TourGuide::window() { return program_->window(); }

RootViewConrollerViewController &TourGuide::menu() { return *program_->delegate().rootMenu(); }

void TourGuide::openMenu()
{
    if (auto *container = menu().enclosing<SideMenuContainer>(); container != nullptr)
        container->setMenuOpen(true);
    else if (auto *split = menu().enclosing<SplitViewController>(); split != nullptr && split->isMasterHidden())
        split->setMenuPopoverOpen(true);
}

void TourGuide::openRow(int row)
{
    openMenu();
    menu().selectRow(0, row);
}

void TourGuide::goHome()
{
    while (ShownAlert *alert = AlertCenter::sharedCenter().current())
        alert->answer(std::max(alert->cancelButtonIndex(), 0));
    for (PopoverController *popover : window().popovers())
        popover->dismiss();
    if (ViewController *root = window().rootViewController(); root->presentedViewController() != nullptr)
        root->dismissViewController(false);
    menu().navigationController()->popToRootViewController(false);
    if (auto *container = menu().enclosing<SideMenuContainer>(); container != nullptr)
        container->setMenuOpen(false);
    if (auto *split = menu().enclosing<SplitViewController>(); split != nullptr)
        split->setMenuPopoverOpen(false);
}

void TourGuide::settle(std::chrono::milliseconds time)
{
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

bool TourGuide::waitUntilNothingIsPresented()
{
    QElapsedTimer waited;
    waited.start();
    while (!window().presentedViewControllers().isEmpty()) {
        if (waited.hasExpired(60'000))
            return false;
        settle(std::chrono::milliseconds(50));
    }
    return true;
}

void TourGuide::takePicture(const QString &name)
{
    settle();
    const QString file =
        QStringLiteral("%1/%2-%3-%4.png").arg(folder_, prefix_).arg(++stops_, 2, 10, QLatin1Char('0')).arg(name);
    const QImage image = program_->view().grabWindow();
    if (!image.isNull() && image.save(file))
        pictures_.append(file);
    else
        complain(QStringLiteral("The picture %1 can't be saved.").arg(file));
}

} // namespace kesto
