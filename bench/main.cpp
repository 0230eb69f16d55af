#include "BaselineDatabase.h"
#include "Fixtures.h"
#include "Report.h"
#include "Workloads.h"

#include <QCommandLineParser>
#include <QFile>
#include <QGuiApplication>

#include <cstdio>

using namespace kesto::bench;

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication application(argc, argv);
    QCommandLineParser options;
    options.setApplicationDescription(
        QStringLiteral("Measures the store and the import against raw baselines and prints the ratios."));
    options.addHelpOption();
    const QCommandLineOption filter(QStringLiteral("filter"), QStringLiteral("Only workloads with this in their name."),
                                    QStringLiteral("text"));
    const QCommandLineOption rounds(QStringLiteral("rounds"), QStringLiteral("Rounds of each workload, 21 by default."),
                                    QStringLiteral("number"), QStringLiteral("21"));
    const QCommandLineOption markdown(QStringLiteral("markdown"), QStringLiteral("Writes the table to a file, too."),
                                      QStringLiteral("file"));
    options.addOptions({filter, rounds, markdown});
    options.process(application);
    const int count = options.value(rounds).toInt();
    if (count < 1 || !options.positionalArguments().isEmpty())
        options.showHelp(2);
#ifndef NDEBUG
    std::fputs("kesto_bench: not an optimised build, the ratios mean little\n", stderr);
#endif

    Fixtures fixtures;
    Harness harness(count);
    Report report(count);
    const std::string wanted = options.value(filter).toStdString();
    for (const Workload &workload : allWorkloads(fixtures)) {
        if (workload.name.find(wanted) == std::string::npos)
            continue;
        std::fprintf(stderr, "%s ...\n", workload.name.c_str());
        report.add(workload, harness.measure(workload));
    }
    std::fputs(report.markdown().c_str(), stdout);
    if (options.isSet(markdown)) {
        QFile file(options.value(markdown));
        if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray::fromStdString(report.markdown())) < 0)
            fail(file.errorString());
    }
    return 0;
}
