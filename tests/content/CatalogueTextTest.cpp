#include "content/ShippedContent.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include <algorithm>

using namespace kesto::test;

namespace
{

using Options = QRegularExpression::PatternOption;

QRegularExpression pattern(const char *text)
{
    return QRegularExpression(QString::fromUtf8(text),
                              Options::CaseInsensitiveOption | Options::UseUnicodePropertiesOption);
}

/// The numbers of a text with decimal points, in ascending order of their texts.
QStringList numbersIn(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("\\d+(?:[.,]\\d+)?"));
    QStringList numbers;
    for (const QRegularExpressionMatch &match : number.globalMatch(text))
        numbers.append(match.captured().replace(u',', u'.'));
    numbers.sort();
    return numbers;
}

/// The paragraphs that the dish screen makes of a text.
QStringList sentencesOf(const QString &recipe) { return recipe.split(QStringLiteral(". ")); }

/// The stems of a product's name, one of which a text that uses it must hold.
QStringList stemsOf(const QString &name)
{
    static const QRegularExpression word(QStringLiteral("\\w{3,}"), Options::UseUnicodePropertiesOption);
    // Where the stem changes, or the text names the part, the colour or the kind.
    static const QHash<QString, QString> other{
        {QStringLiteral("лёд"), QStringLiteral("льд")},       {QStringLiteral("перец"), QStringLiteral("перч")},
        {QStringLiteral("яйцо"), QStringLiteral("яиц")},      {QStringLiteral("белок"), QStringLiteral("белк")},
        {QStringLiteral("желток"), QStringLiteral("желтк")},  {QStringLiteral("тунец"), QStringLiteral("тунц")},
        {QStringLiteral("утка"), QStringLiteral("утин")},     {QStringLiteral("чай"), QStringLiteral("чаем")},
        {QStringLiteral("куриное"), QStringLiteral("желтк")}, {QStringLiteral("chicken"), QStringLiteral("yolk")},
    };
    QStringList stems;
    for (const QRegularExpressionMatch &match : word.globalMatch(name.toLower())) {
        const QString text = match.captured();
        stems.append(text.left(text.size() > 4 ? 4 : 3));
        if (other.contains(text))
            stems.append(other.value(text));
    }
    return stems;
}

bool hasProduct(const ShippedDish &dish, const QRegularExpression &name)
{
    return std::any_of(dish.lines[Russian].begin(), dish.lines[Russian].end(),
                       [&](const QString &line) { return name.match(line).hasMatch(); });
}

/// Runs a check on every dish and language.
template <class Check>
void forEachText(const Check &check)
{
    for (const ShippedDish &dish : ShippedContent::get().dishes()) {
        for (const Language language : kLanguages) {
            SCOPED_TRACE((dish.dishID + u' ' + kLanguageCodes[language]).toStdString());
            check(dish, language);
        }
    }
}

} // namespace

// What the catalogue's tool refuses is not looked for again.
TEST(CatalogueTexts, AreClean)
{
    static const std::array<std::pair<const char *, QRegularExpression>, 3> faults{
        {{"a doubled word", pattern("\\b(\\w+)\\s+\\1\\b")},
         {"a leftover", pattern("todo|fixme|lorem|\\bxxx|\\?\\?|[_{}<>|*#@=\\[\\]\\\\]|\\.\\.|…|\\bnan\\b|\\bnull\\b")},
         {"a typewriter's dash or quote", pattern("\\d-\\d|\\s-\\s|\"")}}};
    forEachText([](const ShippedDish &dish, Language language) {
        for (const QString &text : {dish.names[language], dish.recipes[language]}) {
            for (const auto &[fault, found] : faults) {
                const QRegularExpressionMatch match = found.match(text);
                EXPECT_FALSE(match.hasMatch())
                    << fault << ": " << text.mid(qMax(0, match.capturedStart() - 15), 45).toStdString();
            }
        }
    });
}

TEST(CatalogueTexts, SplitIntoSentencesThatCanBeRead)
{
    forEachText([](const ShippedDish &dish, Language language) {
        QStringList sentences = sentencesOf(dish.recipes[language].chopped(1));
        EXPECT_TRUE(sentences.size() >= 5 && sentences.size() <= 12) << sentences.size();
        sentences.removeFirst(); // the servings
        for (const QString &sentence : sentences)
            EXPECT_TRUE(sentence.contains(u' ') && sentence.size() <= 180) << sentence.toStdString();
    });
}

TEST(CatalogueTexts, EveryNumberHasItsUnit)
{
    // A number or a range stands before a unit, a noun or "°C"; "2 на 2 см" and "2 by 2 cm" have theirs at the end.
    static const QRegularExpression bare =
        pattern("\\d(?![\\d.,]*\\d)(?!–)(?! ?°C)(?! (?:на|by|x) \\d)(?! [a-zа-яё])(?!(?:-[a-zа-яё]+))");
    static const std::array<QRegularExpression, 2> wordless{
        pattern("\\d (?:и|или|до|при|пока|а|чтобы|затем|с|в)\\b"),
        pattern("\\d (?:and|or|to|at|until|then|with|so|for|in)\\b(?! each| all)")};
    static const std::array<QRegularExpression, 2> degrees{pattern("\\b(?:при|до) \\d{2,3}(?!\\d|–| ?[°а-яё])"),
                                                           pattern("\\b(?:at|to) \\d{2,3}(?!\\d|–| ?[°a-z])")};
    static const std::array<QRegularExpression, 2> separators{pattern("\\d\\.\\d"), pattern("\\d,\\d")};
    forEachText([](const ShippedDish &dish, Language language) {
        // The number of servings needs none.
        const QString text = dish.recipes[language].mid(dish.recipes[language].indexOf(QStringLiteral(". ")) + 2);
        for (const QRegularExpression &rule : {bare, wordless[language], degrees[language], separators[language]}) {
            const QRegularExpressionMatch match = rule.match(text);
            EXPECT_FALSE(match.hasMatch()) << text.mid(qMax(0, match.capturedStart() - 20), 50).toStdString();
        }
    });
}

TEST(CatalogueTexts, BothLanguagesTellTheSame)
{
    for (const ShippedDish &dish : ShippedContent::get().dishes()) {
        SCOPED_TRACE(dish.dishID.toStdString());
        const auto &[russian, english] = dish.recipes;
        EXPECT_EQ(numbersIn(russian), numbersIn(english)) << russian.toStdString() << '\n' << english.toStdString();
        EXPECT_LE(qAbs(sentencesOf(russian).size() - sentencesOf(english).size()), 1);
    }
}

TEST(CatalogueTexts, UseWhatTheyList)
{
    forEachText([](const ShippedDish &dish, Language language) {
        const QString text = dish.recipes[language].toLower();
        for (const QString &line : dish.lines[language]) {
            const QStringList stems = stemsOf(line.section(QStringLiteral(" - "), 0, 0));
            EXPECT_TRUE(
                std::any_of(stems.begin(), stems.end(), [&](const QString &stem) { return text.contains(stem); }))
                << line.toStdString() << " is not in the text: " << text.toStdString();
        }
    });
}

TEST(CatalogueSafety, NothingUnsafeIsAsked)
{
    const std::array<QList<QRegularExpression>, 2> unsafe{
        QList<QRegularExpression>{pattern("непастериз|сыроед|парн(ое|ого) молок|сырое молоко"),
                                  pattern("с кровью|слабой прожарки|карпачч|тартар"),
                                  pattern("нитрит|вялить|засолить|закоптить|консервировать|закатать|стерилиз"),
                                  pattern("разморозить (при|на столе|в комнат)"),
                                  pattern("\\bсыр(ой|ого|ую|ым|ыми) (фарш|кури|свини|индейк|печен)"),
                                  pattern("оставить на ночь (на столе|при комнат|в тепле)"),
                                  pattern("лечит|исцел|сжигает жир|детокс|гарантир")},
        QList<QRegularExpression>{
            pattern("unpasteuris|unpasteuriz|raw milk|raw food"), pattern("\\brare\\b|medium-rare|carpaccio|tartare"),
            pattern("nitrite|curing salt|home-cure|cure the|to cure|can the|sterilis"),
            pattern("thaw (at|on the) (room|counter|table)"),
            pattern("\\braw (mince|chicken|pork|turkey|liver|poultry)"), pattern("overnight (on the|at room)"),
            pattern("heals|cures|burns fat|detox|guarantee")}};
    forEachText([&](const ShippedDish &dish, Language language) {
        for (const QRegularExpression &lexeme : unsafe[language]) {
            EXPECT_FALSE(lexeme.match(dish.recipes[language]).hasMatch()) << lexeme.pattern().toStdString();
            EXPECT_FALSE(lexeme.match(dish.names[language]).hasMatch()) << lexeme.pattern().toStdString();
        }
    });
}

TEST(CatalogueSafety, PoultryPorkAndMinceAreCookedThrough)
{
    const QRegularExpression product = pattern(
        "^(Куриная грудка -|Куриное бедро|Куриная голень|Курица|Цыплёнок|Куриный фарш|Печень кур|Печень "
        "индейки|Сердечки|"
        "Желудки|Грудка индейки -|Бедро индейки|Голень индейки|Фарш индейки|Цесарка|Перепел без|Фазан|Утка|Гусь|Свиная|"
        "Свинина|Говяжий фарш|Телячий фарш)");
    // What tells the cook that it is done: a temperature, the colour, the juice, or long cooking until it is tender.
    const std::array<QRegularExpression, 2> done{
        pattern("(7[4-9]|8\\d) °C|розов|прозрачн|бел(ым|ого|ое) (на|до|в) срез|белого среза|бел(ым|ой) до "
                "середины|полностью сер|"
                "до мягкости"),
        pattern("(7[4-9]|8\\d) °C|pink|runs? clear|juices? (is |are )?clear|white (right )?through|white to the|grey "
                "right through|"
                "fully grey|tender")};
    int found = 0;
    forEachText([&](const ShippedDish &dish, Language language) {
        if (!hasProduct(dish, product))
            return;
        ++found;
        EXPECT_TRUE(done[language].match(dish.recipes[language]).hasMatch())
            << dish.recipes[language].toStdString() << " says not when it is done";
    });
    EXPECT_GT(found, 80) << "the rule finds its dishes no more";
}

TEST(CatalogueSafety, EggsFishAndPulsesAreHeated)
{
    const QList<QRegularExpression> products{pattern("^(Яйцо куриное|Яйцо перепелиное|Белок яичный -|Желток яичный)"),
                                             pattern("^(Треска|Пикша|Минтай|Сайда|Хек|Путассу|Навага|Палтус|Камбала|"
                                                     "Сибас|Дорадо|Морской окунь|Зубатка|Тилапия|Судак|"
                                                     "Щука|Карп|Сом|Сиг|Осетрина|Лосось|Горбуша|Кета|Форель|Тунец|"
                                                     "Скумбрия|Сардина|Кальмар|Мидии|Морские гребешки) -"),
                                             pattern("^(Фасоль белая|Фасоль красная|Нут|Чечевица|Горох колотый) -")};
    const std::array<QRegularExpression, 2> heated{
        pattern("вари|свар|жар|запе|выпе|печь|пекать|туши|припус|кип|°C|сковород|водян|пару|микровол|прогре|нагре"),
        pattern("boil|cook|fry|bake|roast|grill|steam|simmer|poach|stew|brais|°C|microwave|heat|pan")};
    std::array<int, 3> found{};
    forEachText([&](const ShippedDish &dish, Language language) {
        for (qsizetype i = 0; i < products.size(); ++i) {
            if (!hasProduct(dish, products[i]))
                continue;
            ++found[static_cast<size_t>(i)];
            EXPECT_TRUE(heated[language].match(dish.recipes[language]).hasMatch())
                << dish.recipes[language].toStdString();
        }
    });
    for (const int count : found)
        EXPECT_GT(count, 5) << "a rule finds its dishes no more";
}

TEST(CatalogueSafety, UncookedFoamsAreOfThePasteurisedProduct)
{
    const QRegularExpression foam = pattern("взби[а-яё]* [^.]*бел(ок|к)|whisk [^.]*whites?|beat [^.]*whites?");
    const QRegularExpression shellEgg = pattern("^(Яйцо|Белок яичный -)");
    const QRegularExpression heated =
        pattern("°C|вари|жар|запек|сковород|водян|прогре|на пару|микровол|припус|кип|огн");
    for (const ShippedDish &dish : ShippedContent::get().dishes()) {
        if (!foam.match(dish.recipes[Russian]).hasMatch() || !hasProduct(dish, shellEgg))
            continue;
        const QString afterFoam = dish.recipes[Russian].mid(foam.match(dish.recipes[Russian]).capturedStart());
        EXPECT_TRUE(heated.match(afterFoam).hasMatch()) << dish.dishID.toStdString() << ' ' << afterFoam.toStdString();
    }
}
