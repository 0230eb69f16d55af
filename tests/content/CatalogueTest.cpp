#include "content/ShippedContent.h"

#include <gmock/gmock.h>

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
constexpr int kTolerated = 2;

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

TEST(Catalogue, HoldsEnoughForEveryCategoryPhaseAndLanguage)
{
    const std::array<Counts, 9> counts = countsByCategory();
    int all = 0;
    for (size_t order = 0; order < counts.size(); ++order) {
        SCOPED_TRACE(kCategories[static_cast<qsizetype>(order)].toStdString());
        const Counts &row = counts[order];
        EXPECT_GE(row.dishes, 30);
        EXPECT_THAT(row.languages, Each(row.dishes));
        // The days of Attack and Cruise are filled from these without asking the user.
        const QList<size_t> forFilling{1, 2, 3, 5, 7};
        if (forFilling.contains(order)) {
            EXPECT_GE(row.phases[0], 14);
            EXPECT_GE(row.phases[1], 24);
        }
        all += row.dishes;
    }
    EXPECT_GE(all, 320);
    EXPECT_EQ(all, ShippedContent::get().dishes().size());
}

// The tool knows the kinds and the sets of phases; which go together is this catalogue's matter.
TEST(ReferenceLists, ProductsHaveAKindAndPhasesThatGoTogether)
{
    const QList<Product> &products = ShippedContent::get().products();
    EXPECT_THAT(products, SizeIs(Ge(180)));
    std::array<int, 4> kinds{};
    for (const Product &product : products) {
        SCOPED_TRACE(product.names[English].toStdString());
        ASSERT_TRUE(product.kind >= 0 && product.kind <= 3) << product.kind;
        ++kinds[product.kind];
        EXPECT_EQ(product.kind == 1, product.phases == u"3")
            << "what is forbidden is for Stabilization only, and the reverse";
        if (product.kind == kTolerated) {
            EXPECT_EQ(product.phases, QStringLiteral("123"));
        }
    }
    EXPECT_THAT(kinds, Each(Ge(2)));
}
