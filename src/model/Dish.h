#pragma once

#include "platform/Error.h"
#include "platform/objectgraph/ManagedObject.h"

#include <vector>

namespace kesto
{

class DishInDietDay;
class DishesCategory;
class Image;
class Ingredient;

/// One recipe of the catalogue or of the user.
class Dish final : public StoredObject<8, 2, 3>
{
public:
    static constexpr char kTypeTag = 0; ///< its address stands for the class

    Dish(const EntityDescription &entity, ManagedObjectContext &context, qint64 id)
        : StoredObject(entity, context, id)
    {
    }
    [[nodiscard]] static EntityDescription description();

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

    [[nodiscard]] QString dishID() const { return textAt(0); } ///< key for the import; null for a dish of the user
    void setDishID(const QString &value) { setTextAt(0, value); }
    [[nodiscard]] QString nameRU() const { return textAt(1); } ///< also the identity among the favourites
    void setNameRU(const QString &value) { setTextAt(1, value); }
    [[nodiscard]] QString nameENG() const { return textAt(2); }
    void setNameENG(const QString &value) { setTextAt(2, value); }
    [[nodiscard]] QString recipeRU() const { return textAt(3); }
    void setRecipeRU(const QString &value) { setTextAt(3, value); }
    [[nodiscard]] QString recipeENG() const { return textAt(4); }
    void setRecipeENG(const QString &value) { setTextAt(4, value); }
    [[nodiscard]] QString dietPeriod() const { return textAt(5); } ///< the digits of the phases that allow the dish
    void setDietPeriod(const QString &value) { setTextAt(5, value); }
    [[nodiscard]] std::optional<bool> recipeNew() const { return flagAt(6); } ///< not opened since it came
    void setRecipeNew(std::optional<bool> value) { setIntegerAt(6, value); }
    [[nodiscard]] std::optional<bool> userCreated() const { return flagAt(7); }
    void setUserCreated(std::optional<bool> value) { setIntegerAt(7, value); }

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
};

} // namespace kesto
