#include "objectgraph/GraphTest.h"
#include "support/LogCapture.h"

namespace kesto::test
{

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

/// What a graph of random edits leaves out: pairs, and what calls for trouble.
class RelationshipTest : public GraphTest
{
protected:
    /// How much of the graph is in memory when a test changes it.
    enum class Memory { Inserted, Saved, Reopened, Touched };

    void bring(Memory memory)
    {
        if (memory != Memory::Inserted)
            save();
        if (memory == Memory::Reopened || memory == Memory::Touched)
            reopen();
        if (memory == Memory::Touched) {
            for (const char *entity : {"Person", "Pet", "Passport"}) {
                for (const ManagedObject *object : graph().fetch(entity)) {
                    for (const auto &relationship : object->entity().toManyRelationships())
                        (void)object->toManyCount(relationship.slot);
                }
            }
        }
    }
    ManagedObject &passport(const char *name) { return named("Passport", name); }
    /// Runs a change over every state of memory, then a check at once, after saving, and after reopening.
    void always(const std::function<void()> &prepare, const std::function<void()> &change,
                const std::function<void()> &check)
    {
        int i = 0;
        for (const Memory memory : {Memory::Inserted, Memory::Saved, Memory::Reopened, Memory::Touched}) {
            SCOPED_TRACE("state of memory " + std::to_string(i++));
            for (const char *entity : {"Person", "Pet", "Passport"}) {
                for (ManagedObject *object : graph().fetch(entity))
                    graph().context.deleteObject(*object);
            }
            saveAndReopen();
            prepare();
            bring(memory);
            change();
            check();
            save();
            check();
            reopen();
            check();
        }
    }
};

TEST_F(RelationshipTest, PairsStayPairs)
{
    for (const bool fromTheOtherSide : {false, true}) {
        always(
            [&] {
                set(person("Anna"), "passport", &passport("A"));
                set(person("Boris"), "passport", &passport("B"));
                (void)person("Clara");
            },
            [&] {
                // Boris takes A: Anna has none then, and B has no holder.
                if (fromTheOtherSide)
                    set(passport("A"), "holder", &person("Boris"));
                else
                    set(person("Boris"), "passport", &passport("A"));
            },
            [&] {
                EXPECT_EQ(one(person("Anna"), "passport"), nullptr);
                EXPECT_EQ(name(one(person("Boris"), "passport")), "A");
                EXPECT_EQ(name(one(passport("A"), "holder")), "Boris");
                EXPECT_EQ(one(passport("B"), "holder"), nullptr);
            });
        set(passport("A"), "holder", nullptr);
        EXPECT_EQ(one(person("Boris"), "passport"), nullptr);
        saveAndReopen();
        EXPECT_EQ(one(person("Boris"), "passport"), nullptr);
    }
}

TEST_F(RelationshipTest, APassportGoesWithItsHolderAndNotTheReverse)
{
    always(
        [&] {
            set(person("Anna"), "passport", &passport("A"));
            set(person("Boris"), "passport", &passport("B"));
        },
        [&] {
            set(pet("Late"), "owner", &person("Anna")); // never seen by the store
            for (ManagedObject *gone : {&person("Anna"), &passport("B")}) {
                graph().context.deleteObject(*gone);
                EXPECT_TRUE(gone->isDeleted());
            }
        },
        [&] {
            EXPECT_THAT(names(graph().fetch("Person")), ElementsAre("Boris"));
            EXPECT_THAT(names(graph().fetch("Passport")), IsEmpty());
            EXPECT_THAT(names(graph().fetch("Pet")), IsEmpty());
            EXPECT_EQ(one(person("Boris"), "passport"), nullptr);
        });
}

TEST_F(RelationshipTest, SetsMayChangeWhileTheyAreWalked)
{
    ManagedObject &anna = person("Anna");
    for (int i = 0; i < 20; ++i)
        insert("Pet", {{"owner", QVariant::fromValue(&anna)}});
    saveAndReopen();
    ManagedObject &again = person("Anna");
    const int pets = again.entity().property("pets").value().slot;
    int i = 0;
    for (ManagedObject *animal : again.toMany(pets)) {
        if (++i % 2 == 0)
            graph().context.deleteObject(*animal);
        else
            again.removeFromMany(pets, animal);
    }
    EXPECT_EQ(again.toManyCount(pets), 0U);
    saveAndReopen();
    EXPECT_EQ(person("Anna").toManyCount(pets), 0U);
    EXPECT_EQ(graph().fetch("Pet").size(), 10U);
}

TEST_F(RelationshipTest, DeletedObjectsRefuseWritesAndLinks)
{
    ManagedObject &boris = person("Boris");
    for (const bool saved : {false, true}) {
        ManagedObject &anna = person("Anna");
        set(anna, "age", 30);
        save();
        graph().context.deleteObject(anna);
        if (saved)
            save();
        EXPECT_EQ(get(anna, "age"), QVariant(30)); // still readable
        const LogCapture log;
        (void)anna.setValueForKey(31, QStringLiteral("age"));
        (void)anna.setValueForKey(QVariant::fromValue(&boris), QStringLiteral("boss"));
        (void)boris.setValueForKey(QVariant::fromValue(&anna), QStringLiteral("boss"));
        boris.addToMany(boris.entity().property("staff").value().slot, &anna);
        anna.addToMany(boris.entity().property("staff").value().slot, &boris);
        EXPECT_EQ(log.lines().size(), 5);
        EXPECT_EQ(get(anna, "age"), QVariant(30));
        EXPECT_EQ(one(boris, "boss"), nullptr);
        EXPECT_THAT(members(boris, "staff"), IsEmpty());
        graph().context.deleteObject(anna); // a second time changes nothing
        save();
        EXPECT_FALSE(graph().context.hasChanges());
    }
    reopen();
    EXPECT_THAT(names(graph().fetch("Person")), ElementsAre("Boris"));
}

} // namespace

} // namespace kesto::test
