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

namespace
{

constexpr int kNameRU = 1;

/// The string table of each language names the attribute that holds its names.
int displayNameSlot(const EntityDescription &entity)
{
    const QString key = localized(QStringLiteral("nameKey"));
    const auto isText = [&](const std::optional<PropertyReference> &property) {
        return property && property->kind == PropertyReference::Kind::Attribute &&
               entity.attributes()[static_cast<size_t>(property->slot)].type == AttributeType::String;
    };
    if (const auto named = entity.property(key.toStdString()); isText(named))
        return named->slot;
    log("Dish has no name - %@", key);
    return kNameRU;
}

} // namespace

EntityDescription Dish::description()
{
    return {"Dish",
            {{"dishID", AttributeType::String, true},
             {"nameRU", AttributeType::String, true},
             {"nameENG", AttributeType::String},
             {"recipeRU", AttributeType::String},
             {"recipeENG", AttributeType::String},
             {"dietPeriod", AttributeType::String},
             {"recipeNew", AttributeType::Boolean},
             {"userCreated", AttributeType::Boolean}},
            {{.name = "dishCategory", .destination = "DishesCategory", .inverse = "dishes"},
             {.name = "image", .destination = "Image", .inverse = "dish", .deleteRule = DeleteRule::Cascade},
             {.name = "dishInDietDays",
              .destination = "DishInDietDay",
              .inverse = "dish",
              .toMany = true,
              .deleteRule = DeleteRule::Cascade},
             {.name = "ingredientsRU",
              .destination = "Ingredient",
              .inverse = "dishRU",
              .toMany = true,
              .deleteRule = DeleteRule::Cascade},
             {.name = "ingredientsENG",
              .destination = "Ingredient",
              .inverse = "dishENG",
              .toMany = true,
              .deleteRule = DeleteRule::Cascade}},
            &kTypeTag,
            &makeObject<Dish>};
}

DishesCategory *Dish::dishCategory() const { return static_cast<DishesCategory *>(toOne(0)); }

void Dish::setDishCategory(DishesCategory *value) { setToOne(0, value); }

Image *Dish::image() const { return static_cast<Image *>(toOne(1)); }

void Dish::setImage(Image *value) { setToOne(1, value); }

std::vector<DishInDietDay *> Dish::dishInDietDays() const { return objectsAt<DishInDietDay>(0); }

void Dish::addDishInDietDays(DishInDietDay &object) { addToMany(0, &object); }

void Dish::removeDishInDietDays(DishInDietDay &object) { removeFromMany(0, &object); }

std::vector<Ingredient *> Dish::ingredientsRU() const { return objectsAt<Ingredient>(1); }

void Dish::addIngredientsRU(Ingredient &object) { addToMany(1, &object); }

void Dish::removeIngredientsRU(Ingredient &object) { removeFromMany(1, &object); }

std::vector<Ingredient *> Dish::ingredientsENG() const { return objectsAt<Ingredient>(2); }

void Dish::addIngredientsENG(Ingredient &object) { addToMany(2, &object); }

void Dish::removeIngredientsENG(Ingredient &object) { removeFromMany(2, &object); }

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

QString Dish::displayName() const { return textAt(displayNameSlot(entity())); }

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
