#include "import/SQLiteParser.h"

#include "import/IngredientReplacement.h"
#include "model/Dish.h"
#include "model/DishesCategory.h"
#include "model/Ingredient.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "store/CoreDataManager.h"
#include "util/Parsing.h"
#include "util/SKHelpManager.h"

#include <QFile>

#include <stdexcept>

namespace kesto
{

namespace
{

const QStringList &textKeys()
{
    static const QStringList keys{QStringLiteral("dishID"),     QStringLiteral("nameRU"),   QStringLiteral("nameENG"),
                                  QStringLiteral("dietPeriod"), QStringLiteral("recipeRU"), QStringLiteral("recipeENG"),
                                  QStringLiteral("catRU"),      QStringLiteral("catENG")};
    return keys;
}

/// Why an element of the catalogue can't be a dish; null when it can.
QString fault(const QVariant &element)
{
    if (element.typeId() != QMetaType::QVariantMap)
        return QStringLiteral("is not a dictionary");
    const QVariantMap record = element.toMap();
    for (const QString &key : textKeys()) {
        if (const QVariant value = record.value(key); value.isValid() && value.typeId() != QMetaType::QString)
            return QStringLiteral("\"%1\" is not a text").arg(key);
    }
    if (record.value(QStringLiteral("dishID")).toString().isEmpty())
        return QStringLiteral("has no \"dishID\"");
    for (const QString &key : {QStringLiteral("ingredientsRU"), QStringLiteral("ingredientsENG")}) {
        const QVariant value = record.value(key);
        if (value.isValid() && value.typeId() != QMetaType::QVariantList)
            return QStringLiteral("\"%1\" is not an array").arg(key);
        for (const QVariant &line : value.toList()) {
            if (line.typeId() != QMetaType::QString)
                return QStringLiteral("\"%1\" holds something that is not a text").arg(key);
        }
    }
    return {};
}

/// Null when the key is absent.
QString text(const QVariantMap &record, const char *key) { return record.value(QLatin1String(key)).toString(); }

void addLines(ManagedObjectContext &context, const QVariantList &names, Dish &dish, void (Dish::*add)(Ingredient &))
{
    int order = 0;
    for (const QVariant &name : names) {
        auto &line = context.insert<Ingredient>();
        line.setName(name.toString());
        line.setDisplayOrder(order++);
        (dish.*add)(line);
    }
}

/// The dishes with all that an update touches, in a number of statements that does not depend on how many there are.
std::vector<Dish *> loadCatalogue(ManagedObjectContext &context)
{
    FetchRequest everything;
    everything.relationshipKeyPathsForPrefetching = {"dishCategory", "ingredientsRU", "ingredientsENG",
                                                     "ingredientsRU.purchaseIngredient",
                                                     "ingredientsENG.purchaseIngredient"};
    return context.fetchOrLog<Dish>(everything);
}

/// Something could not be read: going on would make dishes and categories a second time.
void endWithoutImport(ManagedObjectContext &context)
{
    context.rollback();
    log(QStringLiteral("end parsing"));
}

const QString kIdMarker = QStringLiteral("ID\":\"");

/// A digit of the earlier catalogue counts the phases from 1.
QString shiftedPeriod(QString period)
{
    for (const auto &[from, to] : {std::pair(u'1', u'0'), {u'2', u'1'}, {u'3', u'2'}, {u'4', u'3'}})
        period.replace(QChar(from), QChar(to));
    return period;
}

QVariantMap parsedRecord(const QString &piece)
{
    QVariantMap record{{QStringLiteral("ID"), stringBySubtractingWithEndString(piece, QStringLiteral("\""))}};
    for (const char *key : {"Category", "CategoryEng", "ProdName", "ProdNameEng", "ProdTxt", "ProdTxtEng", "ProdCat"}) {
        const QString name = QLatin1String(key);
        const QString value =
            stringBySubtractingWithBeginString(piece, name + QStringLiteral("\":\""), QStringLiteral("\""));
        record.insert(name, stringByRemovingWhiteSpaceInBegining(value));
    }
    for (const char *key : {"Ingred", "IngredEng"}) {
        const QString name = QLatin1String(key);
        const QString lines =
            stringBySubtractingWithBeginString(piece, name + QStringLiteral("\":[\""), QStringLiteral("\"]"));
        record.insert(name, lines.split(QStringLiteral("\", \"")));
    }
    return record;
}

} // namespace

void SQLiteParser::parse()
{
    log(QStringLiteral("start parsing"));
    ManagedObjectContext &context = *CoreDataManager::sharedManager().managedObjectContext();
    const QVariantList recipes = SKHelpManager::arrayFromPlist(QStringLiteral("recipes")).value_or(QVariantList());
    for (qsizetype i = 0; i < recipes.size(); ++i) {
        if (const QString reason = fault(recipes[i]); !reason.isNull()) {
            log("recipes: element %ld %@, nothing was imported", i, reason);
            log(QStringLiteral("end parsing"));
            return;
        }
    }
    (void)loadCatalogue(context);
    IngredientReplacement replacement(context);
    for (const QVariant &element : recipes) {
        const QVariantMap record = element.toMap();
        const QString dishID = text(record, "dishID");
        const auto found = Dish::dishWithID(dishID, context);
        const auto category =
            DishesCategory::dishCategoryWirhRusName(text(record, "catRU"), text(record, "catENG"), context);
        if (!found || !category) {
            endWithoutImport(context);
            return;
        }
        Dish &dish = **found;
        dish.setNameRU(text(record, "nameRU"));
        dish.setNameENG(text(record, "nameENG"));
        dish.setDietPeriod(text(record, "dietPeriod"));
        dish.setDishID(dishID);
        dish.setRecipeENG(text(record, "recipeENG"));
        dish.setRecipeRU(text(record, "recipeRU"));
        dish.setDishCategory(*category);
        replacement.removeLines(dish);
        addLines(context, record.value(QStringLiteral("ingredientsRU")).toList(), dish, &Dish::addIngredientsRU);
        addLines(context, record.value(QStringLiteral("ingredientsENG")).toList(), dish, &Dish::addIngredientsENG);
        replacement.relinkPurchases(dish);
    }
    context.saveOrKeepChanges();
    log(QStringLiteral("end parsing"));
}

QVariantList SQLiteParser::parsedRecipesFromFile(const QString &name)
{
    QFile file(Platform::current().resourcesFolder() + QLatin1Char('/') + name + QStringLiteral(".json"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QVariantList records;
    const QStringList pieces = QString::fromUtf8(file.readAll()).split(kIdMarker);
    for (const QString &piece : pieces.mid(1))
        records.append(parsedRecord(piece));
    return records;
}

void SQLiteParser::addIngredientsToDish(Dish *dish, const QStringList &fromArray,
                                        const QString &withDishKeyInIngredient, ManagedObjectContext &context)
{
    for (const QString &name : fromArray) {
        auto &line = context.insert<Ingredient>();
        line.setName(name);
        line.setValueForKey(QVariant::fromValue<ManagedObject *>(dish), withDishKeyInIngredient);
    }
}

void SQLiteParser::oldParse()
{
    log(QStringLiteral("start parsing"));
    QVariantList records;
    try {
        records = parsedRecipesFromFile(QStringLiteral("dishes"));
    } catch (const std::out_of_range &reason) {
        log("dishes: a record is incomplete (%@), nothing was imported", reason.what());
    }
    ManagedObjectContext &context = *CoreDataManager::sharedManager().managedObjectContext();
    (void)loadCatalogue(context);
    IngredientReplacement replacement(context);
    for (const QVariant &element : std::as_const(records)) {
        const QVariantMap record = element.toMap();
        const auto found = Dish::dishWithID(text(record, "ID"), context);
        const auto category =
            DishesCategory::dishCategoryWirhRusName(text(record, "Category"), text(record, "CategoryEng"), context);
        if (!found || !category) {
            endWithoutImport(context);
            return;
        }
        Dish &dish = **found;
        replacement.removeLines(dish);
        dish.setNameRU(text(record, "ProdName"));
        dish.setNameENG(text(record, "ProdNameEng"));
        dish.setDietPeriod(shiftedPeriod(text(record, "ProdCat")));
        dish.setRecipeENG(text(record, "ProdTxtEng"));
        dish.setRecipeRU(text(record, "ProdTxt"));
        dish.setDishCategory(*category);
        addIngredientsToDish(&dish, record.value(QStringLiteral("Ingred")).toStringList(), QStringLiteral("dishRU"),
                             context);
        addIngredientsToDish(&dish, record.value(QStringLiteral("IngredEng")).toStringList(), QStringLiteral("dishENG"),
                             context);
        replacement.relinkPurchases(dish);
    }
    context.saveOrKeepChanges();
    log(QStringLiteral("end parsing"));
}

} // namespace kesto
