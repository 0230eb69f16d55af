#pragma once

#include "components/ViewController.h"
#include "components/Window.h"

#include <QString>
#include <QStringList>

#include <chrono>

namespace kesto
{

class Platform;
class Program;
class RootViewConrollerViewController;

/// Leads through the screens of a running program, by what a person could do, and takes their pictures.
class TourGuide
{
public:
    /// The pictures are called "<prefix>-<number>-<name>.png".
    TourGuide(Program &program, QString folder, QString prefix);

    [[nodiscard]] Platform &platform();
    [[nodiscard]] Window &window();
    [[nodiscard]] RootViewConrollerViewController &menu();
    /// The screen of a kind that was opened last; null without one.
    template <class Screen>
    [[nodiscard]] Screen *screenOf()
    {
        const QList<Screen *> found = window().rootViewController()->findChildren<Screen *>();
        return found.isEmpty() ? nullptr : found.last();
    }

    /// Brings the menu in on a phone; on a tablet in portrait as well.
    void openMenu();
    /// Touches a row of the menu.
    void openRow(int row);
    /// Answers alerts, leaves what is presented and pushed in the menu, closes the menu.
    void goHome();
    /// Lets the program run until nothing moves any more.
    void settle(std::chrono::milliseconds time = std::chrono::milliseconds(200));
    /// Lets it run until nothing is presented over the main screens; false when that takes more than a minute.
    [[nodiscard]] bool waitUntilNothingIsPresented();

    /// Saves what the window shows.
    void takePicture(const QString &name);

    [[nodiscard]] const QStringList &pictures() const { return pictures_; }
    /// The pictures that could not be saved.
    [[nodiscard]] const QStringList &failures() const { return failures_; }

private:
    Program &program_;
    const QString folder_;
    const QString prefix_;
    QStringList pictures_;
    QStringList failures_;
};

} // namespace kesto
