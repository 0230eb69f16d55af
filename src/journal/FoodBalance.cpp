#include "journal/FoodBalance.h"

#include "model/FoodObject.h"
#include "platform/StringFormat.h"
#include "platform/StringTables.h"

#include <algorithm>
#include <limits>

namespace kesto
{

namespace
{

/// The pictures leave the number 12 out.
constexpr int lastTypeOfItsPicture = 11;
constexpr int oldAge = 40;

using Norms = std::array<int, activityCount + 1>;
constexpr Norms normsOfYoungMen{80, 96, 99, 102, 108};
constexpr Norms normsOfOldMen{75, 89, 92, 93, 100};
constexpr Norms normsOfYoungWomen{71, 82, 84, 86, 92};
constexpr Norms normsOfOldWomen{68, 75, 77, 79, 85};

} // namespace

const std::array<Food, foodCount> &meatVals()
{
    using enum Food::Kind;
    static constexpr std::array<Food, foodCount> foods{{
        {2.5, Vegetable}, {16, Meat},       {25, Fish},       {12.5, Egg},  {45, Egg},      {19.5, Meat},
        {18.5, Fish},     {15, Meat},       {17.5, Grain},    {19.5, Fish}, {16, Fish},     {27, Dairy},
        {11.5, Fish},     {16, Fish},       {18, Dairy},      {40, Meat},   {21, Meat},     {20.5, Fish},
        {5, Vegetable},   {7, Grain},       {7, Fish},        {10, Dairy},  {2, Vegetable}, {1.8, Vegetable},
        {1.3, Vegetable}, {1.7, Vegetable}, {0.4, Fruit},     {0.4, Fruit}, {0.5, Fruit},   {5, Dairy},
        {1.3, Vegetable}, {1.5, Vegetable}, {0.7, Vegetable}, {0.7, Fruit}, {16, Grain},    {18.6, Meat},
        {12, Dairy},      {3, Dairy},       {0.7, Fruit},     {24, Meat},
    }};
    return foods;
}

const Food *foodOfType(std::optional<int> type)
{
    if (!type || *type < 1 || *type > foodCount)
        return nullptr;
    return &meatVals()[static_cast<size_t>(*type - 1)];
}

QString foodImage(std::optional<int> type)
{
    if (foodOfType(type) == nullptr)
        return QStringLiteral("protein");
    return stringWithFormat("meat_%ld", *type <= lastTypeOfItsPicture ? *type : *type + 1);
}

QString foodName(std::optional<int> type)
{
    return foodOfType(type) != nullptr ? localized(stringWithFormat("meat_name_%ld", *type)) : QString();
}

QString foodProteinText(std::optional<int> type)
{
    const Food *food = foodOfType(type);
    return food != nullptr ? stringWithFormat("%@ %@", food->protein, localized(QStringLiteral("г."))) : QString();
}

int foodPortions(const FoodObject &record) { return std::max(record.count().value_or(0), 0); }

int proteinEaten(const std::vector<FoodObject *> &records)
{
    qint64 sum = 0;
    for (const FoodObject *record : records) {
        if (const Food *food = foodOfType(record->type()))
            sum += static_cast<qint64>(foodPortions(*record)) * static_cast<qint64>(food->protein);
    }
    return static_cast<int>(std::min<qint64>(sum, std::numeric_limits<int>::max()));
}

int proteinNorm(bool man, qint64 age, int activity)
{
    const Norms &norms =
        man ? (age > oldAge ? normsOfOldMen : normsOfYoungMen) : (age > oldAge ? normsOfOldWomen : normsOfYoungWomen);
    return norms[activity >= 1 && activity <= activityCount ? static_cast<size_t>(activity) : 0];
}

} // namespace kesto
