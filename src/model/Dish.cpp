#include "model/Dish.h"

#include "model/DishInDietDay.h"
#include "model/DishesCategory.h"
#include "model/Image.h"
#include "model/Ingredient.h"
#include "model/Lookup.h"
#include "platform/Log.h"
#include "platform/StringTables.h"

#include <algorithm>

namespace kesto
{

DishesCategory *Dish::dishCategory() const { return one<"dishCategory">(); }

void Dish::setDishCategory(DishesCategory *value) { setOne<"dishCategory">(value); }

Image *Dish::image() const { return one<"image">(); }

void Dish::setImage(Image *value) { setOne<"image">(value); }

std::vector<DishInDietDay *> Dish::dishInDietDays() const { return many<"dishInDietDays">(); }

void Dish::addDishInDietDays(DishInDietDay &object) { add<"dishInDietDays">(object); }

void Dish::removeDishInDietDays(DishInDietDay &object) { remove<"dishInDietDays">(object); }

std::vector<Ingredient *> Dish::ingredientsRU() const { return many<"ingredientsRU">(); }

void Dish::addIngredientsRU(Ingredient &object) { add<"ingredientsRU">(object); }

void Dish::removeIngredientsRU(Ingredient &object) { remove<"ingredientsRU">(object); }

std::vector<Ingredient *> Dish::ingredientsENG() const { return many<"ingredientsENG">(); }

void Dish::addIngredientsENG(Ingredient &object) { add<"ingredientsENG">(object); }

void Dish::removeIngredientsENG(Ingredient &object) { remove<"ingredientsENG">(object); }

Result<Dish *> Dish::dishWithID(const QString &dishID, ManagedObjectContext &inManagedObjectContext)
{
    auto known = lastMatchOrLog<Dish>(inManagedObjectContext, attribute("dishID") == dishID, "dishWithID");
    if (!known || *known != nullptr)
        return known;
    return &insertWithID(dishID, inManagedObjectContext);
}

Dish &Dish::insertWithID(const QString &dishID, ManagedObjectContext &context)
{
    auto &dish = context.insert<Dish>();
    dish.setDishID(dishID);
    dish.setRecipeNew(true);
    return dish;
}

Dish *Dish::dishWithRusName(const QString &nameRU, ManagedObjectContext &inManagedObjectContext)
{
    return lastMatchOrLog<Dish>(inManagedObjectContext, attribute("nameRU") == nameRU, "dishWithRusName")
        .value_or(nullptr);
}

// The string table of each language names the attribute that holds its names.
int Dish::displayNameSlot(const EntityDescription &entity)
{
    const QString key = localized(QStringLiteral("nameKey"));
    const auto named = entity.property(key.toStdString());
    if (named && named->kind == PropertyReference::Kind::Attribute &&
        entity.attributes()[static_cast<size_t>(named->slot)].type == AttributeType::String)
        return named->slot;
    log("Dish has no name - %@", key);
    return slotOf<"nameRU">();
}

QString Dish::displayName() const { return accessed<QString>(attributeAt(displayNameSlot(entity()))); }

void Dish::sortByDisplayName(std::vector<Dish *> &dishes)
{
    if (dishes.empty())
        return;
    const int slot = displayNameSlot(dishes.front()->entity());
    std::sort(dishes.begin(), dishes.end(), [slot](const Dish *left, const Dish *right) {
        const int order = compareValues(left->attributeAt(slot), right->attributeAt(slot));
        return order != 0 ? order < 0 : left->objectID() < right->objectID();
    });
}

std::vector<Ingredient *> Dish::ingredients() const
{
    const QString key = localized(QStringLiteral("ingKey"));
    const RelationshipDescription *list = entity().relationship(key.toStdString());
    const bool fits = list != nullptr && list->toMany && list->destination == "Ingredient";
    if (!fits)
        log("Dish has no ingredients - %@", key);
    auto lines = fits ? objectsAt<Ingredient>(list->slot) : ingredientsRU();
    std::stable_sort(lines.begin(), lines.end(), [](const Ingredient *left, const Ingredient *right) {
        return left->displayOrder() < right->displayOrder();
    });
    return lines;
}

} // namespace kesto
