#include "import/ImportFixture.h"

#include "import/SQLiteParser.h"
#include "model/Dish.h"
#include "model/DishesCategory.h"
#include "model/Ingredient.h"
#include "model/PurhaseIngredient.h"
#include "platform/PropertyList.h"
#include "platform/objectgraph/PersistentStoreCoordinator.h"
#include "platform/objectgraph/SqlStore.h"
#include "store/CoreDataManager.h"
#include "support/LogCapture.h"

#include <QFile>

#include <sqlite3.h>

#include <algorithm>
#include <stdexcept>

namespace kesto::test
{

namespace
{

QVariantList listOf(const char *lines)
{
    QVariantList list;
    for (const QString &line : QString::fromUtf8(lines).split(QStringLiteral(", "), Qt::SkipEmptyParts))
        list.append(line);
    return list;
}

QString orNothing(const QString &text) { return text.isNull() ? QStringLiteral("(absent)") : text; }

} // namespace

ImportFixture::ImportFixture()
{
    platform_ = std::make_unique<TestPlatform>(TestPlatform::Options{.resourcesFolder = resources_.path()});
}

ImportFixture::~ImportFixture() = default;

ManagedObjectContext &ImportFixture::context() { return *CoreDataManager::sharedManager().managedObjectContext(); }

void ImportFixture::restart() { platform_->restart(); }

void ImportFixture::writeResource(const char *name, const QByteArray &bytes)
{
    QFile file(resources_.filePath(QLatin1String(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

void ImportFixture::import(const QVariantList &recipes)
{
    ASSERT_TRUE(PropertyList::write(recipes, resources_.filePath(QStringLiteral("recipes.plist"))));
    (void)parse();
}

QStringList ImportFixture::parse()
{
    (void)context();
    LogCapture log;
    (void)SQLiteParser::parse(); // what went wrong is in the log
    return log.take();
}

QVariantMap ImportFixture::record(const char *dishID, const char *linesRU, const char *linesENG)
{
    return {{QStringLiteral("dishID"), QLatin1String(dishID)},
            {QStringLiteral("nameRU"), QStringLiteral("Блюдо ") + QLatin1String(dishID)},
            {QStringLiteral("nameENG"), QStringLiteral("Dish ") + QLatin1String(dishID)},
            {QStringLiteral("dietPeriod"), QStringLiteral("1, 2, 3")},
            {QStringLiteral("recipeRU"), QStringLiteral("Сварить. Подать.")},
            {QStringLiteral("recipeENG"), QStringLiteral("Boil. Serve.")},
            {QStringLiteral("catRU"), QStringLiteral("Салаты")},
            {QStringLiteral("catENG"), QStringLiteral("Salads")},
            {QStringLiteral("ingredientsRU"), listOf(linesRU)},
            {QStringLiteral("ingredientsENG"), listOf(linesENG)}};
}

Dish &ImportFixture::dish(const char *dishID)
{
    FetchRequest request;
    request.predicate = attribute("dishID") == QLatin1String(dishID);
    const std::vector<Dish *> found = context().fetchOrLog<Dish>(request);
    if (found.size() != 1)
        throw std::runtime_error(std::string("not exactly one dish ") + dishID);
    return *found.front();
}

std::string ImportFixture::outline(std::vector<Ingredient *> lines)
{
    std::stable_sort(lines.begin(), lines.end(), [](const Ingredient *left, const Ingredient *right) {
        return left->displayOrder() < right->displayOrder();
    });
    QStringList texts;
    for (const Ingredient *line : lines) {
        const std::optional<int> order = line->displayOrder();
        texts.append((order ? QString::number(*order) : QStringLiteral("-")) + u' ' + line->name());
    }
    return texts.join(QStringLiteral(", ")).toStdString();
}

QStringList ImportFixture::content()
{
    QStringList texts;
    for (const Dish *dish : context().fetchOrLog<Dish>()) {
        const DishesCategory *category = dish->dishCategory();
        const QStringList parts{orNothing(dish->dishID()),
                                orNothing(dish->nameRU()),
                                orNothing(dish->nameENG()),
                                orNothing(dish->dietPeriod()),
                                orNothing(dish->recipeRU()),
                                orNothing(dish->recipeENG()),
                                category != nullptr ? category->nameRU() : QStringLiteral("(no category)"),
                                dish->recipeNew().value_or(false) ? QStringLiteral("new") : QStringLiteral("seen"),
                                dish->userCreated().value_or(false) ? QStringLiteral("own") : QStringLiteral("shipped"),
                                QString::fromStdString(outline(dish->ingredientsRU())),
                                QString::fromStdString(outline(dish->ingredientsENG()))};
        texts.append(parts.join(u'|'));
    }
    for (const DishesCategory *category : context().fetchOrLog<DishesCategory>())
        texts.append(category->nameRU() + u'|' + category->nameENG() + u'|' +
                     QString::number(category->displayOrder().value_or(0)));
    for (const Ingredient *line : context().fetchOrLog<Ingredient>())
        texts.append(QStringLiteral("line ") + line->name());
    for (const PurhaseIngredient *purchase : context().fetchOrLog<PurhaseIngredient>()) {
        const Ingredient *line = purchase->ingredient();
        texts.append(QStringLiteral("purchase ") + (line != nullptr ? line->name() : QStringLiteral("(nothing)")));
    }
    return texts;
}

void ImportFixture::makeReadOnly(bool readOnly)
{
    ASSERT_TRUE(context().persistentStoreCoordinator().access()->execute(readOnly ? "PRAGMA query_only = 1"
                                                                                  : "PRAGMA query_only = 0"));
}

void ImportFixture::makeUnreadable(const char *entity)
{
    const auto deny = [](void *denied, int action, const char *table, const char *, const char *, const char *) {
        return action == SQLITE_READ && qstrcmp(static_cast<const char *>(denied), table) == 0 ? SQLITE_DENY
                                                                                               : SQLITE_OK;
    };
    const auto access = context().persistentStoreCoordinator().access();
    sqlite3_set_authorizer(access->handle(), entity != nullptr ? +deny : nullptr, const_cast<char *>(entity));
}

} // namespace kesto::test
