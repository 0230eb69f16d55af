#include "app/ApplicationServices.h"
#include "app/CommandLine.h"
#include "app/Program.h"
#include "app/Tour.h"

#include <QGuiApplication>
#include <QTextStream>

#include <memory>

namespace
{

using kesto::CommandLine;

// Before there is an application: Qt ends the process without a usable word when it finds no display.
bool hasDisplay()
{
    for (const char *name : {"WAYLAND_DISPLAY", "WAYLAND_SOCKET", "DISPLAY", "QT_QPA_PLATFORM"}) {
        if (!qEnvironmentVariableIsEmpty(name))
            return true;
    }
#ifdef Q_OS_UNIX
    return false;
#else
    return true;
#endif
}

// The pictures are the same on every machine, with a display or without.
void drawWithoutDisplay()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
}

int run(const CommandLine &line)
{
    QString error;
    const std::unique_ptr<kesto::Program> program = kesto::Program::start(
        {.dataFolder = line.dataFolder.isEmpty() ? kesto::ApplicationServices::defaultDataFolder() : line.dataFolder,
         .resourcesFolder = {},
         .language = line.language,
         .device = line.device,
         .size = {}},
        &error);
    if (program == nullptr) {
        QTextStream(stderr) << "kesto: " << error << Qt::endl;
        const bool wrongFolder =
            !line.dataFolder.isEmpty() && !kesto::ApplicationServices::canKeepData(line.dataFolder);
        return wrongFolder ? CommandLine::wrongArguments : 1;
    }
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("kesto"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KESTO_VERSION));

    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const CommandLine line = CommandLine::parse(arguments);

    switch (line.action) {
    case CommandLine::Action::Refuse:
        QTextStream(stderr) << "kesto: " << line.error << "\nSee kesto --help." << Qt::endl;
        return CommandLine::wrongArguments;
    case CommandLine::Action::ShowHelp:
        QTextStream(stdout) << CommandLine::help();
        return 0;
    case CommandLine::Action::ShowVersion:
        QTextStream(stdout) << "kesto " << QCoreApplication::applicationVersion() << Qt::endl;
        return 0;
    case CommandLine::Action::Tour:
        drawWithoutDisplay();
        break;
    case CommandLine::Action::Run:
        if (!hasDisplay()) {
            QTextStream(stderr) << "kesto: There is no display. Pictures of the screens: kesto --tour <folder>"
                                << Qt::endl;
            return 1;
        }
        break;
    }

    // The command line is understood already; Qt looks for options of its own in it, which are none of ours.
    int onlyName = 1;
    if (line.action == CommandLine::Action::Tour && line.tourPart.isEmpty()) {
        const QCoreApplication application(onlyName, argv);
        return kesto::runTour(line);
    }
    const QGuiApplication application(onlyName, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("kesto"));
    return line.action == CommandLine::Action::Tour ? kesto::runTourPart(line) : run(line);
}
