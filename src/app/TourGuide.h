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

/// Starts a program, leads through its screens by what a person could do, and takes their pictures.
class TourGuide
{
public:
    /// The pictures are called "<prefix>-<number>-<name>.png".
    TourGuide(Program::Options options, QString folder, QString prefix);

    /// Starts the program; one that runs is ended first, without a word to it. Without a program nothing else may be
    /// asked for.
    [[nodiscard]] bool startProgram();
    [[nodiscard]] bool hasProgram() const { return program_ != nullptr; }
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
    /// Something is not as it should be: the tour fails in the end.
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
