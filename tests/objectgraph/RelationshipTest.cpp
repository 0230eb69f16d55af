#include "objectgraph/GraphTest.h"
#include "support/LogCapture.h"

namespace kesto::test
{

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

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
    ManagedObject &passport(const char *name)
    {
        ManagedObject *found = graph().find("Passport", name);
        return found != nullptr ? *found : insert("Passport", {{"name", QString::fromUtf8(name)}});
    }
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

TEST_F(RelationshipTest, ManySideFollowsOneSide)
{
    always(
        [&] {
            for (const char *name : {"Rex", "Tom", "Kit"})
                set(pet(name), "owner", &person("Anna"));
            (void)person("Boris");
        },
        [&] {
            set(pet("Rex"), "owner", &person("Boris")); // another parent
            set(pet("Tom"), "owner", nullptr);
            set(pet("Kit"), "owner", nullptr); // away and back
            set(pet("Kit"), "owner", &person("Anna"));
            set(pet("New"), "owner", &person("Anna"));
            set(pet("New"), "sitter", &person("Boris")); // the other relationship of the same pair of entities
        },
        [&] {
            EXPECT_THAT(members(person("Anna"), "pets"), ElementsAre("Kit", "New"));
            EXPECT_THAT(members(person("Boris"), "pets"), ElementsAre("Rex"));
            EXPECT_THAT(members(person("Boris"), "guests"), ElementsAre("New"));
            EXPECT_THAT(members(person("Anna"), "guests"), IsEmpty());
            EXPECT_EQ(name(one(pet("Rex"), "owner")), "Boris");
            EXPECT_EQ(one(pet("Tom"), "owner"), nullptr);
        });
}

TEST_F(RelationshipTest, OneSideFollowsManySide)
{
    always(
        [&] {
            for (const char *name : {"Rex", "Tom", "Kit"})
                set(pet(name), "owner", &person("Anna"));
            set(pet("Old"), "owner", &person("Boris"));
        },
        [&] {
            ManagedObject &boris = person("Boris");
            const int pets = boris.entity().property("pets").slot;
            boris.addToMany(pets, &pet("Rex"));      // taken from Anna
            boris.addToMany(pets, &pet("Rex"));      // twice is once
            boris.removeFromMany(pets, &pet("Tom")); // Anna's
            boris.removeFromMany(pets, &pet("Old"));
            const QList<ManagedObject *> wanted{&pet("Kit"), &pet("New")};
            set(person("Anna"), "pets", QVariant::fromValue(wanted)); // drops Tom
        },
        [&] {
            EXPECT_THAT(members(person("Anna"), "pets"), ElementsAre("Kit", "New"));
            EXPECT_THAT(members(person("Boris"), "pets"), ElementsAre("Rex"));
            EXPECT_EQ(name(one(pet("Rex"), "owner")), "Boris");
            EXPECT_EQ(one(pet("Tom"), "owner"), nullptr);
            EXPECT_EQ(one(pet("Old"), "owner"), nullptr);
            EXPECT_EQ(name(one(pet("New"), "owner")), "Anna");
        });
}

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

TEST_F(RelationshipTest, AnEntityCanLinkToItself)
{
    always([&] { set(person("Boris"), "boss", &person("Anna")); },
           [&] {
               set(person("Clara"), "boss", &person("Boris"));
               set(person("Anna"), "boss", &person("Anna")); // her own boss
           },
           [&] {
               EXPECT_THAT(members(person("Anna"), "staff"), ElementsAre("Anna", "Boris"));
               EXPECT_THAT(members(person("Boris"), "staff"), ElementsAre("Clara"));
               EXPECT_EQ(one(person("Anna"), "boss"), &person("Anna"));
           });
    graph().context.deleteObject(person("Anna"));
    EXPECT_EQ(one(person("Boris"), "boss"), nullptr);
    saveAndReopen();
    EXPECT_EQ(graph().find("Person", "Anna"), nullptr);
    EXPECT_EQ(one(person("Boris"), "boss"), nullptr);
}

TEST_F(RelationshipTest, DeletionFollowsItsRules)
{
    always(
        [&] {
            set(pet("Rex"), "owner", &person("Anna"));
            set(pet("Rex"), "sitter", &person("Boris"));
            set(pet("Guest"), "owner", &person("Boris"));
            set(pet("Guest"), "sitter", &person("Anna"));
            set(person("Anna"), "passport", &passport("A"));
            set(person("Boris"), "boss", &person("Anna"));
            set(person("Boris"), "passport", &passport("B"));
            set(person("Anna"), "boss", &person("Clara"));
        },
        [&] {
            if (ManagedObject *anna = graph().find("Person", "Anna")) {
                set(pet("Late"), "owner", anna); // never seen by the store
                graph().context.deleteObject(*anna);
                EXPECT_TRUE(anna->isDeleted());
            }
            ManagedObject *borisPassport = graph().find("Passport", "B");
            graph().context.deleteObject(*borisPassport); // a passport does not take its holder along
        },
        [&] {
            EXPECT_THAT(names(graph().fetch("Person", {.sortDescriptors = {{"name"}}})), ElementsAre("Boris", "Clara"));
            EXPECT_THAT(names(graph().fetch("Pet")), ElementsAre("Guest"));
            EXPECT_THAT(names(graph().fetch("Passport")), IsEmpty());
            EXPECT_EQ(one(person("Boris"), "boss"), nullptr);
            EXPECT_EQ(one(person("Boris"), "passport"), nullptr);
            EXPECT_THAT(members(person("Boris"), "guests"), IsEmpty());
            EXPECT_THAT(members(person("Clara"), "staff"), IsEmpty());
            EXPECT_EQ(one(pet("Guest"), "sitter"), nullptr);
        });
}

TEST_F(RelationshipTest, SetsMayChangeWhileTheyAreWalked)
{
    ManagedObject &anna = person("Anna");
    for (int i = 0; i < 20; ++i)
        insert("Pet", {{"owner", QVariant::fromValue(&anna)}});
    saveAndReopen();
    ManagedObject &again = person("Anna");
    const int pets = again.entity().property("pets").slot;
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

TEST_F(RelationshipTest, WhatWasNeverSavedLeavesNoTrace)
{
    ManagedObject &anna = person("Anna");
    save();
    ManagedObject &rex = insert("Pet", {{"name", QStringLiteral("Rex")}, {"owner", QVariant::fromValue(&anna)}});
    graph().context.deleteObject(rex);
    EXPECT_TRUE(rex.isDeleted());
    EXPECT_THAT(members(anna, "pets"), IsEmpty());
    EXPECT_FALSE(graph().context.hasChanges());
    save();
    ManagedObject &tom = pet("Tom");
    EXPECT_NE(tom.objectID(), rex.objectID());
    saveAndReopen();
    EXPECT_THAT(names(graph().fetch("Pet")), ElementsAre("Tom"));
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
        boris.addToMany(boris.entity().property("staff").slot, &anna);
        anna.addToMany(boris.entity().property("staff").slot, &boris);
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
