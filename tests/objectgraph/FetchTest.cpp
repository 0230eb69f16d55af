#include "objectgraph/GraphTest.h"
#include "objectgraph/StatementLog.h"

#include <functional>

namespace kesto::test
{

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;
using Names = std::vector<std::string>;

QString text(const char *utf8) { return QString::fromUtf8(utf8); }

/// Four people: "all" has every value, "zero" has zeros and empty texts, "none" has nothing but a name, "odd" has texts
/// that look like patterns. Pets point to them: "Rex" to all, "Tom" to zero, "Kit" to nobody.
class FetchTest : public GraphTest
{
protected:
    enum class Memory { Inserted, Reopened, Touched, FarSideTouched, Undone };
    static constexpr Memory kStates[] = {Memory::Inserted, Memory::Reopened, Memory::Touched, Memory::FarSideTouched,
                                         Memory::Undone};

    static constexpr qint64 kDay = 86'400'000;
    static QDateTime day(int number) { return QDateTime::fromMSecsSinceEpoch(number * kDay, Qt::UTC); }

    void fill()
    {
        insert("Person", {{"name", text("all")},
                          {"age", 40},
                          {"height", 1.75},
                          {"active", true},
                          {"born", day(2)},
                          {"rank", 4'294'967'295U}});
        insert("Person",
               {{"name", text("zero")}, {"age", 0}, {"height", 0}, {"active", false}, {"born", day(0)}, {"rank", 0}});
        insert("Person", {{"name", text("none")}});
        insert("Person", {{"name", text("o%d_'\"\\ Ёж😀")}, {"age", -7}, {"born", day(-1)}});
        insert("Pet", {{"name", text("Rex")}, {"owner", QVariant::fromValue(&person("all"))}});
        insert("Pet", {{"name", text("Tom")}, {"owner", QVariant::fromValue(&person("zero"))}, {"weight", 3}});
        insert("Pet", {{"name", text("Kit")}, {"weight", 2}});
        insert("Pet", {{"owner", QVariant::fromValue(&person("none"))}});
        set(person("zero"), "boss", &person("all"));
    }
    /// The same graph with its values in the store, in memory, or partly in each.
    void bring(Memory memory)
    {
        if (memory == Memory::Inserted)
            return;
        saveAndReopen();
        const auto touch = [&](const char *entity) {
            for (ManagedObject *object : graph().fetch(entity)) {
                const QVariant before = get(*object, "name");
                set(*object, "name", text("another"));
                set(*object, "name", before);
            }
        };
        if (memory == Memory::Touched || memory == Memory::FarSideTouched)
            touch("Person");
        if (memory == Memory::Touched)
            touch("Pet");
        if (memory == Memory::Undone) {
            // The store has other values than memory.
            for (ManagedObject *object : graph().fetch("Person")) {
                std::map<std::string, QVariant> kept;
                for (const char *key : {"age", "height", "active", "born", "rank", "boss"}) {
                    kept[key] = get(*object, key);
                    set(*object, key, QVariant());
                }
                const QVariant before = get(*object, "name");
                set(*object, "name", text("another"));
                save();
                set(*object, "name", before);
                for (const auto &[key, value] : kept)
                    set(*object, key.c_str(), value);
            }
        }
    }
    Names found(const char *entity, const Predicate &predicate)
    {
        Names result = names(graph().fetch(entity, {.predicate = predicate}));
        std::sort(result.begin(), result.end());
        return result;
    }
    void forEachState(const std::function<void()> &check)
    {
        for (const Memory memory : kStates) {
            SCOPED_TRACE("state of memory " + std::to_string(static_cast<int>(memory)));
            for (const char *entity : {"Person", "Pet"}) {
                for (ManagedObject *object : graph().fetch(entity))
                    graph().context.deleteObject(*object);
            }
            saveAndReopen();
            fill();
            bring(memory);
            check();
        }
    }
};

TEST_F(FetchTest, PredicatesAgreeInTheStoreAndInMemory)
{
    const std::string odd = "o%d_'\"\\ Ёж😀";
    const Predicate known = !attribute("name").isAbsent();
    forEachState([&] {
        ManagedObject *all = graph().find("Person", "all");
        ManagedObject *none = graph().find("Person", "none");
        const struct
        {
            const char *what;
            Predicate predicate;
            Names expected;
        } table[] = {
            {"everything", {}, {"all", "none", odd, "zero"}},
            {"=", attribute("age") == 40, {"all"}},
            {"= 0 is not absent", attribute("age") == 0, {"zero"}},
            {"!= skips absent", attribute("age") != 0, {"all", odd}},
            {"! = skips absent", !(attribute("age") == 0), {"all", odd}},
            {"! !", !!(attribute("age") == 0), {"zero"}},
            {"<", attribute("age") < 0, {odd}},
            {"<=", attribute("age") <= 0, {odd, "zero"}},
            {">", attribute("age") > 0, {"all"}},
            {">=", attribute("age") >= 0, {"all", "zero"}},
            {"whole and broken numbers", attribute("age") > -7.5 && attribute("age") < 0.5, {odd, "zero"}},
            {"broken and whole numbers", attribute("height") < 2, {"all", "zero"}},
            {"float", attribute("height") == 1.75F, {"all"}},
            {"flags", attribute("active") == true, {"all"}},
            {"flags that are not set", attribute("active") == false, {"zero"}},
            {"flags other than set", attribute("active") != true, {"zero"}},
            {"largest unsigned", attribute("rank") >= 4'294'967'295U, {"all"}},
            {"dates", attribute("born") == day(2), {"all"}},
            {"dates before", attribute("born") < day(0), {odd}},
            {"a range of dates", attribute("born") >= day(0) && attribute("born") < day(2), {"zero"}},
            {"a null date is like none", attribute("born") != QDateTime(), {}},
            {"absent", attribute("age").isAbsent(), {"none"}},
            {"present", !attribute("age").isAbsent(), {"all", odd, "zero"}},
            {"or with unknown", attribute("age") == 1 || attribute("name") == text("none"), {"none"}},
            {"! or with unknown", !(attribute("age") == 1 || attribute("name") == text("x")), {"all", odd, "zero"}},
            {"! and with unknown",
             !(attribute("age") == 1 && attribute("name") == text("x")),
             {"all", "none", odd, "zero"}},
            {"in", attribute("age").in(std::vector<int>{0, 40, 41}), {"all", "zero"}},
            {"not in", !attribute("age").in(std::vector<int>{0, 41}), {"all", odd}},
            {"in texts", attribute("name").in(std::vector<QString>{text("none"), text(odd.c_str())}), {"none", odd}},
            {"in nothing", attribute("age").in(std::vector<int>()), {}},
            {"not in nothing", !attribute("age").in(std::vector<int>()), {"all", odd, "zero"}},
            {"contains", attribute("name").contains(text("o")), {"none", odd, "zero"}},
            {"contains in its case", attribute("name").contains(text("ALL")), {}},
            {"contains cyrillic in its case", attribute("name").contains(text("ё")), {}},
            {"contains %", attribute("name").contains(text("%")), {odd}},
            {"contains _", attribute("name").contains(text("_")), {odd}},
            {"contains quotes", attribute("name").contains(text("_'\"\\")), {odd}},
            {"contains emoji", attribute("name").contains(text("Ёж😀")), {odd}},
            {"contains the empty text", attribute("name").contains(text("")), {"all", "none", odd, "zero"}},
            {"contains a null text", attribute("name").contains(QString()), {"all", "none", odd, "zero"}},
            {"equals a null text", attribute("name") == QString() || attribute("name") != QString(), {}},
            {"object", attribute("boss") == all, {"zero"}},
            {"other object", attribute("boss") != none, {"zero"}},
            {"no object", attribute("boss") == static_cast<ManagedObject *>(nullptr), {}},
            {"no boss", attribute("boss").isAbsent(), {"all", "none", odd}},
            {"boss's age", attribute("boss.age") == 40, {"zero"}},
            {"not boss's age", !(attribute("boss.age") == 41), {"zero"}},
            {"boss's name", attribute("boss.name").contains(text("l")), {"zero"}},
            {"boss without an age", attribute("boss.age").isAbsent(), {"all", "none", odd}},
            {"boss's boss", attribute("boss.boss").isAbsent() && !attribute("boss").isAbsent(), {"zero"}},
        };
        for (const auto &[what, predicate, expected] : table) {
            Names sorted = expected;
            std::sort(sorted.begin(), sorted.end());
            EXPECT_EQ(found("Person", predicate), sorted) << what;
        }
        const struct
        {
            const char *what;
            Predicate predicate;
            Names expected;
        } pets[] = {
            {"=", attribute("owner.age") == 40, {"Rex"}},
            {"!=", attribute("owner.age") != 40, {"Tom"}},
            {"! =", !(attribute("owner.age") == 40), {"Tom"}},
            {"absent owner or age", known && attribute("owner.age").isAbsent(), {"Kit"}},
            {"in", attribute("owner.age").in(std::vector<int>{0, 1}), {"Tom"}},
            {"not in nothing", !attribute("owner.age").in(std::vector<int>()), {"Rex", "Tom"}},
            {"two paths", attribute("owner.name") == text("zero") && attribute("owner.active") == false, {"Tom"}},
            {"path or value", attribute("owner.name") == text("all") || attribute("weight") == 2, {"Kit", "Rex"}},
            {"object behind a path", attribute("owner.boss") == all, {"Tom"}},
            {"flag", attribute("owner.active") == true, {"Rex"}},
        };
        for (const auto &[what, predicate, expected] : pets)
            EXPECT_EQ(found("Pet", predicate), expected) << "pets " << what;
    });
}

TEST_F(FetchTest, OrdersAgreeInTheStoreAndInMemory)
{
    const std::vector<std::pair<const char *, QVariant>> people{{"Я", 1},          {"Б", QVariant()}, {"б", 1},
                                                                {"\uFFFD", 2},     {"😀", 2},          {"a", -1},
                                                                {"B", QVariant()}, {"", 1},           {"aa", 1}};
    for (const auto &[name, age] : people)
        insert("Person", {{"name", text(name)}, {"age", age}, {"height", age}});
    insert("Person", {{"age", 1}, {"height", 1}});
    const struct
    {
        std::vector<SortDescriptor> order;
        Names expected;
    } table[] = {
        {{}, {"Я", "Б", "б", "\uFFFD", "😀", "a", "B", "", "aa", ""}},
        {{{"name"}}, {"", "", "B", "a", "aa", "Б", "Я", "б", "\uFFFD", "😀"}},
        {{{"name", false}}, {"😀", "\uFFFD", "б", "Я", "Б", "aa", "a", "B", "", ""}},
        {{{"age"}}, {"Б", "B", "a", "Я", "б", "", "aa", "", "\uFFFD", "😀"}},
        {{{"age", false}}, {"\uFFFD", "😀", "Я", "б", "", "aa", "", "a", "Б", "B"}},
        {{{"height", false}, {"name", false}}, {"😀", "\uFFFD", "б", "Я", "aa", "", "", "a", "Б", "B"}},
    };
    const auto check = [&] {
        for (const auto &[order, expected] : table) {
            EXPECT_EQ(names(graph().fetch("Person", {.sortDescriptors = order})), expected);
            for (size_t limit = 1; limit <= expected.size() + 1; ++limit) {
                const auto cut = static_cast<std::ptrdiff_t>(std::min(limit, expected.size()));
                EXPECT_EQ(
                    names(graph().fetch("Person", {.sortDescriptors = order, .fetchLimit = static_cast<int>(limit)})),
                    Names(expected.begin(), expected.begin() + cut));
            }
            EXPECT_EQ(names(graph().fetch("Person", {.sortDescriptors = order, .fetchBatchSize = 3})), expected);
        }
    };
    check();
    saveAndReopen();
    check();
    for (ManagedObject *object : graph().fetch("Person", {.fetchLimit = 5}))
        set(*object, "active", true);
    check();
}

TEST_F(FetchTest, ImpossibleRequestsAreErrorsAndFindNothing)
{
    fill();
    save();
    (void)person("unsaved");
    const FetchRequest table[] = {
        {.predicate = attribute("nickname") == 1},
        {.predicate = attribute("owner.name") == text("x")},
        {.predicate = attribute("boss.nickname") == 1},
        {.predicate = attribute("boss.boss.name") == text("x")},
        {.predicate = attribute("pets") == 1},
        {.predicate = attribute("pets.name") == text("x")},
        {.predicate = attribute("age") == 1 || attribute("") == 1},
        {.predicate = attribute("age") == text("40")},
        {.predicate = attribute("name") == 40},
        {.predicate = attribute("age").contains(text("4"))},
        {.predicate = attribute("age").in(std::vector<QString>{text("40")})},
        {.predicate = attribute("boss") == 1},
        {.predicate = attribute("age") == &person("all")},
        {.predicate = attribute("boss") < &person("all")},
        {.sortDescriptors = {{"nickname"}}},
        {.sortDescriptors = {{"boss"}}},
        {.sortDescriptors = {{"age"}, {"pets"}}},
    };
    int i = 0;
    for (const FetchRequest &request : table) {
        const auto found = graph().context.fetch(graph().entity("Person"), request);
        EXPECT_FALSE(found) << i;
        EXPECT_FALSE(found || found.error().reason.isEmpty()) << i++;
    }
    // What the store can't do finds nothing either, not even what is in memory.
    ASSERT_TRUE(graph().coordinator.access()->execute("DROP TABLE Person"));
    const auto found = graph().context.fetch(graph().entity("Person"), {});
    ASSERT_FALSE(found);
    EXPECT_NE(found.error().code, 0);
}

TEST_F(FetchTest, BatchesReadThatManyObjectsAtATime)
{
    for (int i = 0; i < 25; ++i)
        insert("Person", {{"age", i}});
    save();
    graph_.reset();
    StatementLog statements;
    reopen();
    (void)statements.take();
    const auto found = graph().fetch("Person", {.sortDescriptors = {{"age", false}}, .fetchBatchSize = 10});
    EXPECT_EQ(statements.count(), 1);
    for (int i = 0; i < 25; ++i)
        EXPECT_EQ(get(*found[static_cast<size_t>(i)], "age"), QVariant(24 - i));
    EXPECT_EQ(statements.count(), 3);
    reopen();
    const auto again = graph().fetch("Person", {.sortDescriptors = {{"age"}}, .fetchBatchSize = 10});
    (void)statements.take();
    EXPECT_EQ(get(*again[20], "age"), QVariant(20)); // from the one that is touched on
    EXPECT_EQ(get(*again[24], "age"), QVariant(24));
    EXPECT_EQ(statements.count(), 1);
    EXPECT_EQ(get(*again[0], "age"), QVariant(0));
    EXPECT_EQ(statements.count(), 1);
}

TEST_F(FetchTest, PrefetchingTakesOneStatementADestination)
{
    for (int i = 0; i < 12; ++i) {
        ManagedObject &owner = insert("Person", {{"name", text("p%1").arg(i)}});
        if (i % 4 != 0)
            insert("Pet", {{"name", text("own%1").arg(i)}, {"owner", QVariant::fromValue(&owner)}});
        insert("Pet", {{"name", text("guest%1").arg(i)}, {"sitter", QVariant::fromValue(&owner)}});
        set(owner, "passport", &insert("Passport", {{"name", text("n%1").arg(i)}}));
        if (i > 0)
            set(owner, "boss", &person("p0"));
    }
    save();
    graph_.reset();
    StatementLog statements;
    reopen();
    ManagedObject &moved = *graph().find("Pet", "own1"); // unsaved changes count
    set(moved, "owner", &person("p2"));
    graph().context.deleteObject(*graph().find("Pet", "guest3"));
    (void)statements.take();
    const auto people = graph().fetch(
        "Person", {.predicate = attribute("name") != text("p11"),
                   .relationshipKeyPathsForPrefetching = {"pets", "guests", "passport", "boss.staff.passport"}});
    // People, pets of both kinds, passports, staff with the passports of those (p11's).
    EXPECT_LE(statements.count(), 5);
    ASSERT_EQ(people.size(), 11U);
    EXPECT_THAT(members(*people[1], "pets"), IsEmpty());
    EXPECT_THAT(members(*people[2], "pets"), ElementsAre("own1", "own2"));
    EXPECT_THAT(members(*people[3], "guests"), IsEmpty());
    EXPECT_THAT(members(*people[4], "pets"), IsEmpty());
    EXPECT_THAT(members(*people[4], "guests"), ElementsAre("guest4"));
    EXPECT_EQ(members(*people[0], "staff").size(), 11U);
    for (const ManagedObject *object : people)
        EXPECT_EQ(name(one(*object, "passport")).substr(1), name(object).substr(1));
    EXPECT_EQ(name(one(person("p11"), "passport")), "n11");
    EXPECT_EQ(statements.take().filter(QStringLiteral("Passport")), QStringList());
}

} // namespace

} // namespace kesto::test
