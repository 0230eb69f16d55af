#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace kesto
{

enum class Device { Phone, Tablet };

/// What the user asked for when starting the program.
struct CommandLine
{
    enum class Action { Run, ShowHelp, ShowVersion, Tour, Refuse };
    /// What the program ends with when it can't do with what it was given.
    static constexpr int wrongArguments = 2;

    Action action = Action::Run;
    QString error;                ///< why the arguments are refused, for the user
    QString dataFolder;           ///< empty: the platform's own
    QString language;             ///< "ru", "en", or empty
    std::optional<Device> device; ///< nothing: by the size of the screen
    QString tourFolder;
    QString tourPart; ///< one device in one language, as the tour starts it for itself; empty: all of them

    /// arguments without the program's name.
    [[nodiscard]] static CommandLine parse(const QStringList &arguments);
    [[nodiscard]] static QString help();
};

} // namespace kesto
