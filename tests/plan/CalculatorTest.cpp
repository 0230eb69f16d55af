#include "PlanFixture.h"

#include <QAbstractItemModelTester>

namespace kesto::test
{
namespace
{

using Input = CalculatorInput;

TestPlatform::Options inLanguage(const char *code) { return {.language = QLatin1String(code)}; }

/// The user opens the wheels of an input and turns them.
void pick(CalculatorViewController &screen, Input input, const QList<int> &rows)
{
    const IndexPath row{0, static_cast<int>(input)};
    if (screen.pickerOwner() != row) // open wheels above push the row down
        screen.selectRow(0, row.row + (screen.pickerOwner() && screen.pickerOwner()->row < row.row ? 1 : 0));
    ASSERT_EQ(screen.pickerOwner(), row);
    for (int component = 0; component < rows.size(); ++component) {
        if (screen.picker()->selectedRow(component) != rows[component])
            screen.picker()->components()[component]->select(rows[component]);
    }
}

struct WheelCase
{
    Input input;
    bool metric;
    QList<int> rows;
    QStringList titles;
    double stored;
};

TEST(CalculatorWheels, StandForStoredValues)
{
    TestPlatform platform;
    for (const WheelCase &each : std::initializer_list<WheelCase>{
             {Input::Age, true, {0}, texts({"10"}), 10},
             {Input::Age, true, {89}, texts({"99"}), 99},
             {Input::Sex, true, {0}, texts({"Мужской"}), 0},
             {Input::Sex, true, {1}, texts({"Женский"}), 1},
             {Input::Weight, true, {0, 0}, texts({"40", "0"}), 40},
             {Input::Weight, true, {20, 3}, texts({"60", "3"}), 60.3F},
             {Input::Weight, true, {150, 9}, texts({"190", "9"}), 190.9F},
             {Input::Weight, false, {0, 0}, texts({"100", "0"}), 45.359236},
             {Input::Weight, false, {50, 0}, texts({"150", "0"}), 68.038854},
             {Input::Weight, false, {300, 9}, texts({"400", "9"}), 181.845177},
             {Input::Height, true, {0}, texts({"100"}), 100},
             {Input::Height, true, {99}, texts({"199"}), 199},
             {Input::Height, false, {0}, texts({"50.0"}), 127},
             {Input::Height, false, {1}, texts({"50.5"}), 128.27},
             {Input::Height, false, {40}, texts({"70.0"}), 177.8},
             {Input::Height, false, {60}, texts({"80.0"}), 203.2},
             {Input::Wrist, true, {0}, texts({"Маленькое"}), 0},
             {Input::Wrist, true, {2}, texts({"Большое"}), 2},
         }) {
        const CalculatorWheels wheels(each.input, each.metric);
        ASSERT_EQ(wheels.numberOfComponents(), each.rows.size());
        EXPECT_FLOAT_EQ(wheels.value(each.rows), static_cast<float>(each.stored))
            << each.titles.join(u' ').toStdString();
        for (int component = 0; component < each.rows.size(); ++component) {
            EXPECT_EQ(wheels.title(each.rows[component], component), each.titles[component]);
            EXPECT_EQ(wheels.row(wheels.value(each.rows), component), each.rows[component])
                << each.titles.join(u' ').toStdString();
        }
    }
}

// Every position comes back from what it stores, so opening the wheels and closing them changes nothing.
TEST(CalculatorWheels, TurnBackToWhatWasStored)
{
    TestPlatform platform;
    for (const bool metric : {true, false}) {
        for (const Input input : {Input::Age, Input::Sex, Input::Weight, Input::Height, Input::Wrist}) {
            const CalculatorWheels wheels(input, metric);
            const int seconds = wheels.numberOfComponents() == 2 ? wheels.numberOfRows(1) : 1;
            for (int row = 0; row < wheels.numberOfRows(0); ++row) {
                for (int second = 0; second < seconds; ++second) {
                    const float stored = wheels.value({row, second});
                    ASSERT_EQ(wheels.row(stored, 0), row) << stored;
                    ASSERT_EQ(seconds > 1 ? wheels.row(stored, 1) : 0, second) << stored;
                }
            }
        }
    }
    const CalculatorWheels weight(Input::Weight, true);
    EXPECT_EQ(weight.row(12, 0), 0) << "below the wheel";
    EXPECT_EQ(weight.row(500, 0), 150) << "above the wheel";
    EXPECT_EQ(weight.row(500, 1), 9);
    EXPECT_EQ(weight.row(60.96F, 0), 21) << "the tenths carry";
    EXPECT_EQ(weight.row(60.96F, 1), 0);
}

TEST(Calculator, ShowsTheDefaultsInBothLanguagesAndUnits)
{
    for (const auto &[language, metric, inputs, results, phases, age, title] :
         {std::tuple("ru", true, texts({"30 лет", "Женский", "60.0 кг", "170.0 см", "Среднее"}),
                     texts({"20.76", "Нормальный диапазон", "62 кг", "62 кг", "-2.0 кг"}),
                     texts({"2 дн.", "-14 дн.", "-20 дн."}), "год", "1 Этап. Атака"),
          std::tuple("en", false, texts({"30 years", "Female", "132.3 lbs", "66.9 ″", "Medium"}),
                     texts({"20.76", "Normal range", "137 lbs", "137 lbs", "-4.4 lbs"}),
                     texts({"2 d", "-14 d", "-20 d"}), "years", "1 Phase. Attack")}) {
        PlanFixture program(inLanguage(language), metric);
        CalculatorViewController screen;
        screen.loadViewIfNeeded();
        EXPECT_EQ(details(screen, 0), inputs);
        EXPECT_EQ(details(screen, 1), results);
        EXPECT_EQ(details(screen, 2), phases);
        EXPECT_EQ(CalculatorViewController::agePrefixForValue(21), QString::fromUtf8(age));
        EXPECT_EQ(screen.table()->numberOfSections(), 4);
        EXPECT_EQ(screen.cellForRow({2, 0}).title, QString::fromUtf8(title));
        EXPECT_EQ(screen.cellForRow({2, 2}).id, RowId(202));
        EXPECT_EQ(screen.cellForRow({1, 3}).id, RowId(103));
        EXPECT_FALSE(program.defaults().valueForKey(QStringLiteral("Вес")).isValid()) << "looking stores nothing";
    }
}

TEST(Calculator, AgeWordGoesByTheLastDigit)
{
    PlanFixture program;
    for (const auto &[age, word] : {std::pair(QVariant(20), "лет"),
                                    {21, "год"},
                                    {22, "года"},
                                    {24, "года"},
                                    {25, "лет"},
                                    {30.0, "лет"},
                                    {31.0F, "год"},
                                    {11, "год"},
                                    {12, "года"},
                                    {14, "года"},
                                    {15, "лет"},
                                    {99, "лет"},
                                    {1, "лет"}})
        EXPECT_EQ(CalculatorViewController::agePrefixForValue(age), QString::fromUtf8(word)) << age.toInt();
}

TEST(Calculator, StoresPicksAndForgetsTheWantedWeight)
{
    PlanFixture program;
    {
        CalculatorViewController screen;
        QAbstractItemModelTester tester(screen.table(), QAbstractItemModelTester::FailureReportingMode::Fatal);
        screen.loadViewIfNeeded();
        screen.textFieldDidEndEditing(CalculatorViewController::wantedWeightTag, QStringLiteral("55"));
        screen.textFieldDidEndEditing(200, QStringLiteral("9"));
        EXPECT_EQ(screen.wantedWeight(), 55);
        EXPECT_EQ(screen.period1(), 9);

        pick(screen, Input::Weight, {60, 5});
        EXPECT_EQ(screen.table()->numberOfRowsInSection(0), 6);
        EXPECT_EQ(screen.wantedWeight(), screen.idealWeidht());
        pick(screen, Input::Sex, {0});
        EXPECT_EQ(screen.pickerIndexPath(), (ShownPath{0, 2}));
        pick(screen, Input::Height, {80});
        pick(screen, Input::Age, {11});
        EXPECT_EQ(details(screen, 0), texts({"21 год", "Мужской", "100.5 кг", "180.0 см", "Среднее"}));
        EXPECT_EQ(screen.idealWeidht(), 75);
        EXPECT_EQ(screen.wantedWeight(), 75);
        screen.calculateDiet();
        EXPECT_EQ(screen.difWeight(), 25.5F);
        EXPECT_EQ(screen.period1(), 6) << "a calculation ends a hand-edited length";

        pick(screen, Input::Wrist, {2});
        EXPECT_EQ(screen.handType(), 2);
        EXPECT_EQ(screen.idealWeidht(), 81);
        EXPECT_EQ(details(screen, 0)[4], QStringLiteral("Большое"));
        screen.selectRow(0, static_cast<int>(Input::Wrist));
        EXPECT_FALSE(screen.hasInlinePicker()) << "the same row closes its wheels";
    }
    program.restart();
    EXPECT_EQ(program.defaults().valueForKey(QStringLiteral("Окружность запястья")).toFloat(), 2);
    EXPECT_EQ(program.defaults().valueForKey(QStringLiteral("Пол")), QVariant(0LL));
    CalculatorViewController again;
    again.loadViewIfNeeded();
    EXPECT_EQ(details(again, 0), texts({"21 год", "Мужской", "100.5 кг", "180.0 см", "Среднее"}))
        << "the wrist starts at its middle";
    EXPECT_EQ(again.wantedWeight(), 75);
}

TEST(Calculator, WeighsAPickAgainstTheWeightThatWasWantedBefore)
{
    PlanFixture program;
    CalculatorViewController screen;
    screen.loadViewIfNeeded();
    screen.endEditingText(1, QStringLiteral("103"), QStringLiteral("55"));
    pick(screen, Input::Weight, {60, 0});
    EXPECT_EQ(screen.difWeight(), 45);
    EXPECT_EQ(screen.period1(), 7);
    EXPECT_EQ(screen.period2(), 315);
    EXPECT_EQ(screen.period3(), 450);
    EXPECT_EQ(screen.wantedWeight(), 62) << "the new ideal weight counts from the next calculation on";
    EXPECT_EQ(details(screen, 1).mid(2), texts({"62 кг", "62 кг", "45.0 кг"}));
    EXPECT_EQ(details(screen, 2), texts({"7 дн.", "315 дн.", "450 дн."}));
}

TEST(Calculator, OpensTheWheelsWhereTheValuesAre)
{
    PlanFixture program({}, false);
    program.defaults().setFloat(68.038854F, QStringLiteral("Вес"));
    CalculatorViewController screen;
    screen.loadViewIfNeeded();
    screen.selectRow(0, static_cast<int>(Input::Weight));
    EXPECT_EQ(screen.picker()->selectedRow(0), 50);
    EXPECT_EQ(screen.picker()->selectedRow(1), 0);
    screen.picker()->components()[1]->select(5);
    EXPECT_FLOAT_EQ(program.defaults().floatForKey(QStringLiteral("Вес")), 150.5F * 0.45359236F);
    EXPECT_EQ(details(screen, 0)[2], QStringLiteral("150.5 lbs"));
    screen.selectRow(0, static_cast<int>(Input::Height) + 1);
    EXPECT_EQ(screen.picker()->components().size(), 1);
    EXPECT_EQ(screen.picker()->components()[0]->titles().value(screen.picker()->selectedRow(0)),
              QStringLiteral("67.0"));
}

struct EditCase
{
    const char *text;
    float wanted;
    int length;
    const char *shown;
};

TEST(Calculator, TakesWhateverIsTypedIntoItsFields)
{
    PlanFixture program;
    CalculatorViewController screen;
    screen.loadViewIfNeeded();
    for (const EditCase &each :
         std::initializer_list<EditCase>{{"58", 58, 58, "58"},
                                         {"58.5", 58.5F, 58, "58"},
                                         {"58,5", 58.5F, 58, "58"},
                                         {"12 days", 12, 12, "12"},
                                         {"", 62, 1, "1"},
                                         {"0", 62, 1, "1"},
                                         {"text", 62, 1, "1"},
                                         {"-5", -5, 1, "1"},
                                         {"0.9", 0.9F, 1, "1"},
                                         {"36500", 36500, 36500, "36500"},
                                         {"36501", 36501, 36501, "36501"},
                                         {"2147483647", 2147483647.0F, 2147483647, "2147483647"},
                                         {"2147483648", 2147483648.0F, 2147483647, "2147483647"},
                                         {"1000000000000000000", 1e18F, 2147483647, "2147483647"}}) {
        screen.endEditingText(1, QStringLiteral("103"), QString::fromUtf8(each.text));
        EXPECT_EQ(screen.wantedWeight(), each.wanted) << each.text;
        EXPECT_EQ(screen.difWeight(), 60 - each.wanted) << each.text;
        for (int row = 0; row < 3; ++row)
            screen.endEditingText(2, QString::number(200 + row), QString::fromUtf8(each.text));
        const int attack = std::min(each.length, CalculatorViewController::longestAttack);
        EXPECT_EQ(screen.table()->rowAt({2, 0}).text, QString::number(attack));
        EXPECT_EQ(screen.table()->rowAt({2, 2}).text, QString::fromUtf8(each.shown));
        EXPECT_EQ(screen.period1(), attack) << each.text;
        EXPECT_EQ(screen.period2(), each.length) << each.text;
        EXPECT_EQ(screen.period3(), each.length) << each.text;
    }
    EXPECT_EQ(screen.wantedWeight(), 1e18F) << "lengths do not touch the weight";
}

TEST(Calculator, TakesATypedWeightAsKilogramsInPoundsToo)
{
    PlanFixture program({}, false);
    CalculatorViewController screen;
    screen.loadViewIfNeeded();
    ASSERT_EQ(screen.cellForRow({1, 3}).text, QStringLiteral("137"));
    screen.endEditingText(1, QStringLiteral("103"), QStringLiteral("137"));
    EXPECT_EQ(screen.wantedWeight(), 137) << "whoever types what is on show means it";
    screen.endEditingText(1, QStringLiteral("103"), QStringLiteral("50"));
    EXPECT_EQ(screen.wantedWeight(), 50);
    EXPECT_EQ(screen.cellForRow({1, 3}).text, QStringLiteral("110"));
    EXPECT_EQ(screen.difWeight(), 10);
    EXPECT_EQ(screen.period1(), 4);
}

TEST(Calculator, TakesATypedWeightThatEqualsTheRoundedOne)
{
    const PlanFixture program;
    CalculatorViewController screen;
    screen.loadViewIfNeeded();
    screen.endEditingText(1, QStringLiteral("103"), QStringLiteral("74.6"));
    ASSERT_EQ(screen.cellForRow({1, 3}).text, QStringLiteral("75"));
    EXPECT_EQ(screen.period2(), -102);
    screen.endEditingText(1, QStringLiteral("103"), QStringLiteral("75"));
    EXPECT_EQ(screen.wantedWeight(), 75);
    EXPECT_EQ(screen.difWeight(), -15);
    EXPECT_EQ(screen.period2(), -105);
}

/// The dates of the bar of phases.
QStringList datesOfBar(const CalculatorViewController &screen)
{
    QStringList dates;
    for (const QVariant &span : screen.table()->rowAt({2, 3}).value.toList())
        dates.append(span.toMap()[QStringLiteral("dates")].toString().replace(QChar::Nbsp, u' '));
    return dates;
}

TEST(Calculator, BarFollowsEveryEdit)
{
    PlanFixture program(inLanguage("en"));
    CalculatorViewController screen;
    screen.loadViewIfNeeded();
    const auto bar = [&] { return datesOfBar(screen); };
    EXPECT_EQ(bar(), texts({"7 Mar – 8 Mar", "9 Mar – …"}));
    screen.endEditingText(1, QStringLiteral("103"), QStringLiteral("55"));
    EXPECT_EQ(bar(), texts({"7 Mar – 9 Mar", "10 Mar – 13 Apr", "14 Apr – 2 Jun", "3 Jun – …"}));
    screen.endEditingText(2, QStringLiteral("201"), QStringLiteral("1"));
    EXPECT_EQ(bar(), texts({"7 Mar – 9 Mar", "10 Mar", "11 Mar – 29 Apr", "30 Apr – …"}));

    // Also while something is typed, but then it is not taken yet.
    for (const auto &[typed, shown] :
         {std::pair("5", "10 Mar – 14 Mar"), std::pair("5x", "10 Mar – 14 Mar"), std::pair("x", "10 Mar – 14 Mar"),
          std::pair("", "10 Mar – 14 Mar"), std::pair("0", "10 Mar"), std::pair("-3", "10 Mar"),
          std::pair("99999999999", "10 Mar – 17 Sep 5881634")}) {
        screen.editingTextChanged(2, QStringLiteral("201"), QString::fromUtf8(typed));
        EXPECT_EQ(bar()[1].toStdString(), shown) << typed;
        EXPECT_EQ(screen.period2(), 1);
        EXPECT_EQ(screen.table()->rowAt({2, 1}).text, QStringLiteral("1"));
    }
    screen.editingTextChanged(2, QStringLiteral("200"), QStringLiteral("99999999999"));
    EXPECT_EQ(bar()[1].toStdString(), "12 Feb 2124") << "the Attack has an end, and the other phases are as they were";
    for (const auto &[section, id] : {std::pair(1, 103), {0, 0}, {2, 3}, {9, 9}})
        screen.editingTextChanged(section, QString::number(id), QStringLiteral("77"));
    EXPECT_EQ(bar()[1].toStdString(), "12 Feb 2124");
    screen.endEditingText(2, QStringLiteral("201"), QStringLiteral("2"));
    EXPECT_EQ(bar(), texts({"7 Mar – 9 Mar", "10 Mar – 11 Mar", "12 Mar – 30 Apr", "1 May – …"}));
}

TEST(Calculator, BarBeginsWithTheNewDayAfterMidnight)
{
    PlanFixture program(inLanguage("en"));
    auto made = std::make_unique<CalculatorViewController>();
    CalculatorViewController &screen = *made;
    const InWindow shown(std::move(made));
    ASSERT_EQ(datesOfBar(screen).value(0), QStringLiteral("7 Mar – 8 Mar"));
    program.platform.clock().set(program.dayStart(2024, 3, 8));
    DayWatch::sharedWatch().look();
    EXPECT_EQ(datesOfBar(screen).value(0), QStringLiteral("8 Mar – 9 Mar"));
}

} // namespace
} // namespace kesto::test
