#pragma once

#include "platform/Error.h"

#include <QString>
#include <QStringList>
#include <QVariantList>

namespace kesto
{

class Dish;
class ManagedObjectContext;

/// Copies the shipped catalogue into the store. Dishes are found by their identifier and updated in place, so
/// everything that the user attached to them stays. Their ingredient lines are replaced. Main thread only.
class SQLiteParser
{
public:
    /// Imports the resource "recipes.plist" into the main context and saves. A file that is no catalogue is logged and
    /// changes nothing; that is no error. An error means that the store could not be read, and then nothing changed, or
    /// that the import could not be saved, and then it goes along with the next save.
    [[nodiscard]] static Result<void> parse();

    /// The same for "dishes.json", the text format of earlier catalogues.
    [[nodiscard]] static Result<void> oldParse();

    /// The records of a resource "<name>.json" in the earlier format, as dictionaries: "ID", "Category", "CategoryEng",
    /// "ProdName", "ProdNameEng", "ProdTxt", "ProdTxtEng", "ProdCat" (texts), "Ingred", "IngredEng" (lists of texts).
    /// Empty, with a log line, when the file cannot be read or is not UTF-8. An error when a record lacks a field.
    [[nodiscard]] static Result<QVariantList> parsedRecipesFromFile(const QString &name);

    /// Inserts a line for each text and links it to the dish through the line's relationship "dishRU" or "dishENG".
    static void addIngredientsToDish(Dish *dish, const QStringList &fromArray, const QString &withDishKeyInIngredient,
                                     ManagedObjectContext &context);
};

} // namespace kesto
