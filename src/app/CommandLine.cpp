#include "app/CommandLine.h"

#include <QCommandLineParser>

namespace kesto
{

namespace
{

CommandLine refused(const QString &error)
{
    CommandLine line;
    line.action = CommandLine::Action::Refuse;
    line.error = error;
    return line;
}

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments)
{
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption version(QStringList{QStringLiteral("v"), QStringLiteral("version")});
    const QCommandLineOption dataDir(QStringLiteral("data-dir"), {}, QStringLiteral("folder"));
    const QCommandLineOption language(QStringLiteral("language"), {}, QStringLiteral("code"));
    const QCommandLineOption device(QStringLiteral("device"), {}, QStringLiteral("kind"));
    const QCommandLineOption tour(QStringLiteral("tour"), {}, QStringLiteral("folder"));
    const QCommandLineOption tourPart(QStringLiteral("tour-part"), {}, QStringLiteral("part"));

    // The parser would take the next option for the value.
    const QList<QCommandLineOption> valued{dataDir, language, device, tour, tourPart};
    for (int i = 0; i + 1 < arguments.size(); ++i) {
        for (const QCommandLineOption &option : valued) {
            const QString &name = option.names().constFirst();
            if (arguments[i] == QStringLiteral("--") + name && arguments[i + 1].startsWith(QLatin1Char('-')))
                return refused(QStringLiteral("The option --%1 needs a value, but %2 follows. A value that begins with "
                                              "a dash is written --%1=<value>.")
                                   .arg(name, arguments[i + 1]));
        }
    }

    QCommandLineParser parser;
    parser.addOptions(valued + QList<QCommandLineOption>{help, version});
    if (!parser.parse(QStringList(QStringLiteral("kesto")) + arguments))
        return refused(parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        return refused(QStringLiteral("What is \"%1\"? The program takes options only.")
                           .arg(parser.positionalArguments().constFirst()));
    for (const QCommandLineOption &option : valued) {
        if (parser.isSet(option) && parser.value(option).isEmpty())
            return refused(QStringLiteral("The option --%1 needs a value.").arg(option.names().constFirst()));
    }

    CommandLine line;
    line.dataFolder = parser.value(dataDir);
    line.language = parser.value(language);
    line.tourFolder = parser.value(tour);
    line.tourPart = parser.value(tourPart);
    if (parser.isSet(language) && line.language != QStringLiteral("ru") && line.language != QStringLiteral("en"))
        return refused(QStringLiteral("The language \"%1\" is neither ru nor en.").arg(line.language));
    if (parser.isSet(device)) {
        const QString kind = parser.value(device);
        if (kind == QStringLiteral("phone"))
            line.device = Device::Phone;
        else if (kind == QStringLiteral("tablet"))
            line.device = Device::Tablet;
        else
            return refused(QStringLiteral("The device \"%1\" is neither phone nor tablet.").arg(kind));
    }
    if (parser.isSet(tour) && parser.isSet(dataDir))
        return refused(QStringLiteral("The tour uses a data folder of its own: --data-dir does not go with it."));
    if (parser.isSet(tourPart) && !parser.isSet(tour))
        return refused(QStringLiteral("The option --tour-part goes with --tour only."));

    if (parser.isSet(help))
        line.action = Action::ShowHelp;
    else if (parser.isSet(version))
        line.action = Action::ShowVersion;
    else if (parser.isSet(tour))
        line.action = Action::Tour;
    return line;
}

QString CommandLine::help()
{
    return QStringLiteral(
        "Usage: kesto [options]\n"
        "A companion for the Kesto diet: plan, journal, recipes, shopping list.\n"
        "\n"
        "Options:\n"
        "  -h, --help                    Show this text.\n"
        "  -v, --version                 Show the version.\n"
        "  --data-dir <folder>           Keep the user's data in this folder.\n"
        "  --language <ru|en>            The language of the interface.\n"
        "  --device <phone|tablet>       The arrangement of the screens; by the size of the screen otherwise.\n"
        "  --tour <folder>               Save a picture of each main screen, on an empty data folder, and end.\n"
        "                                With --language or --device only those; needs no display.\n"
        "\n"
        "The program ends with 0, with 1 when it fails, and with 2 when it can't do with its options: one that it\n"
        "does not know, or a folder that can't be used.\n");
}

} // namespace kesto
