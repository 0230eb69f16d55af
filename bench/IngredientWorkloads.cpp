#include "BaselineDatabase.h"
#include "Checksum.h"
#include "Fixtures.h"
#include "Workloads.h"

#include "model/Dish.h"
#include "model/Ingredient.h"
#include "platform/objectgraph/ManagedObjectContext.h"

#include <QHash>

namespace kesto::bench
{

namespace
{

/// A row of an ingredient line on the heap, as a program without an object graph would keep it.
struct LineRow
{
    qint64 key;
    QString name;
    std::optional<qint64> displayOrder;
    qint64 dishRU, dishENG;
};

template <class Statement>
std::unique_ptr<LineRow> readLine(const Statement &row)
{
    auto line = std::make_unique<LineRow>();
    line->key = row.integer(0);
    line->name = row.text(1);
    if (!row.isNull(2))
        line->displayOrder = row.integer(2);
    line->dishRU = row.integer(3);
    line->dishENG = row.integer(4);
    return line;
}

class OurFetch final : public Trial
{
public:
    explicit OurFetch(Fixtures &fixtures)
        : file_(fixtures, fixtures.catalogueFile())
        , store_(file_.path())
    {
        run();
        lines_.clear();
        store_.renewContext();
    }
    void run() override { lines_ = store_.context().fetchOrLog<Ingredient>(); }
    quint64 checksum() override
    {
        Checksum checksum;
        const auto key = [](const Dish *dish) { return dish != nullptr ? dish->objectID() : 0; };
        for (const Ingredient *line : lines_)
            checksum.add(line->objectID())
                .add(line->name())
                .add(line->displayOrder())
                .add(key(line->dishRU()))
                .add(key(line->dishENG()));
        return checksum.value();
    }

private:
    FileCopy file_;
    OpenStore store_;
    std::vector<Ingredient *> lines_;
};

template <class Database>
class BaselineFetch final : public Trial
{
public:
    explicit BaselineFetch(Fixtures &fixtures)
        : file_(fixtures, fixtures.catalogueFile())
        , database_(file_.path())
        , rows_(database_, "SELECT _pk, name, displayOrder, dishRU, dishENG FROM Ingredient ORDER BY _pk")
    {
        run();
        lines_.clear();
        byKey_.clear();
        byKey_.squeeze();
    }
    void run() override
    {
        while (rows_.next()) {
            lines_.push_back(readLine(rows_));
            byKey_.insert(lines_.back()->key, lines_.back().get());
        }
        rows_.reset();
    }
    quint64 checksum() override
    {
        Checksum checksum;
        for (const auto &line : lines_)
            checksum.add(line->key).add(line->name).add(line->displayOrder).add(line->dishRU).add(line->dishENG);
        return checksum.value();
    }

private:
    FileCopy file_;
    Database database_;
    typename Database::Statement rows_;
    std::vector<std::unique_ptr<LineRow>> lines_;
    QHash<qint64, LineRow *> byKey_;
};

class OurWalk final : public Trial
{
public:
    explicit OurWalk(Fixtures &fixtures)
        : file_(fixtures, fixtures.catalogueFile())
        , store_(file_.path())
    {
        run();
        store_.renewContext();
    }
    void run() override
    {
        Checksum checksum;
        FetchRequest request;
        request.relationshipKeyPathsForPrefetching = {"ingredientsRU", "ingredientsENG"};
        for (const Dish *dish : store_.context().fetchOrLog<Dish>(request)) {
            checksum.add(dish->objectID());
            for (const Ingredient *line : dish->ingredientsRU())
                checksum.add(line->objectID()).add(static_cast<qint64>(line->name().size()));
            for (const Ingredient *line : dish->ingredientsENG())
                checksum.add(line->objectID()).add(static_cast<qint64>(line->name().size()));
        }
        checksum_ = checksum.value();
    }
    quint64 checksum() override { return checksum_; }

private:
    FileCopy file_;
    OpenStore store_;
    quint64 checksum_ = 0;
};

struct DishRow
{
    qint64 key;
    QString dishID, nameRU, nameENG, recipeRU, recipeENG, dietPeriod;
    std::optional<bool> recipeNew, userCreated;
    qint64 dishCategory, image;
    std::vector<LineRow *> linesRU, linesENG;
};

/// Two statements, the dishes found again by their keys.
template <class Database>
class BaselineWalk final : public Trial
{
public:
    explicit BaselineWalk(Fixtures &fixtures)
        : file_(fixtures, fixtures.catalogueFile())
        , database_(file_.path())
        , dishRows_(database_, "SELECT _pk, dishID, nameRU, nameENG, recipeRU, recipeENG, dietPeriod, recipeNew, "
                               "userCreated, dishCategory, image FROM Dish ORDER BY _pk")
        , lineRows_(database_, "SELECT _pk, name, displayOrder, dishRU, dishENG FROM Ingredient "
                               "WHERE dishRU NOT NULL OR dishENG NOT NULL ORDER BY _pk")
    {
        run();
        dishes_.clear();
        lines_.clear();
        dishesByKey_.clear();
        linesByKey_.clear();
    }
    void run() override
    {
        while (dishRows_.next())
            readDish();
        dishRows_.reset();
        while (lineRows_.next()) {
            lines_.push_back(readLine(lineRows_));
            LineRow *line = lines_.back().get();
            linesByKey_.insert(line->key, line);
            if (DishRow *dish = dishesByKey_.value(line->dishRU))
                dish->linesRU.push_back(line);
            if (DishRow *dish = dishesByKey_.value(line->dishENG))
                dish->linesENG.push_back(line);
        }
        lineRows_.reset();
        Checksum checksum;
        for (const auto &dish : dishes_) {
            checksum.add(dish->key);
            for (const LineRow *line : dish->linesRU)
                checksum.add(line->key).add(static_cast<qint64>(line->name.size()));
            for (const LineRow *line : dish->linesENG)
                checksum.add(line->key).add(static_cast<qint64>(line->name.size()));
        }
        checksum_ = checksum.value();
    }
    quint64 checksum() override { return checksum_; }

private:
    void readDish()
    {
        auto dish = std::make_unique<DishRow>();
        dish->key = dishRows_.integer(0);
        dish->dishID = dishRows_.text(1);
        dish->nameRU = dishRows_.text(2);
        dish->nameENG = dishRows_.text(3);
        dish->recipeRU = dishRows_.text(4);
        dish->recipeENG = dishRows_.text(5);
        dish->dietPeriod = dishRows_.text(6);
        if (!dishRows_.isNull(7))
            dish->recipeNew = dishRows_.integer(7) != 0;
        if (!dishRows_.isNull(8))
            dish->userCreated = dishRows_.integer(8) != 0;
        dish->dishCategory = dishRows_.integer(9);
        dish->image = dishRows_.integer(10);
        dishesByKey_.insert(dish->key, dish.get());
        dishes_.push_back(std::move(dish));
    }

    FileCopy file_;
    Database database_;
    typename Database::Statement dishRows_, lineRows_;
    std::vector<std::unique_ptr<DishRow>> dishes_;
    std::vector<std::unique_ptr<LineRow>> lines_;
    QHash<qint64, DishRow *> dishesByKey_;
    QHash<qint64, LineRow *> linesByKey_;
    quint64 checksum_ = 0;
};

} // namespace

Workload fetchOfIngredients(Fixtures &fixtures)
{
    return {.name = "fetch of the 8,000 lines as managed objects; baselines: heap objects and a hash map",
            .contenders = {contender<OurFetch>("ours", fixtures),
                           contender<BaselineFetch<PlainDatabase>>("plain C API", fixtures),
                           contender<BaselineFetch<QtDatabase>>("QSqlQuery", fixtures)},
            .bars = {{Bar::Kind::TimesContender, 1.5, "plain C API"}}};
}

Workload walkOverDishes(Fixtures &fixtures)
{
    return {.name = "walk over 300 dishes and all their lines, asked for together",
            .contenders = {contender<OurWalk>("ours", fixtures),
                           contender<BaselineWalk<PlainDatabase>>("plain C API", fixtures),
                           contender<BaselineWalk<QtDatabase>>("QSqlQuery", fixtures)},
            .bars = {{Bar::Kind::StatementsAtMost, 2}}};
}

} // namespace kesto::bench
