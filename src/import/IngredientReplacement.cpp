#include "import/IngredientReplacement.h"

#include "model/Dish.h"
#include "model/Ingredient.h"
#include "model/PurhaseIngredient.h"
#include "platform/objectgraph/ManagedObjectContext.h"

namespace kesto
{

Result<IngredientReplacement> IngredientReplacement::load(ManagedObjectContext &context)
{
    FetchRequest request;
    request.relationshipKeyPathsForPrefetching = {"ingredient"};
    const auto purchases = context.fetch<PurhaseIngredient>(request);
    if (!purchases)
        return tl::unexpected(purchases.error());
    IngredientReplacement replacement(context);
    for (PurhaseIngredient *purchase : *purchases) {
        if (Ingredient *line = purchase->ingredient())
            replacement.purchases_[line].push_back(purchase);
    }
    return replacement;
}

void IngredientReplacement::removeLines(Dish &dish)
{
    const std::vector<Ingredient *> russian = dish.ingredientsRU();
    if (russian.empty())
        return;
    for (Ingredient *line : russian)
        remove(*line);
    for (Ingredient *line : dish.ingredientsENG())
        remove(*line);
}

void IngredientReplacement::remove(Ingredient &line)
{
    line.setDishENG(nullptr);
    line.setDishRU(nullptr);
    if (purchases_.contains(&line))
        kept_.push_back(&line);
    else
        context_->deleteObject(line);
}

void IngredientReplacement::relinkPurchases(const Dish &dish)
{
    if (kept_.empty())
        return;
    QHash<QString, Ingredient *> lines;
    for (const auto &list : {dish.ingredientsENG(), dish.ingredientsRU()}) {
        for (Ingredient *line : list)
            lines.insert(line->name(), line);
    }
    for (Ingredient *old : kept_) {
        Ingredient *successor = lines.value(old->name());
        if (successor == nullptr)
            continue; // the dish dropped it, the shopping list did not
        for (PurhaseIngredient *purchase : purchases_.take(old)) {
            purchase->setIngredient(successor);
            purchases_[successor].push_back(purchase);
        }
        context_->deleteObject(*old);
    }
    kept_.clear();
}

} // namespace kesto
