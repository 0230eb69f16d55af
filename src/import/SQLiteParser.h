#pragma once

#include <QString>
#include <QStringList>
#include <QVariantList>

namespace kesto
{

class Dish;
class ManagedObjectContext;

/// Copies the shipped catalogue into the store. Dishes are found by their identifier and brought up to date in place,
/// so all that the user attached to them stays; their ingredient lines are replaced. Main thread only.
class SQLiteParser
{
public:
    /// Imports the resource "recipes.plist" into the main context and saves. A file that is no catalogue is logged and
    /// changes nothing.
    static void parse();

    /// The same for "dishes.json", the text format of earlier catalogues.
    static void oldParse();

    /// The records of a resource "<name>.json" in the earlier format, as dictionaries: "ID", "Category", "CategoryEng",
    /// "ProdName", "ProdNameEng", "ProdTxt", "ProdTxtEng", "ProdCat" (texts), "Ingred", "IngredEng" (lists of texts).
    /// Empty for a file that can't be read or holds none; throws std::out_of_range when a record lacks one of its
    /// fields.
    [[nodiscard]] static QVariantList parsedRecipesFromFile(const QString &name);

    /// Inserts a line for each text and links it to the dish through its relationship of that name, "dishRU" or
    /// "dishENG".
    static void addIngredientsToDish(Dish *dish, const QStringList &fromArray, const QString &withDishKeyInIngredient,
                                     ManagedObjectContext &context);
};

} // namespace kesto
