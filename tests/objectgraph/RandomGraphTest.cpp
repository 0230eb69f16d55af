#include "objectgraph/GraphTest.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <random>
#include <set>

namespace kesto::test
{

namespace
{

/// What the graph should hold, the plain way: people and pets by a number that is their name.
struct Plain
{
    struct Thing
    {
        bool isPet = false;
        std::map<std::string, QVariant> values;
        std::map<std::string, int> links; ///< to-one; 0 is none
    };
    std::map<int, Thing> things;
    int last = 0;

    [[nodiscard]] int link(int thing, const char *key) const
    {
        const auto found = things.at(thing).links.find(key);
        return found == things.at(thing).links.end() ? 0 : found->second;
    }
    [[nodiscard]] std::vector<int> pointingTo(int thing, const char *key) const
    {
        std::vector<int> result;
        for (const auto &[number, other] : things) {
            if (link(number, key) == thing)
                result.push_back(number);
        }
        return result;
    }
    void remove(int thing)
    {
        const auto owned = things.at(thing).isPet ? std::vector<int>() : pointingTo(thing, "owner");
        things.erase(thing);
        for (const int pet : owned)
            things.erase(pet);
        for (auto &[number, other] : things) {
            for (auto &[key, target] : other.links)
                target = target == thing ? 0 : target;
        }
    }
};

using Truth = std::optional<bool>;

/// A condition twice: for the graph, and as a function over the plain things.
struct Condition
{
    Predicate predicate;
    std::function<Truth(const Plain &, int)> evaluate;
    std::string text;
};

class RandomGraphTest : public GraphTest, public testing::WithParamInterface<unsigned>
{
protected:
    RandomGraphTest()
        : disk_(breakableDisk())
        , random_(GetParam())
    {
    }

    int pick(int bound) { return static_cast<int>(random_() % static_cast<unsigned>(bound)); }
    int pickThing(std::optional<bool> isPet = std::nullopt)
    {
        std::vector<int> candidates;
        for (const auto &[number, thing] : now_.things) {
            if (!isPet || thing.isPet == *isPet)
                candidates.push_back(number);
        }
        return candidates.empty() ? 0 : candidates[static_cast<size_t>(pick(static_cast<int>(candidates.size())))];
    }
    ManagedObject *object(int number)
    {
        if (number == 0)
            return nullptr;
        // By key where the object is known, else through the store: as a fault, or with its values.
        const bool isPet = now_.things.at(number).isPet;
        const FetchRequest request{.predicate = attribute("name") == QString::number(number),
                                   .fetchBatchSize = pick(2)};
        const auto found = graph().fetch(isPet ? "Pet" : "Person", request);
        EXPECT_EQ(found.size(), 1U) << number;
        return found.front();
    }
    QVariant randomValue(const std::string &key)
    {
        if (pick(4) == 0)
            return {};
        if (key == "age")
            return qint64(pick(5) - 2);
        if (key == "active")
            return pick(2) == 0;
        return static_cast<float>(pick(4)) / 2;
    }
    void step();
    void checkEverything();
    void checkFetch();
    Condition randomCondition(bool pets, int depth);

    FaultyVfs &disk_;
    std::mt19937 random_;
    Plain now_;
    Plain saved_;
};

const char *const kPersonKeys[] = {"age", "height", "active"};

void RandomGraphTest::step()
{
    const int what = pick(100);
    if (what < 25) {
        const bool isPet = pick(2) == 0;
        const int number = ++now_.last;
        insert(isPet ? "Pet" : "Person", {{"name", QString::number(number)}});
        now_.things[number].isPet = isPet;
    } else if (what < 45) {
        const int number = pickThing(pick(2) == 0);
        if (number == 0)
            return;
        const std::string key = now_.things[number].isPet ? "weight" : kPersonKeys[pick(3)];
        const QVariant value = randomValue(key);
        set(*object(number), key.c_str(), value);
        now_.things[number].values[key] = value;
    } else if (what < 75) {
        const int number = pickThing();
        const int target = pick(5) == 0 ? 0 : pickThing(false);
        if (number == 0)
            return;
        const bool isPet = now_.things[number].isPet;
        const char *key = isPet ? (pick(2) == 0 ? "owner" : "sitter") : "boss";
        ManagedObject *self = object(number);
        const int before = now_.link(number, key);
        const int way = pick(3);
        if (way == 0)
            set(*self, key, object(target));
        else { // the same from the other side
            const char *inverse = isPet ? (key == std::string_view("owner") ? "pets" : "guests") : "staff";
            const int slot = graph().entity("Person").property(inverse).value().slot;
            if (target != 0 && way == 1)
                object(target)->addToMany(slot, self);
            else if (target != 0) { // instead of all others
                set(*object(target), inverse, QVariant::fromValue(QList<ManagedObject *>{self}));
                for (const int other : now_.pointingTo(target, key))
                    now_.things[other].links[key] = 0;
            } else if (before != 0)
                object(before)->removeFromMany(slot, self);
        }
        now_.things[number].links[key] = target;
    } else if (what < 83) {
        if (const int number = pickThing(); number != 0) {
            graph().context.deleteObject(*object(number));
            now_.remove(number);
        }
    } else if (what < 88) {
        save();
        saved_ = now_;
    } else if (what < 91) {
        disk_.fail(1 + pick(8), pick(2) == 0, FaultyVfs::Lasting::Once);
        if (graph().save())
            saved_ = now_;
        disk_.heal();
    } else if (what < 94) {
        const int last = now_.last;
        reopen();
        now_ = saved_;
        now_.last = last; // names are not used again
    } else if (what < 96)
        checkEverything();
    else
        checkFetch();
}

void RandomGraphTest::checkEverything()
{
    size_t people = 0;
    std::map<int, ManagedObject *> byNumber;
    for (const char *entity : {"Person", "Pet"}) {
        for (ManagedObject *found : graph().fetch(entity))
            byNumber[get(*found, "name").toInt()] = found;
    }
    ASSERT_EQ(byNumber.size(), now_.things.size());
    const auto sorted = [](const std::vector<int> &numbers) {
        std::vector<std::string> texts;
        for (const int number : numbers)
            texts.push_back(std::to_string(number));
        std::sort(texts.begin(), texts.end());
        return texts;
    };
    for (const auto &[number, thing] : now_.things) {
        ASSERT_TRUE(byNumber.contains(number)) << number;
        const ManagedObject &found = *byNumber[number];
        ASSERT_EQ(found.entity().name() == "Pet", thing.isPet);
        for (const auto &[key, value] : thing.values)
            ASSERT_EQ(get(found, key.c_str()), value) << number << ' ' << key;
        for (const auto &[key, target] : thing.links)
            ASSERT_EQ(one(found, key.c_str()), target == 0 ? nullptr : byNumber[target]) << number << ' ' << key;
        if (!thing.isPet) {
            ++people;
            ASSERT_EQ(members(found, "pets"), sorted(now_.pointingTo(number, "owner"))) << number;
            ASSERT_EQ(members(found, "guests"), sorted(now_.pointingTo(number, "sitter"))) << number;
            ASSERT_EQ(members(found, "staff"), sorted(now_.pointingTo(number, "boss"))) << number;
        }
    }
    ASSERT_EQ(graph().fetch("Person").size(), people);
}

Condition RandomGraphTest::randomCondition(bool pets, int depth)
{
    const int shape = depth > 0 ? pick(6) : 5;
    if (shape < 2) {
        const Condition left = randomCondition(pets, depth - 1), right = randomCondition(pets, depth - 1);
        const bool both = shape == 0;
        return {both ? left.predicate && right.predicate : left.predicate || right.predicate,
                [=](const Plain &plain, int number) -> Truth {
                    const Truth a = left.evaluate(plain, number), b = right.evaluate(plain, number);
                    if (a == Truth(!both) || b == Truth(!both))
                        return !both;
                    return a && b ? Truth(both) : std::nullopt;
                },
                '(' + left.text + (both ? " && " : " || ") + right.text + ')'};
    }
    if (shape == 2) {
        const Condition operand = randomCondition(pets, depth - 1);
        return {!operand.predicate,
                [=](const Plain &plain, int number) {
                    const Truth truth = operand.evaluate(plain, number);
                    return truth ? Truth(!*truth) : std::nullopt;
                },
                '!' + operand.text};
    }
    // Of the object itself, or of the person behind a link.
    const char *const links[] = {"", "boss", "owner", "sitter"};
    const char *const link = pets ? links[pick(3) == 0 ? 0 : 2 + pick(2)] : links[pick(2)];
    const bool direct = *link == '\0';
    const std::string key = pets && direct ? "weight" : kPersonKeys[pick(3)];
    const std::string path = direct ? key : std::string(link) + '.' + key;
    const int operation = pick(7);
    const QVariant against = key == "active" ? QVariant(pick(2) == 0) : QVariant(pick(4) - 1);
    const std::vector<int> list = pick(3) == 0 ? std::vector<int>() : std::vector<int>{pick(3), pick(3) - 2};
    const auto value = against.toInt();
    const Predicate table[] = {attribute(path) == value, attribute(path) != value,   attribute(path) < value,
                               attribute(path) >= value, attribute(path).isAbsent(), attribute(path).in(list),
                               !attribute(path).in(list)};
    return {table[operation],
            [=](const Plain &plain, int number) -> Truth {
                const int target = direct ? number : plain.link(number, link);
                QVariant held;
                if (target != 0) {
                    const auto &values = plain.things.at(target).values;
                    const auto found = values.find(key);
                    held = found != values.end() ? found->second : QVariant();
                }
                if (operation == 4)
                    return !held.isValid();
                if (!held.isValid())
                    return std::nullopt;
                const double number1 = held.toDouble();
                const bool listed = std::any_of(list.begin(), list.end(), [&](int one) { return one == number1; });
                const bool results[] = {number1 == value, number1 != value, number1 < value, number1 >= value, false,
                                        listed,           !listed};
                return results[operation];
            },
            path + ' ' + std::to_string(operation) + ' ' + std::to_string(value)};
}

void RandomGraphTest::checkFetch()
{
    const bool pets = pick(2) == 0;
    const Condition condition = randomCondition(pets, 3);
    FetchRequest request;
    request.predicate = condition.predicate;
    request.fetchLimit = pick(2) * (1 + pick(5));
    request.fetchBatchSize = pick(3);
    const std::string key = pets ? "weight" : kPersonKeys[pick(3)];
    const bool sorted = pick(3) != 0;
    const bool ascending = pick(2) == 0;
    if (sorted)
        request.sortDescriptors = {{key, ascending}};
    std::vector<int> expected;
    for (const auto &[number, thing] : now_.things) {
        if (thing.isPet == pets && condition.evaluate(now_, number) == Truth(true))
            expected.push_back(number);
    }
    if (sorted) {
        const auto rank = [&](int number) {
            const QVariant value = now_.things[number].values[key];
            return value.isValid() ? value.toDouble() : -100.0;
        };
        std::stable_sort(expected.begin(), expected.end(), [&](int left, int right) {
            return ascending ? rank(left) < rank(right) : rank(left) > rank(right);
        });
    }
    if (request.fetchLimit > 0 && expected.size() > static_cast<size_t>(request.fetchLimit))
        expected.resize(static_cast<size_t>(request.fetchLimit));
    std::vector<int> found;
    for (const ManagedObject *one : graph().fetch(pets ? "Pet" : "Person", request))
        found.push_back(get(*one, "name").toInt());
    ASSERT_EQ(found, expected) << condition.text;
}

TEST_P(RandomGraphTest, AnyEditsGiveWhatThePlainModelGives)
{
    for (int i = 0; i < 2500; ++i) {
        step();
        if (HasFailure()) {
            FAIL() << "after " << i << " steps";
        }
    }
    checkEverything();
    saveAndReopen();
    checkEverything();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomGraphTest, testing::Values(1, 2, 3, 4, 5, 6));

} // namespace

} // namespace kesto::test
