#include "tour/Tour.h"

#include "components/Window.h"
#include "import/UpdatingDatabaseViewController.h"
#include "tour/TourGuide.h"
#include "tour/TourStops.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <array>
#include <memory>
#include <vector>

namespace kesto
{

namespace
{

struct Part
{
    const char16_t *name;
    Device device;
    QSize size;
};

constexpr std::array parts{Part{u"phone", Device::Phone, QSize(390, 844)},
                           Part{u"tablet-portrait", Device::Tablet, QSize(820, 1180)},
                           Part{u"tablet-landscape", Device::Tablet, QSize(1180, 820)}};

QStringList languages() { return {QStringLiteral("ru"), QStringLiteral("en")}; }

QString nameOf(const Part &part, const QString &language)
{
    return QString::fromUtf16(part.name) + QLatin1Char('-') + language;
}

int fail(const QString &reason)
{
    QTextStream(stderr) << "kesto: " << reason << Qt::endl;
    return 1;
}

/// Tells the user when it can't.
bool createFolder(const QString &folder)
{
    const bool created = QDir().mkpath(folder);
    if (!created)
        (void)fail(QStringLiteral("The folder %1 can't be created.").arg(folder));
    else if (!QFileInfo(folder).isWritable())
        (void)fail(QStringLiteral("The folder %1 can't be written.").arg(folder));
    return created && QFileInfo(folder).isWritable();
}

/// In parallel: they wait for screens to settle most of the time.
int runParts(const QString &folder, const QStringList &names, QStringList &files)
{
    std::vector<std::unique_ptr<QProcess>> processes;
    for (const QString &name : names) {
        processes.push_back(std::make_unique<QProcess>());
        processes.back()->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        processes.back()->start(QCoreApplication::applicationFilePath(),
                                {QStringLiteral("--tour"), folder, QStringLiteral("--tour-part"), name});
    }
    int result = 0;
    for (size_t i = 0; i < processes.size(); ++i) {
        QProcess &process = *processes[i];
        const bool ended = process.state() == QProcess::NotRunning || process.waitForFinished(-1);
        if (!ended || process.error() == QProcess::FailedToStart || process.exitStatus() != QProcess::NormalExit ||
            process.exitCode() != 0)
            result = fail(QStringLiteral("The part %1 of the tour failed.").arg(names[static_cast<int>(i)]));
        files += QString::fromLocal8Bit(process.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    return result;
}

/// Pauses the import for the first picture.
bool waitForImport(TourGuide &guide)
{
    const QList<ViewController *> presented = guide.window().presentedViewControllers();
    auto *preparation = qobject_cast<UpdatingDatabaseViewController *>(presented.value(0));
    if (preparation == nullptr)
        return false;
    preparation->timer().stop();
    guide.takePicture(QStringLiteral("preparing"));
    preparation->timer().start();
    return guide.waitUntilNothingIsPresented();
}

void takeAllPictures(TourGuide &guide)
{
    if (!waitForImport(guide)) {
        guide.complain(QStringLiteral("The recipes were not prepared."));
        return;
    }
    for (const TourStop &stop : tourStops()) {
        stop.show(guide);
        guide.takePicture(stop.name);
        guide.goHome();
    }
}

} // namespace

int runTour(const CommandLine &line)
{
    const QString folder = QDir(line.tourFolder).absolutePath();
    if (!createFolder(folder))
        return CommandLine::wrongArguments;
    QStringList names;
    for (const Part &part : parts) {
        for (const QString &language : languages()) {
            if ((!line.device || *line.device == part.device) && (line.language.isEmpty() || line.language == language))
                names.append(nameOf(part, language));
        }
    }
    QStringList files;
    const int result = runParts(folder, names, files);
    QTextStream out(stdout);
    for (const QString &file : files)
        out << file << Qt::endl;
    return result;
}

int runTourPart(const CommandLine &line)
{
    for (const Part &part : parts) {
        for (const QString &language : languages()) {
            const QString name = nameOf(part, language);
            if (name != line.tourPart)
                continue;
            if (!createFolder(line.tourFolder))
                return CommandLine::wrongArguments;
            const QTemporaryDir data;
            if (!data.isValid())
                return fail(QStringLiteral("No temporary folder could be created."));
            TourGuide guide({.dataFolder = data.filePath(QStringLiteral("data")),
                             .resourcesFolder = {},
                             .language = language,
                             .device = part.device,
                             .size = part.size},
                            line.tourFolder, name);
            if (guide.startProgram())
                takeAllPictures(guide);
            QTextStream out(stdout);
            for (const QString &file : guide.pictures())
                out << file << Qt::endl;
            for (const QString &complaint : guide.complaints())
                (void)fail(complaint);
            return guide.complaints().isEmpty() ? 0 : 1;
        }
    }
    return fail(QStringLiteral("The tour has no part \"%1\".").arg(line.tourPart));
}

} // namespace kesto
