#include "app/Program.h"

#include "components/Window.h"
#include "platform/LocalNotificationCenter.h"
#include "platform/Platform.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPointer>
#include <QQuickItem>
#include <QScreen>

#include <algorithm>

namespace kesto
{

namespace
{

constexpr QSize phoneSize(390, 844);
constexpr QSize tabletSize(1180, 820);
constexpr QSize smallestSize(320, 480);
constexpr int shorterSideOfTablet = 600;

int shorterSide(const QSize &size) { return std::min(size.width(), size.height()); }

QString resourcesFolder(const QString &asked)
{
    return asked.isEmpty() ? ApplicationServices::resourcesFolderBeside(QCoreApplication::applicationDirPath()) : asked;
}

} // namespace

Program::Program()
    : lifecycle_(ApplicationLifecycle::systemShowsOneProgramAtATime())
{
}

// The drawing stops first; the services stand until the last screen has said what it had to.
Program::~Program()
{
    userInterface_.reset();
    delegate_.reset();
}

std::unique_ptr<Program> Program::start(const Options &options, QString *error)
{
    std::unique_ptr<Program> program(new Program);
    program->services_ = ApplicationServices::open({.dataFolder = options.dataFolder,
                                                    .resourcesFolder = resourcesFolder(options.resourcesFolder),
                                                    .version = QCoreApplication::applicationVersion(),
                                                    .language = options.language,
                                                    .clock = options.clock,
                                                    .random = options.random},
                                                   error);
    if (program->services_ == nullptr)
        return nullptr;
    program->arrangeWindow(options);
    program->userInterface_ =
        std::make_unique<UserInterface>(program->platform()); // first: it reads on while others work
    program->delegate_ = std::make_unique<AppDelegate>(program->platform());
    if (options.reasonNotToStart.isEmpty())
        (void)program->delegate_->application(AppDelegate::LaunchOptions());
    else
        program->delegate_->applicationCannotStart(options.reasonNotToStart);
    program->userInterface_->appearance().followSystem();
    if (!program->userInterface_->load()) {
        *error = QStringLiteral("The interface can't be loaded.");
        return nullptr;
    }
    program->showInterface();
    program->followSystem();
    return program;
}

Window &Program::window() { return platform().shared<Window>(); }

// By the shorter side of the largest window that there is room for. The arrangement stays what it was at the start,
// however the window is resized later.
void Program::arrangeWindow(const Options &options)
{
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    const QSize largest = options.size.isEmpty() ? tabletSize.boundedTo(screen) : options.size;
    const bool isLarge = shorterSide(largest) >= shorterSideOfTablet;
    const Device device = options.device.value_or(isLarge ? Device::Tablet : Device::Phone);
    const QSize wanted = device == Device::Tablet ? tabletSize : phoneSize;
    initialSize_ = options.size.isEmpty() ? wanted.boundedTo(screen) : options.size;
    if (!isLarge && options.size.isEmpty())
        initialSize_ = screen;
    window().setDevice(device == Device::Tablet ? Window::Device::Tablet : Window::Device::Phone);
    window().setSize(initialSize_);
}

void Program::showInterface()
{
    QQuickWindow &shown = view();
    // The first picture need not wait for what is not in it.
    const auto followFirstFrame = [this] {
        QGuiApplication::setWindowIcon(QIcon(platform().resourcesFolder() + QStringLiteral("/images/app_icon.svg")));
        lifecycle_.watchScreenLock();
        desktopSettings_.follow();
        systemCalendar_.follow();
    };
    connect(&shown, &QQuickWindow::frameSwapped, this, followFirstFrame,
            static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    shown.setMinimumSize(smallestSize);
    shown.resize(initialSize_);
    if (initialSize_ == QGuiApplication::primaryScreen()->availableSize())
        shown.showMaximized();
}

void Program::endEditing()
{
    const QPointer<QQuickItem> editor = view().activeFocusItem();
    if (editor == nullptr)
        return;
    editor->setFocus(false);
    if (editor != nullptr)
        editor->setFocus(true);
}

void Program::followSystem()
{
    // First: what others do then includes saving and locking.
    connect(&lifecycle_, &ApplicationLifecycle::didEnterBackground, this, &Program::endEditing);
    connect(&view(), SIGNAL(closing(QQuickCloseEvent *)), this, SLOT(endEditing())); // its event is no public type
    connect(qGuiApp, &QCoreApplication::aboutToQuit, this, &Program::endEditing);
    connect(&systemCalendar_, &SystemCalendar::changed, this,
            [this](const Calendar &calendar) { platform().setCalendar(calendar); });
    connect(&lifecycle_, &ApplicationLifecycle::willEnterForeground, &systemCalendar_, &SystemCalendar::refresh);
    connect(&desktopSettings_, &DesktopSettings::animationsChanged, &userInterface_->appearance(),
            &Appearance::setMotion);
    connect(&lifecycle_, &ApplicationLifecycle::didEnterBackground, delegate_.get(),
            &AppDelegate::applicationDidEnterBackground);
    connect(&lifecycle_, &ApplicationLifecycle::willEnterForeground, delegate_.get(),
            &AppDelegate::applicationWillEnterForeground);
    connect(qGuiApp, &QCoreApplication::aboutToQuit, delegate_.get(), &AppDelegate::applicationWillTerminate);
    connect(delegate_.get(), &AppDelegate::quitRequested, qGuiApp, &QCoreApplication::quit, Qt::QueuedConnection);
    const auto tellNotifications = [this](bool active) { services_->notifications().setApplicationActive(active); };
    connect(&lifecycle_, &ApplicationLifecycle::activeChanged, this, tellNotifications);
    tellNotifications(lifecycle_.isActive());
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, &lifecycle_,
            &ApplicationLifecycle::setApplicationState);
    connect(&view(), &QWindow::visibilityChanged, &lifecycle_, [this](QWindow::Visibility visibility) {
        lifecycle_.setWindowMinimized(visibility == QWindow::Minimized);
    });
}

} // namespace kesto
