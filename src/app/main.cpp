#include "app/ApplicationServices.h"
#include "app/CommandLine.h"
#include "app/Program.h"
#ifdef KESTO_TOUR
#include "tour/Tour.h"
#endif

#include <QGuiApplication>
#include <QTemporaryDir>
#include <QTextStream>

#include <memory>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace
{

using kesto::CommandLine;

// Asked before QGuiApplication is created, which aborts without a usable message when it finds no display.
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

#ifdef KESTO_TOUR
int takeTour(const CommandLine &line, int argumentCount, char **arguments)
{
    // Without a display as well, and with the same pixels on every machine.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND"))
        qputenv("QT_QUICK_BACKEND", "software");
    if (line.tourPart.isEmpty()) {
        const QCoreApplication application(argumentCount, arguments);
        return kesto::runTour(line);
    }
    const QGuiApplication application(argumentCount, arguments);
    return kesto::runTourPart(line);
}
#else
int takeTour(const CommandLine &, int, char **)
{
    QTextStream(stderr) << "kesto: This program was built without the tour (KESTO_TOUR)." << Qt::endl;
    return CommandLine::wrongArguments;
}
#endif

// Shows the reason in a window, because a program that was started with its icon has no standard error that anybody
// reads.
void showReason(kesto::Program::Options options, const QString &reason)
{
    const QTemporaryDir folder; // an empty one: the user's own cannot be used
    options.dataFolder = folder.path();
    options.reasonNotToStart = reason;
    QString error;
    const std::unique_ptr<kesto::Program> program = kesto::Program::start(options, &error);
    if (program != nullptr)
        QGuiApplication::exec();
}

int run(const CommandLine &line)
{
    const kesto::Program::Options options{
        .dataFolder = line.dataFolder.isEmpty() ? kesto::ApplicationServices::defaultDataFolder() : line.dataFolder,
        .resourcesFolder = {},
        .language = line.language,
        .device = line.device,
        .size = {}};
    QString error;
    const std::unique_ptr<kesto::Program> program = kesto::Program::start(options, &error);
    if (program == nullptr) {
        QTextStream(stderr) << "kesto: " << error << Qt::endl;
        if (line.dataFolder.isEmpty())
            showReason(options, error);
        const bool wrongFolder =
            !line.dataFolder.isEmpty() && !kesto::ApplicationServices::canKeepData(line.dataFolder);
        return wrongFolder ? CommandLine::wrongArguments : 1;
    }
    return QGuiApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
#ifdef Q_OS_UNIX
    umask(S_IRWXG | S_IRWXO); // everything that the program writes is for its user only
#endif
    QCoreApplication::setApplicationName(QStringLiteral("kesto"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KESTO_VERSION));

    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    const CommandLine line = CommandLine::parse(arguments);

    int onlyName = 1; // Qt must not look for its own options in the command line, which is parsed already
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
        return takeTour(line, onlyName, argv);
    case CommandLine::Action::Run:
        break;
    }
    if (!hasDisplay()) {
        QTextStream(stderr) << "kesto: There is no display. To save pictures of the screens: kesto --tour <folder>"
                            << Qt::endl;
        return 1;
    }
    const QGuiApplication application(onlyName, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("kesto"));
    return run(line);
}
