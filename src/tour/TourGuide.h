#pragma once

#include "app/Program.h"
#include "components/ViewController.h"
#include "components/Window.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <memory>

namespace kesto
{

class Platform;
class RootViewConrollerViewController;

/// Starts a program, opens its screens as a user could, and takes their pictures.
class TourGuide
{
public:
    /// The pictures are called "<prefix>-<number>-<name>.png".
    TourGuide(Program::Options options, QString folder, QString prefix);

    /// Nothing else may be called before it succeeded.
    [[nodiscard]] bool startProgram();
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

    /// Opens the menu on a phone and on a tablet in portrait, where it is closed.
    void openMenu();
    /// Touches a row of the menu.
    void openRow(int row);
    /// Cancels alerts, dismisses presented screens, pops the menu's navigation, closes the menu.
    void goHome();
    /// Runs the event loop for this long.
    void settle(std::chrono::milliseconds time = std::chrono::milliseconds(200));
    /// Runs the event loop until nothing is presented over the main screens. False after a minute.
    [[nodiscard]] bool waitUntilNothingIsPresented();

    /// Saves what the window shows.
    void takePicture(const QString &name);
    /// Makes the tour fail at its end, with this sentence.
    void complain(const QString &sentence) { complaints_.append(sentence); }

    [[nodiscard]] const QStringList &pictures() const { return pictures_; }
    [[nodiscard]] const QStringList &complaints() const { return complaints_; }

private:
    const Program::Options options_;
    const QString folder_;
    const QString prefix_;
    std::unique_ptr<Program> program_;
    int stops_ = 0;
    QStringList pictures_;
    QStringList complaints_;
};

} // namespace kesto
