#pragma once

#include "app/AppDelegate.h"
#include "app/ApplicationLifecycle.h"
#include "app/ApplicationServices.h"
#include "app/CommandLine.h"
#include "platform/DesktopSettings.h"
#include "platform/SystemCalendar.h"
#include "ui/UserInterface.h"

#include <QQuickWindow>
#include <QSize>

#include <memory>
#include <optional>

namespace kesto
{

class Window;

/// The running program: the services, the screens over them, and the window that draws the screens. Wants a
/// QGuiApplication.
class Program : public QObject
{
    Q_OBJECT
public:
    struct Options
    {
        QString dataFolder;
        QString resourcesFolder;      ///< empty: beside the program
        QString language;             ///< empty: see ApplicationServices
        std::optional<Device> device; ///< nothing: by the window's shorter side
        QSize size;                   ///< of the window; empty: as the screen allows
        Clock *clock = nullptr;       ///< see ApplicationServices
        RandomSource *random = nullptr;
        QString reasonNotToStart; ///< when set, the program only shows this text and quits
    };

    /// Null when the program can't start; error then holds a sentence for the user.
    [[nodiscard]] static std::unique_ptr<Program> start(const Options &options, QString *error);
    ~Program() override;

    [[nodiscard]] AppDelegate &delegate() { return *delegate_; }
    [[nodiscard]] Platform &platform() { return services_->platform(); }
    /// The screens.
    [[nodiscard]] Window &window();
    /// What draws them.
    [[nodiscard]] UserInterface &userInterface() { return *userInterface_; }
    [[nodiscard]] QQuickWindow &view() { return *userInterface_->window(); }

private:
    Program();
    void arrangeWindow(const Options &options);
    void showInterface();
    void followSystem();
    /// A field tells what was typed into it; it keeps the keys.
    Q_SLOT void endEditing();

    std::unique_ptr<ApplicationServices> services_;
    std::unique_ptr<AppDelegate> delegate_;
    ApplicationLifecycle lifecycle_;
    DesktopSettings desktopSettings_;
    SystemCalendar systemCalendar_;
    std::unique_ptr<UserInterface> userInterface_;
    QSize initialSize_;
};

} // namespace kesto
