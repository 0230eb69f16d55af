#include "objectgraph/GraphTest.h"
#include "objectgraph/StatementLog.h"

namespace kesto::test
{

namespace
{

class IdentityTest : public GraphTest
{
protected:
    StatementLog statements_; // of the connections that the tests open
};

TEST_F(IdentityTest, OneRowIsOneObjectHoweverItIsReached)
{
    set(pet("Rex"), "owner", &person("Anna"));
    set(person("Boris"), "boss", &person("Anna"));
    saveAndReopen();
    ManagedObject *anna = one(pet("Rex"), "owner"); // a fault
    EXPECT_EQ(graph().find("Person", "Anna"), anna);
    EXPECT_EQ(one(person("Boris"), "boss"), anna);
    EXPECT_EQ(graph().fetch("Person", {.fetchBatchSize = 1}).front(), anna);
    EXPECT_EQ(graph().context.registeredObject(anna->entity(), anna->objectID()), anna);
    EXPECT_EQ(one(*anna, "pets"), nullptr); // a set is no object
    const auto pets = get(*anna, "pets").value<QList<ManagedObject *>>();
    ASSERT_EQ(pets.size(), 1);
    EXPECT_EQ(pets.front(), &pet("Rex"));
}

TEST_F(IdentityTest, LookingUpByKeyNeverTouchesTheStore)
{
    const qint64 key = person("Anna").objectID();
    saveAndReopen();
    (void)statements_.take();
    const EntityDescription &entity = graph().entity("Person");
    EXPECT_EQ(graph().context.registeredObject(entity, key), nullptr);
    EXPECT_EQ(statements_.count(), 0);
    ManagedObject &anna = person("Anna");
    (void)statements_.take();
    EXPECT_EQ(graph().context.registeredObject(entity, key), &anna);
    EXPECT_EQ(graph().context.registeredObject(graph().entity("Pet"), key), nullptr);
    EXPECT_EQ(graph().context.registeredObject(entity, key + 1), nullptr);
    EXPECT_EQ(statements_.count(), 0);
    graph().context.deleteObject(anna);
    save();
    EXPECT_EQ(graph().context.registeredObject(entity, key), nullptr);
}

TEST_F(IdentityTest, NoStatementReadsWhatIsInMemory)
{
    for (int i = 0; i < 3; ++i) {
        ManagedObject &animal = insert("Pet", {{"name", QString::number(i)}});
        set(animal, "owner", &person("Anna"));
    }
    saveAndReopen();
    ManagedObject &anna = person("Anna");
    (void)statements_.take();
    EXPECT_EQ(members(anna, "pets").size(), 3U);
    EXPECT_EQ(statements_.count(), 1); // the set with the values of its members
    EXPECT_EQ(members(anna, "pets").size(), 3U);
    for (ManagedObject *animal : anna.toMany(0))
        EXPECT_EQ(one(*animal, "owner"), &anna);
    EXPECT_EQ(statements_.count(), 0);
}

TEST_F(IdentityTest, KeysAreNotUsedTwiceAndSurviveAnInsertionWithoutAStore)
{
    (void)person("Anna");
    saveAndReopen();
    const qint64 last = person("Boris").objectID();
    graph().context.deleteObject(person("Boris"));
    save();
    EXPECT_GT(person("Clara").objectID(), last);
    save();
    graph().context.deleteObject(pet("Brief")); // never seen by the store
    EXPECT_FALSE(graph().context.hasChanges());
    // Also not after a restart, and not in a file that does not say yet which ones were used.
    const qint64 clara = person("Clara").objectID();
    graph().context.deleteObject(person("Clara"));
    saveAndReopen();
    EXPECT_GT(person("Dora").objectID(), clara);
    set(pet("Rex"), "owner", &person("Dora"));
    save();
    for (const char *sql : {"DROP TABLE \"_state\"", "UPDATE Pet SET owner = 500"})
        ASSERT_TRUE(graph().coordinator.access()->execute(sql));
    reopen();
    EXPECT_GT(person("Emil").objectID(), 500);
    EXPECT_EQ(members(person("Emil"), "pets").size(), 0U);
    graph().context.deleteObject(person("Dora"));
    graph().context.deleteObject(person("Emil"));
    save();
    graph_.reset();

    OpenGraph late{QString()};
    ManagedObject &early = late.insert("Person", {{"name", QStringLiteral("Early")}});
    EXPECT_FALSE(late.save());
    EXPECT_FALSE(late.error.message().isEmpty());
    EXPECT_EQ(late.find("Person", "Early"), &early);
    ASSERT_TRUE(late.coordinator.addPersistentStore(path(), {}));
    EXPECT_TRUE(late.save()) << late.error.message().toStdString();
    EXPECT_EQ(late.fetch("Person").size(), 2U);
    EXPECT_EQ(late.find("Person", "Early"), &early);
}

} // namespace

} // namespace kesto::test
