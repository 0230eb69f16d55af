#pragma once

#include "ui/Appearance.h"
#include "ui/FirstFrame.h"

#include <QQmlApplicationEngine>
#include <QQmlComponent>

#include <memory>
#include <vector>

class QQuickWindow;

namespace kesto
{

class Platform;

/// The window on the screen: draws the platform's Window, alerts and progress indicator. Made after the application
/// object and the platform, destroyed before them. A thread of its own begins to read what nearly every first picture
/// needs as soon as this is made; what is done before load() costs less then.
class UserInterface
{
public:
    explicit UserInterface(Platform &platform);

    /// To be set before load(), and whenever the person or the platform chooses otherwise.
    [[nodiscard]] Appearance &appearance() { return appearance_; }

    /// Shows the window. False, with the reasons in the log, when the interface cannot be made.
    [[nodiscard]] bool load();
    /// Null before load().
    [[nodiscard]] QQuickWindow *window() const;
    [[nodiscard]] QQmlEngine &engine() { return engine_; }

    /// What every engine that loads the module needs: the import path and the pictures.
    static void prepare(QQmlEngine &engine, const Platform &platform);

private:
    void readAhead();

    Platform &platform_;
    Appearance appearance_;
    FirstFrame firstFrame_;
    QQmlApplicationEngine engine_;
    std::vector<std::unique_ptr<QQmlComponent>> readAhead_;
};

} // namespace kesto
