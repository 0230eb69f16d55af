// The store manager's proposal of dishes for a day.

#include "model/Dish.h"
#include "model/DishesCategory.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/RandomSource.h"
#include "store/CoreDataManager.h"

namespace kesto
{

namespace
{

/// The display orders of the categories that the automatic filling uses.
const std::vector<quint32> categoriesOfDay{1, 2, 3, 5, 7};
constexpr int batchSize = 100;
/// A uniform source reaches this limit with two dishes once in 2^64 proposals.
constexpr int mostDraws = 64;

Dish *drawn(RandomSource &random, const std::vector<Dish *> &dishes)
{
    return dishes[random.uniform(static_cast<quint32>(dishes.size()))];
}

/// One of at least two dishes, other than the one taken already.
Dish *drawnBeside(const Dish *taken, RandomSource &random, const std::vector<Dish *> &dishes)
{
    Dish *found = drawn(random, dishes);
    for (int draws = 1; found == taken; ++draws) {
        log("check dish - %@", found->nameRU());
        log(QStringLiteral("alredy selected dish - skip it"));
        // A source that always gives the same number must not hang the program; take the first other dish then.
        found = draws < mostDraws ? drawn(random, dishes) : dishes[dishes.front() == taken ? 1 : 0];
    }
    log("check dish - %@", found->nameRU());
    log(QStringLiteral("add final dish and break"));
    return found;
}

} // namespace

std::vector<Dish *> CoreDataManager::autoFilledDishesForPeriod(int period)
{
    log(QStringLiteral("start finding autofiled dishes"));
    FetchRequest request;
    request.predicate = attribute("displayOrder").in(categoriesOfDay);
    request.sortDescriptors = {{"displayOrder"}};
    request.fetchLimit = static_cast<int>(categoriesOfDay.size());
    request.fetchBatchSize = batchSize;
    request.relationshipKeyPathsForPrefetching = {"dishes"};
    const std::vector<DishesCategory *> categories = managedObjectContext()->fetchOrLog<DishesCategory>(request);
    RandomSource &random = platform_.random();
    std::vector<Dish *> proposed;
    Dish *last = nullptr;
    for (size_t i = 0; i < categories.size(); ++i) {
        std::vector<Dish *> dishes = categories[i]->dishes();
        std::erase_if(dishes, [period](const Dish *dish) { return !dish->belongsToPhase(period); });
        if (dishes.empty())
            continue;
        proposed.push_back(drawn(random, dishes));
        if (i == 0 && dishes.size() > 1)
            last = drawnBeside(proposed.front(), random, dishes);
    }
    if (last != nullptr)
        proposed.push_back(last);
    log(QStringLiteral("done find dishes"));
    return proposed;
}

} // namespace kesto
