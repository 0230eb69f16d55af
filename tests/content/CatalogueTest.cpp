#include "content/ShippedContent.h"

#include <gmock/gmock.h>

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <iostream>

using namespace kesto::test;
using testing::Each;
using testing::Ge;
using testing::SizeIs;

namespace
{

const QStringList kCategories{QStringLiteral("Салаты"),
                              QStringLiteral("Закуски и бутерброды"),
                              QStringLiteral("Первые блюда"),
                              QStringLiteral("Вторые блюда"),
                              QStringLiteral("Несладкая выпечка"),
                              QStringLiteral("Десерты"),
                              QStringLiteral("Блины"),
                              QStringLiteral("Напитки"),
                              QStringLiteral("Соусы")};
constexpr std::array<const char *, 4> kPhaseNames{"Attack", "Cruise", "Consolidation", "Stabilization"};
constexpr int kTolerated = 2;

/// The phases that all products of a dish share, "0, 1, 2, 3".
QString phasesOf(const ShippedDish &dish)
{
    const ShippedContent &content = ShippedContent::get();
    QStringList phases{QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")};
    for (const QString &text : dish.lines[Russian]) {
        const std::optional<Line> line = parseLine(Russian, text);
        const int position = line ? content.position(Russian, line->name) : ShippedContent::kUnknown;
        if (position >= 0 && position < content.products().size())
            phases.removeIf([&](const QString &phase) { return !content.products()[position].phases.contains(phase); });
    }
    return phases.join(QStringLiteral(", "));
}

struct Counts
{
    int dishes = 0;
    std::array<int, 4> phases{};
    std::array<int, 2> languages{};
};

std::array<Counts, 9> countsByCategory()
{
    std::array<Counts, 9> counts;
    for (const ShippedDish &dish : ShippedContent::get().dishes()) {
        const qsizetype order = kCategories.indexOf(dish.categories[Russian]);
        if (order < 0)
            continue;
        Counts &category = counts[static_cast<size_t>(order)];
        ++category.dishes;
        for (int phase = 0; phase < 4; ++phase)
            category.phases[phase] += dish.dietPeriod.contains(QString::number(phase)) ? 1 : 0;
        for (const Language language : kLanguages) {
            const bool complete = !dish.names[language].isEmpty() && !dish.recipes[language].isEmpty() &&
                                  !dish.categories[language].isEmpty() && !dish.lines[language].isEmpty();
            category.languages[language] += complete ? 1 : 0;
        }
    }
    return counts;
}

} // namespace

TEST(Catalogue, EveryDishHasAnIdentityANameAndAPlace)
{
    static const QRegularExpression identifier(QStringLiteral("^[a-z]{3}\\d\\d$"));
    QSet<QString> identifiers;
    std::array<QSet<QString>, 2> names;
    QHash<QString, QString> englishCategories;
    for (const ShippedDish &dish : ShippedContent::get().dishes()) {
        SCOPED_TRACE(dish.dishID.toStdString());
        EXPECT_TRUE(identifier.match(dish.dishID).hasMatch());
        EXPECT_FALSE(identifiers.contains(dish.dishID));
        identifiers.insert(dish.dishID);
        for (const Language language : kLanguages) {
            const QString name = dish.names[language].toCaseFolded();
            EXPECT_FALSE(names[language].contains(name)) << name.toStdString() << " stands twice";
            names[language].insert(name);
        }
        EXPECT_TRUE(kCategories.contains(dish.categories[Russian])) << dish.categories[Russian].toStdString();
        const QString english = englishCategories.value(dish.categories[Russian], dish.categories[English]);
        EXPECT_EQ(english, dish.categories[English]);
        englishCategories.insert(dish.categories[Russian], english);
    }
    const QSet<QString> distinct(englishCategories.cbegin(), englishCategories.cend());
    EXPECT_EQ(distinct.size(), kCategories.size());
}

TEST(Catalogue, BothLanguagesListTheSameProductsInTheSameQuantities)
{
    const ShippedContent &content = ShippedContent::get();
    for (const ShippedDish &dish : content.dishes()) {
        SCOPED_TRACE(dish.dishID.toStdString());
        ASSERT_EQ(dish.lines[Russian].size(), dish.lines[English].size());
        QSet<int> seen;
        bool hasProduct = false;
        QSet<int> tolerated;
        for (qsizetype i = 0; i < dish.lines[Russian].size(); ++i) {
            SCOPED_TRACE(dish.lines[Russian][i].toStdString() + " | " + dish.lines[English][i].toStdString());
            const std::optional<Line> russian = parseLine(Russian, dish.lines[Russian][i]);
            const std::optional<Line> english = parseLine(English, dish.lines[English][i]);
            ASSERT_TRUE(russian && english) << "not a name, a hyphen and a quantity";

            const int position = content.position(Russian, russian->name);
            EXPECT_NE(position, ShippedContent::kUnknown) << "in no list";
            EXPECT_EQ(position, content.position(English, english->name)) << "another product";
            EXPECT_FALSE(seen.contains(position)) << "stands twice";
            seen.insert(position);
            const bool isProduct = position >= 0 && position < content.products().size();
            hasProduct = hasProduct || isProduct;
            if (isProduct && content.products()[position].kind == kTolerated)
                tolerated.insert(position);

            EXPECT_EQ(russian->amount.toTaste, english->amount.toTaste);
            EXPECT_FALSE(isProduct && russian->amount.toTaste) << "a product needs a quantity";
            EXPECT_EQ(russian->amount.number, english->amount.number);
            if (!russian->amount.toTaste) {
                EXPECT_GT(russian->amount.number.toDouble(), 0);
                const QString unit = content.unitKey(Russian, russian->amount.number, russian->amount.unit);
                EXPECT_FALSE(unit.isNull()) << "unknown unit, or the wrong form of it";
                EXPECT_EQ(unit, content.unitKey(English, english->amount.number, english->amount.unit));
            }
        }
        EXPECT_TRUE(hasProduct);
        EXPECT_LE(tolerated.size(), 2) << "two tolerated products a day";
    }
}

TEST(Catalogue, PhasesFollowFromTheProducts)
{
    for (const ShippedDish &dish : ShippedContent::get().dishes()) {
        EXPECT_EQ(dish.dietPeriod, phasesOf(dish)) << dish.dishID.toStdString();
        EXPECT_TRUE(dish.dietPeriod.contains(u'3')) << dish.dishID.toStdString() << " fits no phase to the end";
    }
}

TEST(Catalogue, HoldsEnoughForEveryCategoryPhaseAndLanguage)
{
    const std::array<Counts, 9> counts = countsByCategory();
    Counts all;
    const auto print = [](const QString &title, const Counts &row) {
        QString line = title.leftJustified(22) + QString::number(row.dishes).rightJustified(7);
        for (const int count : row.phases)
            line += QString::number(count).rightJustified(15);
        for (const int count : row.languages)
            line += QString::number(count).rightJustified(9);
        std::cout << line.toStdString() << '\n';
    };
    QString head = QStringLiteral("category").leftJustified(22) + QStringLiteral("dishes").rightJustified(7);
    for (const char *phase : kPhaseNames)
        head += QString::fromLatin1(phase).rightJustified(15);
    std::cout << head.toStdString() << "  Russian  English\n";
    for (size_t order = 0; order < counts.size(); ++order) {
        SCOPED_TRACE(kCategories[static_cast<qsizetype>(order)].toStdString());
        const Counts &row = counts[order];
        print(kCategories[static_cast<qsizetype>(order)], row);
        EXPECT_GE(row.dishes, 30);
        EXPECT_THAT(row.languages, Each(row.dishes));
        // The days of Attack and Cruise are filled from these without asking the user.
        const QList<size_t> forFilling{1, 2, 3, 5, 7};
        if (forFilling.contains(order)) {
            EXPECT_GE(row.phases[0], 14);
            EXPECT_GE(row.phases[1], 24);
        }
        all.dishes += row.dishes;
        for (size_t i = 0; i < row.phases.size(); ++i)
            all.phases[i] += row.phases[i];
        for (size_t i = 0; i < row.languages.size(); ++i)
            all.languages[i] += row.languages[i];
    }
    print(QStringLiteral("all"), all);
    EXPECT_GE(all.dishes, 320);
    EXPECT_EQ(all.dishes, ShippedContent::get().dishes().size());
}

TEST(ReferenceLists, ProductsHaveAKindAndPhasesThatGoTogether)
{
    const QList<Product> &products = ShippedContent::get().products();
    EXPECT_THAT(products, SizeIs(Ge(180)));
    std::array<int, 4> kinds{};
    for (const Product &product : products) {
        SCOPED_TRACE(product.names[English].toStdString());
        ASSERT_TRUE(product.kind >= 0 && product.kind <= 3) << product.kind;
        ++kinds[product.kind];
        const QString phases = product.phases.join(QString());
        EXPECT_TRUE(QStringLiteral("0123").endsWith(phases) && !phases.isEmpty()) << phases.toStdString();
        EXPECT_EQ(product.kind == 1, phases == u"3") << "what is forbidden is for Stabilization only, and the reverse";
        if (product.kind == kTolerated) {
            EXPECT_EQ(phases, QStringLiteral("123"));
        }
        for (const Language language : kLanguages) {
            const QString &name = product.names[language];
            // The shopping list cuts a text at " - " and takes one that begins with "-" for a heading.
            EXPECT_FALSE(name.contains(QStringLiteral(" - ")) || name.startsWith(u'-') || name.contains(u','));
            EXPECT_EQ(name, name.simplified());
            EXPECT_TRUE(!name.isEmpty() && name[0].isUpper());
        }
    }
    EXPECT_THAT(kinds, Each(Ge(2)));
}

TEST(ReferenceLists, NamesAreInTheScriptOfTheirLanguage)
{
    static const std::array<QRegularExpression, 2> foreign{QRegularExpression(QStringLiteral("[A-Za-zÀ-ɏ]")),
                                                           QRegularExpression(QStringLiteral("[\\x{400}-\\x{52f}]"))};
    for (const Product &product : ShippedContent::get().products()) {
        for (const Language language : kLanguages)
            EXPECT_FALSE(product.names[language].contains(foreign[language])) << product.names[language].toStdString();
    }
}
