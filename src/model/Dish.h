#pragma once

#include "platform/Error.h"
#include "platform/objectgraph/StoredObject.h"

#include <vector>

namespace kesto
{

class DishInDietDay;
class DishesCategory;
class Image;
class Ingredient;

/// One recipe of the catalogue or of the user.
class Dish final
    : public StoredObject<
          "Dish",
          Attributes<Attribute<"dishID", QString, Index::Yes>, Attribute<"nameRU", QString, Index::Yes>,
                     Attribute<"nameENG", QString>, Attribute<"recipeRU", QString>, Attribute<"recipeENG", QString>,
                     Attribute<"dietPeriod", QString>, Attribute<"recipeNew", bool>, Attribute<"userCreated", bool>>,
          Relationships<ToOne<"dishCategory", DishesCategory, "dishes">, ToOne<"image", Image, "dish", Tie::Owns>,
                        ToMany<"dishInDietDays", DishInDietDay, "dish", Tie::Owns>,
                        ToMany<"ingredientsRU", Ingredient, "dishRU", Tie::Owns>,
                        ToMany<"ingredientsENG", Ingredient, "dishENG", Tie::Owns>>>
{
public:
    using StoredObject::StoredObject;

    /// The dish of an identifier. A new one is marked as a new recipe and not saved. An error, which was logged, when
    /// it could not be looked up.
    [[nodiscard]] static Result<Dish *> dishWithID(const QString &dishID, ManagedObjectContext &inManagedObjectContext);
    /// A new dish of an identifier, marked as a new recipe.
    static Dish &insertWithID(const QString &dishID, ManagedObjectContext &context);
    /// The dish of exactly this Russian name; null when there is none or, with a line in the log, when it could not be
    /// looked up.
    [[nodiscard]] static Dish *dishWithRusName(const QString &nameRU, ManagedObjectContext &inManagedObjectContext);

    /// The name in the language of the interface; the Russian one, and a line in the log, when the string table does
    /// not say which one that is.
    [[nodiscard]] QString displayName() const;
    /// Letter for letter; dishes of one name stay in the order of their making.
    static void sortByDisplayName(std::vector<Dish *> &dishes);
    /// Whether the dish is allowed in a phase: its phases, as text, contain the number.
    [[nodiscard]] bool belongsToPhase(int phase) const { return dietPeriod().contains(QString::number(phase)); }

    /// The ingredient lines in the language of the interface, in their order.
    [[nodiscard]] std::vector<Ingredient *> ingredients() const;

    /// Key for the import; null for a dish of the user.
    [[nodiscard]] QString dishID() const { return get<"dishID">(); }
    void setDishID(const QString &value) { set<"dishID">(value); }
    [[nodiscard]] QString nameRU() const { return get<"nameRU">(); } ///< also the identity among the favourites
    void setNameRU(const QString &value) { set<"nameRU">(value); }
    [[nodiscard]] QString nameENG() const { return get<"nameENG">(); }
    void setNameENG(const QString &value) { set<"nameENG">(value); }
    [[nodiscard]] QString recipeRU() const { return get<"recipeRU">(); }
    void setRecipeRU(const QString &value) { set<"recipeRU">(value); }
    [[nodiscard]] QString recipeENG() const { return get<"recipeENG">(); }
    void setRecipeENG(const QString &value) { set<"recipeENG">(value); }
    /// The digits of the phases that allow the dish.
    [[nodiscard]] QString dietPeriod() const { return get<"dietPeriod">(); }
    void setDietPeriod(const QString &value) { set<"dietPeriod">(value); }
    [[nodiscard]] std::optional<bool> recipeNew() const { return get<"recipeNew">(); } ///< not opened since it came
    void setRecipeNew(std::optional<bool> value) { set<"recipeNew">(value); }
    [[nodiscard]] std::optional<bool> userCreated() const { return get<"userCreated">(); }
    void setUserCreated(std::optional<bool> value) { set<"userCreated">(value); }

    [[nodiscard]] DishesCategory *dishCategory() const;
    void setDishCategory(DishesCategory *value);
    [[nodiscard]] Image *image() const;
    void setImage(Image *value);
    [[nodiscard]] std::vector<DishInDietDay *> dishInDietDays() const; ///< every planning of this dish
    void addDishInDietDays(DishInDietDay &object);
    void removeDishInDietDays(DishInDietDay &object);
    [[nodiscard]] std::vector<Ingredient *> ingredientsRU() const;
    void addIngredientsRU(Ingredient &object);
    void removeIngredientsRU(Ingredient &object);
    [[nodiscard]] std::vector<Ingredient *> ingredientsENG() const;
    void addIngredientsENG(Ingredient &object);
    void removeIngredientsENG(Ingredient &object);

private:
    [[nodiscard]] static int displayNameSlot(const EntityDescription &entity);
};

} // namespace kesto
