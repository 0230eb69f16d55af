#pragma once

#include "app/CommandLine.h"

namespace kesto
{

/// Saves a picture of every stop for each device in each language, every one of these parts in a process of its own,
/// and prints the files. The exit code of the program. Wants a QCoreApplication.
[[nodiscard]] int runTour(const CommandLine &line);

/// One part, in this process. Wants a QGuiApplication.
[[nodiscard]] int runTourPart(const CommandLine &line);

} // namespace kesto
