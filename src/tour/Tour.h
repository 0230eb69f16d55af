#pragma once

#include "app/CommandLine.h"

namespace kesto
{

/// Saves a picture of every screen for each device in each language, creates the folder for them, and prints the files.
/// Each device and language runs in a process of its own. Returns the program's exit code. Needs a QCoreApplication.
[[nodiscard]] int runTour(const CommandLine &line);

/// Does this for one device and language (line.tourPart) in this process. Needs a QGuiApplication.
[[nodiscard]] int runTourPart(const CommandLine &line);

} // namespace kesto
