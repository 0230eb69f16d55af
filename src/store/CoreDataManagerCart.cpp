// The store manager's operations on the shopping list.

#include "model/Dish.h"
#include "model/Ingredient.h"
#include "model/Lookup.h"
#include "model/PurhaseIngredient.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "store/CoreDataManager.h"

#include <algorithm>

namespace kesto
{

namespace
{

void remove(PurhaseIngredient &line)
{
    ManagedObjectContext &context = line.managedObjectContext();
    Ingredient *product = line.ingredient();
    if (product != nullptr && product->dishRU() == nullptr && product->dishENG() == nullptr)
        context.deleteObject(*product);
    context.deleteObject(line);
}

} // namespace

std::vector<PurhaseIngredient *> CoreDataManager::purhaseIngredients()
{
    FetchRequest request;
    request.sortDescriptors = {{"date", false}};
    request.fetchBatchSize = 100;
    request.relationshipKeyPathsForPrefetching = {"ingredient"}; // every line shows its product's name
    std::vector<PurhaseIngredient *> lines = context_->fetchOrLog<PurhaseIngredient>(request);
    // Lines of the same instant: the one inserted last comes first.
    for (auto run = lines.begin(); run != lines.end();) {
        const auto end = std::find_if(
            run, lines.end(), [date = (*run)->date()](const PurhaseIngredient *line) { return line->date() != date; });
        std::reverse(run, end);
        run = end;
    }
    return lines;
}

PurhaseIngredient *CoreDataManager::purchaseIngredintWithIng(const Ingredient &ingredient)
{
    return lineOf(ingredient).value_or(nullptr);
}

Result<PurhaseIngredient *> CoreDataManager::lineOf(const Ingredient &ingredient)
{
    return lastMatchOrLog<PurhaseIngredient>(*context_, attribute("ingredient.name") == ingredient.name(),
                                             "purchaseIngredintWithIng");
}

void CoreDataManager::addIngredientToCard(const QString &text)
{
    if (text.startsWith(u'-'))
        return;
    const qsizetype quantity = text.indexOf(QStringLiteral(" - "));
    const QString name = quantity < 0 ? text : text.left(quantity);
    const auto ingredient = Ingredient::ingredientWithName(name, *context_);
    if (!ingredient)
        return;
    const auto known = lineOf(**ingredient);
    if (!known)
        return; // a second line of the same product would be one too many
    PurhaseIngredient *line = *known;
    if (line == nullptr) {
        line = &context_->insert<PurhaseIngredient>();
        line->setIngredient(*ingredient);
    }
    line->setDate(platform_.clock().now());
    context_->saveOrKeepChanges();
}

void CoreDataManager::removePurchaseIngredientFromCard(PurhaseIngredient &line)
{
    remove(line);
    context_->saveOrKeepChanges();
}

void CoreDataManager::removeAllPurchaseIngredientsFromCard()
{
    FetchRequest request;
    request.relationshipKeyPathsForPrefetching = {"ingredient.purchaseIngredient"};
    for (PurhaseIngredient *line : context_->fetchOrLog<PurhaseIngredient>(request))
        remove(*line);
    context_->saveOrKeepChanges();
}

} // namespace kesto
