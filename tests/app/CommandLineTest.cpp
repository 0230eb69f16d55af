#include "app/CommandLine.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

namespace kesto::test
{

namespace
{

using Action = CommandLine::Action;

CommandLine parse(const char *arguments)
{
    return CommandLine::parse(QString::fromUtf8(arguments).split(u' ', Qt::SkipEmptyParts));
}

TEST(CommandLineTest, UnderstandsItsOptions)
{
    EXPECT_EQ(parse("").action, Action::Run);
    EXPECT_EQ(parse("--help").action, Action::ShowHelp);
    EXPECT_EQ(parse("-h").action, Action::ShowHelp);
    EXPECT_EQ(parse("--version").action, Action::ShowVersion);
    EXPECT_EQ(parse("-v").action, Action::ShowVersion);

    const CommandLine run = parse("--data-dir data --language en --device=tablet");
    EXPECT_EQ(run.action, Action::Run);
    EXPECT_EQ(run.dataFolder, QStringLiteral("data"));
    EXPECT_EQ(run.language, QStringLiteral("en"));
    EXPECT_EQ(run.device, Device::Tablet);
    EXPECT_FALSE(parse("").device.has_value());
    EXPECT_EQ(parse("--device phone").device, Device::Phone);
    EXPECT_EQ(parse("--data-dir=--odd").dataFolder, QStringLiteral("--odd"));

    const CommandLine tour = parse("--tour pictures --tour-part phone-ru");
    EXPECT_EQ(tour.action, Action::Tour);
    EXPECT_EQ(tour.tourFolder, QStringLiteral("pictures"));
    EXPECT_EQ(tour.tourPart, QStringLiteral("phone-ru"));
}

TEST(CommandLineTest, RefusesTheRestAndSaysWhy)
{
    const QList<std::pair<const char *, const char *>> cases{{"--colour", "colour"},
                                                             {"-x", "x"},
                                                             {"--language de", "de"},
                                                             {"--language=", "language"},
                                                             {"--language", "language"},
                                                             {"--device watch", "watch"},
                                                             {"--data-dir=", "data-dir"},
                                                             {"--tour", "tour"},
                                                             {"--data-dir --device tablet", "data-dir"},
                                                             {"--data-dir --version", "data-dir"},
                                                             {"--tour --language ru", "tour"},
                                                             {"--language -v", "language"},
                                                             {"today", "today"},
                                                             {"--tour a --data-dir b", "--data-dir"},
                                                             {"--tour-part phone-ru", "--tour-part"},
                                                             {"--help --language de", "de"}};
    for (const auto &[arguments, named] : cases) {
        SCOPED_TRACE(arguments);
        const CommandLine line = parse(arguments);
        EXPECT_EQ(line.action, Action::Refuse);
        EXPECT_TRUE(line.error.contains(QLatin1String(named))) << line.error.toStdString();
    }
}

TEST(CommandLineTest, HelpNamesEveryOptionButThePartsOfATour)
{
    const QString help = CommandLine::help();
    for (const char *option : {"--help", "--version", "--data-dir", "--language", "--device", "--tour "})
        EXPECT_TRUE(help.contains(QLatin1String(option))) << option;
    EXPECT_FALSE(help.contains(QStringLiteral("tour-part")));
}

} // namespace

} // namespace kesto::test
