#include "BaselineDatabase.h"
#include "Fixtures.h"
#include "Workloads.h"

#include "platform/objectgraph/ManagedObjectContext.h"

#include <optional>

namespace kesto::bench
{

namespace
{

quint64 contentOf(const FileCopy &file)
{
    return contentChecksum(file.path(), {"DishesCategory", "Dish", "Ingredient"});
}

class OurImport final : public Trial
{
public:
    explicit OurImport(Fixtures &fixtures)
        : fixtures_(fixtures)
        , file_(fixtures, fixtures.emptyFile())
        , store_(file_.path())
    {
    }
    void run() override
    {
        insertCatalogue(fixtures_, store_.context());
        if (!store_.context().save())
            fail(QStringLiteral("the import could not be saved"));
    }
    quint64 checksum() override
    {
        store_.close();
        return contentOf(file_);
    }

private:
    Fixtures &fixtures_;
    FileCopy file_;
    OpenStore store_;
};

/// Inserts each row as it comes, keys given out in memory.
template <class Database>
class BaselineImport final : public Trial
{
public:
    explicit BaselineImport(Fixtures &fixtures)
        : fixtures_(fixtures)
        , file_(fixtures, fixtures.emptyFile())
        , database_(std::in_place, file_.path())
    {
    }
    void run() override
    {
        typename Database::Statement category(
            *database_, "INSERT INTO DishesCategory (_pk, nameRU, nameENG, displayOrder) VALUES (?, ?, ?, ?)");
        typename Database::Statement dish(
            *database_, "INSERT INTO Dish (_pk, dishID, nameRU, nameENG, recipeRU, recipeENG, dietPeriod, recipeNew, "
                        "dishCategory) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)");
        typename Database::Statement line(
            *database_, "INSERT INTO Ingredient (_pk, name, displayOrder, dishRU, dishENG) VALUES (?, ?, ?, ?, ?)");
        database_->execute("BEGIN IMMEDIATE");
        qint64 categories = 0, dishes = 0, lines = 0;
        for (const CategoryInput &input : fixtures_.categories()) {
            category.bind(1, ++categories);
            category.bind(2, input.nameRU);
            category.bind(3, input.nameENG);
            category.bind(4, categories - 1);
            category.execute();
        }
        for (const DishInput &input : fixtures_.dishes()) {
            dish.bind(1, ++dishes);
            dish.bind(2, input.dishID);
            dish.bind(3, input.nameRU);
            dish.bind(4, input.nameENG);
            dish.bind(5, input.recipeRU);
            dish.bind(6, input.recipeENG);
            dish.bind(7, input.dietPeriod);
            dish.bind(8, qint64(1));
            dish.bind(9, qint64(input.category + 1));
            dish.execute();
            for (const LineInput &text : input.lines) {
                line.bind(1, ++lines);
                line.bind(2, text.name);
                line.bind(3, qint64(text.displayOrder));
                line.bind(text.russian ? 4 : 5, dishes);
                line.bindNull(text.russian ? 5 : 4);
                line.execute();
            }
        }
        database_->execute("COMMIT");
    }
    quint64 checksum() override
    {
        database_.reset();
        return contentOf(file_);
    }

private:
    Fixtures &fixtures_;
    FileCopy file_;
    std::optional<Database> database_;
};

} // namespace

Workload importOfCatalogue(Fixtures &fixtures)
{
    return {.name = "import of 300 dishes with 8,000 ingredient lines, one save",
            .contenders = {contender<OurImport>("ours", fixtures),
                           contender<BaselineImport<PlainDatabase>>("plain C API", fixtures),
                           contender<BaselineImport<QtDatabase>>("QSqlQuery", fixtures)},
            .bars = {{Bar::Kind::TimesContender, 1.3, "plain C API"},
                     {Bar::Kind::TimesContender, 0.6, "QSqlQuery"},
                     {Bar::Kind::SyncsExactly, 1}}};
}

} // namespace kesto::bench
