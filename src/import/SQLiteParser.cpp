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
#include <QStringDecoder>

#include <map>
#include <stdexcept>
#include <utility>

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

/// Why an element of the catalogue cannot be a dish; null when it can.
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

/// The part of the store that an import changes. It is read before the first change, so a failed read changes nothing.
class StoredCatalogue
{
public:
    [[nodiscard]] static Result<StoredCatalogue> load(ManagedObjectContext &context)
    {
        FetchRequest request;
        request.relationshipKeyPathsForPrefetching = {"dishCategory", "ingredientsRU", "ingredientsENG",
                                                      "ingredientsRU.purchaseIngredient",
                                                      "ingredientsENG.purchaseIngredient"};
        const auto dishes = context.fetch<Dish>(request);
        if (!dishes)
            return tl::unexpected(dishes.error());
        const auto categories = context.fetch<DishesCategory>();
        if (!categories)
            return tl::unexpected(categories.error());
        auto replacement = IngredientReplacement::load(context);
        if (!replacement)
            return tl::unexpected(replacement.error());
        StoredCatalogue stored(context, std::move(*replacement));
        // Of several matches the first counts, as for a fetch with the limit 1.
        for (Dish *dish : *dishes)
            stored.dishes_.try_emplace(dish->dishID(), dish);
        for (DishesCategory *category : *categories)
            stored.categories_.try_emplace(category->nameRU(), category);
        return stored;
    }

    /// As Dish::dishWithID().
    [[nodiscard]] Dish &dish(const QString &dishID)
    {
        Dish *&known = dishes_[dishID];
        if (known == nullptr)
            known = &Dish::insertWithID(dishID, context_);
        return *known;
    }
    /// As DishesCategory::dishCategoryWirhRusName().
    [[nodiscard]] DishesCategory &category(const QString &rusName, const QString &engName)
    {
        DishesCategory *&known = categories_[rusName];
        if (known == nullptr)
            known = &DishesCategory::insertWithRusName(rusName, engName, context_);
        return *known;
    }
    [[nodiscard]] IngredientReplacement &replacement() { return replacement_; }

private:
    /// Absent comes before empty.
    struct Order
    {
        bool operator()(const QString &left, const QString &right) const
        {
            return std::pair(!left.isNull(), left) < std::pair(!right.isNull(), right);
        }
    };

    StoredCatalogue(ManagedObjectContext &context, IngredientReplacement replacement)
        : context_(context)
        , replacement_(std::move(replacement))
    {
    }

    ManagedObjectContext &context_;
    IngredientReplacement replacement_;
    std::map<QString, Dish *, Order> dishes_;
    std::map<QString, DishesCategory *, Order> categories_;
};

/// Reads what is stored, lets `change` work on it, and saves.
template <class Change>
Result<void> importInto(ManagedObjectContext &context, const Change &change)
{
    auto stored = StoredCatalogue::load(context);
    if (!stored) {
        log("the catalogue could not be imported: %@", stored.error().message());
        return tl::unexpected(stored.error());
    }
    change(*stored);
    return context.save();
}

const QString kIdMarker = QStringLiteral("ID\":\"");

/// The earlier catalogue counts the phases from 1.
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

Result<void> importRecipes(ManagedObjectContext &context)
{
    const QVariantList recipes = SKHelpManager::arrayFromPlist(QStringLiteral("recipes")).value_or(QVariantList());
    for (qsizetype i = 0; i < recipes.size(); ++i) {
        if (const QString reason = fault(recipes[i]); !reason.isNull()) {
            log("recipes: element %ld %@, nothing was imported", i, reason);
            return {};
        }
    }
    return importInto(context, [&](StoredCatalogue &stored) {
        for (const QVariant &element : recipes) {
            const QVariantMap record = element.toMap();
            const QString dishID = text(record, "dishID");
            Dish &dish = stored.dish(dishID);
            dish.setNameRU(text(record, "nameRU"));
            dish.setNameENG(text(record, "nameENG"));
            dish.setDietPeriod(text(record, "dietPeriod"));
            dish.setDishID(dishID);
            dish.setRecipeENG(text(record, "recipeENG"));
            dish.setRecipeRU(text(record, "recipeRU"));
            dish.setDishCategory(&stored.category(text(record, "catRU"), text(record, "catENG")));
            stored.replacement().removeLines(dish);
            addLines(context, record.value(QStringLiteral("ingredientsRU")).toList(), dish, &Dish::addIngredientsRU);
            addLines(context, record.value(QStringLiteral("ingredientsENG")).toList(), dish, &Dish::addIngredientsENG);
            stored.replacement().relinkPurchases(dish);
        }
    });
}

Result<void> importOldRecipes(ManagedObjectContext &context)
{
    const Result<QVariantList> records = SQLiteParser::parsedRecipesFromFile(QStringLiteral("dishes"));
    if (!records) {
        log("dishes: %@, nothing was imported", records.error().message());
        return {};
    }
    return importInto(context, [&](StoredCatalogue &stored) {
        for (const QVariant &element : *records) {
            const QVariantMap record = element.toMap();
            Dish &dish = stored.dish(text(record, "ID"));
            stored.replacement().removeLines(dish);
            dish.setNameRU(text(record, "ProdName"));
            dish.setNameENG(text(record, "ProdNameEng"));
            dish.setDietPeriod(shiftedPeriod(text(record, "ProdCat")));
            dish.setRecipeENG(text(record, "ProdTxtEng"));
            dish.setRecipeRU(text(record, "ProdTxt"));
            dish.setDishCategory(&stored.category(text(record, "Category"), text(record, "CategoryEng")));
            SQLiteParser::addIngredientsToDish(&dish, record.value(QStringLiteral("Ingred")).toStringList(),
                                               QStringLiteral("dishRU"), context);
            SQLiteParser::addIngredientsToDish(&dish, record.value(QStringLiteral("IngredEng")).toStringList(),
                                               QStringLiteral("dishENG"), context);
            stored.replacement().relinkPurchases(dish);
        }
    });
}

} // namespace

Result<void> SQLiteParser::parse()
{
    log(QStringLiteral("start parsing"));
    Result<void> done = importRecipes(*CoreDataManager::sharedManager().managedObjectContext());
    log(QStringLiteral("end parsing"));
    return done;
}

Result<QVariantList> SQLiteParser::parsedRecipesFromFile(const QString &name)
{
    QFile file(Platform::current().resourcesFolder() + QLatin1Char('/') + name + QStringLiteral(".json"));
    if (!file.open(QIODevice::ReadOnly)) {
        log("%@: %@", file.fileName(), file.errorString());
        return {};
    }
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless); // an incomplete end is an error, too
    const QString text = decode(file.readAll());
    if (file.error() != QFile::NoError || decode.hasError()) {
        log("%@: %@", file.fileName(), decode.hasError() ? QStringLiteral("not UTF-8") : file.errorString());
        return {};
    }
    QVariantList records;
    for (const QString &piece : text.split(kIdMarker).mid(1)) {
        try {
            records.append(parsedRecord(piece));
        } catch (const std::out_of_range &reason) {
            return failure(QStringLiteral("a record is incomplete"), file.fileName(), QString::fromUtf8(reason.what()));
        }
    }
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

Result<void> SQLiteParser::oldParse()
{
    log(QStringLiteral("start parsing"));
    Result<void> done = importOldRecipes(*CoreDataManager::sharedManager().managedObjectContext());
    log(QStringLiteral("end parsing"));
    return done;
}

} // namespace kesto
