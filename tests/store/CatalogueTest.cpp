#include "StoreFixture.h"

#include "model/Dish.h"
#include "model/DishesCategory.h"
#include "model/Ingredient.h"
#include "platform/PropertyList.h"

namespace kesto::test
{
namespace
{

using testing::ElementsAre;

Dish &addDish(ManagedObjectContext &context, const char *nameRU, const char *nameENG, const char *periods,
              const char *category)
{
    auto &dish = *Dish::dishWithID(QString::fromUtf8(nameENG), context).value();
    dish.setNameRU(QString::fromUtf8(nameRU));
    dish.setNameENG(QString::fromUtf8(nameENG));
    dish.setDietPeriod(QString::fromUtf8(periods));
    dish.setDishCategory(DishesCategory::dishCategoryWirhRusName(QString::fromUtf8(category), {}, context).value());
    return dish;
}

std::vector<QStringList> sections(const QVariantList &found)
{
    std::vector<QStringList> result;
    for (const QVariant &element : found) {
        const QVariantMap section = element.toMap();
        QStringList texts{section.value(QStringLiteral("section name")).toString()};
        for (const QVariant &dish : section.value(QStringLiteral("section content")).toList())
            texts.append(dish.value<KeyValueCoding *>()->valueForKey(QStringLiteral("nameRU")).toString());
        result.push_back(texts);
    }
    return result;
}

TEST(CatalogueOfAPhase, IsSortedByCategoryAndName)
{
    StoreFixture program;
    ManagedObjectContext &context = program.context();
    addDish(context, "Яйцо", "Egg", "0, 1", "Соусы");
    addDish(context, "Айран", "Yoghurt drink", "01", "Соусы");
    addDish(context, "Суп", "Soup", "12", "Первые блюда");
    addDish(context, "Прочее", "Other", "1", "Неизвестное");
    addDish(context, "Торт", "Cake", "3", "Десерты");
    addDish(context, "Без фаз", "None", "", "Салаты").setDietPeriod({});
    EXPECT_THAT(sections(program.manager().dishesForDietPeriod(1)),
                ElementsAre(texts({"Первые блюда", "Суп"}), texts({"Соусы", "Айран", "Яйцо"}),
                            texts({"Неизвестное", "Прочее"})));
    EXPECT_TRUE(program.manager().dishesForDietPeriod(7).isEmpty());
    EXPECT_EQ(program.manager().dishesCategoryForIndex(8)->nameRU(), QStringLiteral("Соусы"));
    EXPECT_EQ(program.manager().dishesCategoryForIndex(6), nullptr);
}

TEST(CatalogueExport, WritesEveryDishInTheLayoutOfTheCatalogue)
{
    StoreFixture program;
    ManagedObjectContext &context = program.context();
    addDish(context, "Второе", "b", "1", "Соусы");
    Dish &first = addDish(context, "Первое", "a", "0, 1", "Соусы");
    first.setRecipeRU(QStringLiteral("Смешать. Подать."));
    for (const char *name : {"Яйцо - 2 шт.", "Соль"}) {
        auto &line = context.insert<Ingredient>();
        line.setName(QString::fromUtf8(name));
        first.addIngredientsRU(line);
    }
    ASSERT_TRUE(program.manager().saveRecipesToPlist());
    const auto list = PropertyList::read(program.path("recipes.plist"));
    ASSERT_TRUE(list.has_value());
    const QVariantList dishes = list->toList();
    ASSERT_EQ(dishes.size(), 2);
    const QVariantMap dish = dishes[0].toMap();
    EXPECT_EQ(dish.value(QStringLiteral("dishID")), QStringLiteral("a"));
    EXPECT_EQ(dish.value(QStringLiteral("nameRU")), QStringLiteral("Первое"));
    EXPECT_EQ(dish.value(QStringLiteral("recipeRU")), QStringLiteral("Смешать. Подать."));
    EXPECT_FALSE(dish.contains(QStringLiteral("recipeENG")));
    EXPECT_EQ(dish.value(QStringLiteral("catRU")), QStringLiteral("Соусы"));
    EXPECT_EQ(dish.value(QStringLiteral("ingredientsRU")).toStringList(),
              (QStringList{QStringLiteral("Яйцо - 2 шт."), QStringLiteral("Соль")}));
    EXPECT_TRUE(dish.value(QStringLiteral("ingredientsENG")).toStringList().isEmpty());
}

TEST(CatalogueReimport, RunsOnceInALifetime)
{
    StoreFixture program;
    int runs = 0;
    for (int start = 0; start < 2; ++start) {
        program.manager().reparseSqliteIfNeeded([&] { ++runs; });
        program.manager().reparseSqliteIfNeeded([&] { ++runs; });
        program.restart();
    }
    EXPECT_EQ(runs, 1);
}

} // namespace
} // namespace kesto::test
