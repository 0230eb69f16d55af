#include "objectgraph/GraphTest.h"
#include "support/LogCapture.h"

#include <functional>

namespace kesto::test
{

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

/// Anna has the pets Rex and Tom and the passport A. A table that is out of the way can't be read.
class FailedReadTest : public GraphTest
{
protected:
    FailedReadTest()
    {
        for (const char *animal : {"Rex", "Tom"})
            set(pet(animal), "owner", &person("Anna"));
        set(person("Anna"), "passport", &named("Passport", "A"));
        set(person("Anna"), "age", 30);
        (void)pet("Stray");
        saveAndReopen();
    }
    void hide(const std::string &table)
    {
        run("ALTER TABLE \"" + table + "\" RENAME TO hidden");
        hidden_ = table;
    }
    void bringBack()
    {
        if (!hidden_.empty())
            run("ALTER TABLE hidden RENAME TO \"" + std::exchange(hidden_, {}) + '"');
    }
    void run(const std::string &sql)
    {
        const auto done = graph().coordinator.access()->execute(sql.c_str());
        ASSERT_TRUE(done) << done.error().message().toStdString();
    }
    ManagedObject &owner() { return *one(pet("Rex"), "owner"); } // not read yet
    void expectAsBefore()
    {
        EXPECT_THAT(members(person("Anna"), "pets"), ElementsAre("Rex", "Tom"));
        EXPECT_EQ(name(one(person("Anna"), "passport")), "A");
        EXPECT_EQ(get(person("Anna"), "age"), QVariant(30));
        EXPECT_EQ(one(pet("Stray"), "owner"), nullptr);
        EXPECT_THAT(names(graph().fetch("Pet")), ElementsAre("Rex", "Tom", "Stray"));
    }

    std::string hidden_;
    LogCapture log_;
};

TEST_F(FailedReadTest, IsAnErrorOfTheFetchAndNothingIsKept)
{
    const struct
    {
        const char *hidden;
        const char *entity;
        FetchRequest request;
    } table[] = {
        {"Pet", "Pet", {}},
        {"Pet", "Pet", {.fetchBatchSize = 10}},
        {"Pet", "Person", {.relationshipKeyPathsForPrefetching = {"pets"}}},
        {"Passport", "Person", {.relationshipKeyPathsForPrefetching = {"passport"}}},
        {"Pet", "Passport", {.relationshipKeyPathsForPrefetching = {"holder.pets"}}},
        {"Person", "Pet", {.predicate = attribute("sitter.name") == QStringLiteral("Unsaved")}},
    };
    set(pet("Stray"), "sitter", &person("Sitter"));
    saveAndReopen();
    for (const auto &[hidden, entity, request] : table) {
        SCOPED_TRACE(std::string(entity) + ", " + hidden + " hidden");
        reopen();
        set(person("Unsaved"), "age", 2); // a condition on people is now decided in memory
        hide(hidden);
        const auto found = graph().context.fetch(graph().entity(entity), request);
        ASSERT_FALSE(found);
        EXPECT_TRUE(found.error().reason.contains(QStringLiteral("no such table")));
        EXPECT_NE(found.error().code, 0);
        bringBack();
        EXPECT_THAT(members(person("Anna"), "pets"), ElementsAre("Rex", "Tom"));
        EXPECT_EQ(name(one(person("Anna"), "passport")), "A");
    }
}

TEST_F(FailedReadTest, RefusesWhatWouldChangeTheObjectAndFailsTheSaveOnce)
{
    const struct
    {
        const char *what;
        const char *hidden;
        std::function<void()> change;
    } table[] = {
        {"delete an owner whose pets can't be read", "Pet", [&] { graph().context.deleteObject(person("Anna")); }},
        {"delete an owner whose passport can't be read", "Passport",
         [&] { graph().context.deleteObject(person("Anna")); }},
        {"delete an object that can't be read", "Person", [&] { graph().context.deleteObject(owner()); }},
        {"delete what seems to be empty", "Pet",
         [&] {
             if (members(person("Anna"), "pets").empty()) {
                 bringBack(); // in time for the deletion itself
                 graph().context.deleteObject(person("Anna"));
             }
         }},
        {"write a value", "Person", [&] { set(owner(), "age", 31); }},
        {"write absence over an unknown value", "Person", [&] { set(owner(), "age", QVariant()); }},
        {"link a pair", "Person",
         [&] {
             ManagedObject &passport = insert("Passport", {{"holder", QVariant::fromValue(&owner())}});
             graph().context.deleteObject(passport);
         }},
        {"take the partner of a pair", "Passport", [&] { set(person("Anna"), "passport", nullptr); }},
        {"replace a set", "Pet",
         [&] {
             EXPECT_FALSE(
                 person("Anna").setValueForKey(QVariant::fromValue(QList<ManagedObject *>()), QStringLiteral("pets")));
         }},
        {"add to a set that could not be read", "Pet",
         [&] {
             EXPECT_THAT(members(person("Anna"), "pets"), IsEmpty());
             ManagedObject &late = insert("Pet");
             set(late, "owner", &person("Anna"));
             graph().context.deleteObject(late);
         }},
    };
    for (const auto &[what, hidden, change] : table) {
        SCOPED_TRACE(what);
        reopen();
        if (std::string(hidden) != "Person")
            (void)person("Anna");
        for (const char *animal : {"Rex", "Stray"}) // read; their owner and her set are not
            (void)pet(animal);
        hide(hidden);
        change();
        log_.take();
        const auto saved = graph().context.save();
        ASSERT_FALSE(saved);
        EXPECT_TRUE(saved.error().reason.contains(QStringLiteral("no such table")));
        EXPECT_EQ(log_.take().size(), 1);
        bringBack();
        EXPECT_FALSE(graph().context.hasChanges());
        expectAsBefore();
        set(pet("Stray"), "weight", 2.5);
        saveAndReopen();
        expectAsBefore();
    }
}

TEST_F(FailedReadTest, ShowsNothingAndIsTriedAgain)
{
    ManagedObject &anna = owner();
    hide("Person");
    EXPECT_FALSE(get(anna, "age").isValid());
    EXPECT_EQ(one(anna, "passport"), nullptr);
    EXPECT_EQ(log_.take().size(), 1); // and not once a value
    EXPECT_TRUE(graph().save());      // nothing was changed, so nothing was refused
    bringBack();
    EXPECT_EQ(get(anna, "age"), QVariant(30));
    // A row that is not there is something else: it can be read, and there is no such object.
    run("DELETE FROM Passport");
    ManagedObject *passport = one(anna, "passport");
    ASSERT_NE(passport, nullptr);
    EXPECT_FALSE(get(*passport, "name").isValid());
    EXPECT_TRUE(passport->isDeleted());
}

TEST_F(FailedReadTest, ARollbackGoesBackToTheFile)
{
    ManagedObject &anna = person("Anna");
    ManagedObject &late = insert("Pet", {{"owner", QVariant::fromValue(&anna)}});
    set(anna, "age", 31);
    set(pet("Stray"), "owner", &anna);
    graph().context.deleteObject(pet("Rex"));
    graph().context.deleteObject(*one(anna, "passport"));
    graph().context.rollback();
    EXPECT_TRUE(late.isDeleted());
    for (int round = 0; round < 2; ++round) {
        EXPECT_FALSE(graph().context.hasChanges());
        expectAsBefore();
        saveAndReopen();
    }
}

} // namespace

} // namespace kesto::test
