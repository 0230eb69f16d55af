#include "model/DietDay.h"
#include "model/DietModel.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/FoodObject.h"
#include "model/Image.h"
#include "model/Ingredient.h"
#include "model/JornalDay.h"
#include "model/TimeObject.h"
#include "model/TimeRow.h"
#include "platform/objectgraph/ManagedObjectContext.h"
#include "platform/objectgraph/PersistentStoreCoordinator.h"
#include "platform/objectgraph/SqlStore.h"
#include "support/LogCapture.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>

namespace kesto::test
{

namespace
{

/// A store file with one context.
struct Store
{
    explicit Store(const QString &path)
        : coordinator(dietModel())
        , context(coordinator)
    {
        const auto added = coordinator.addPersistentStore(path, {});
        EXPECT_TRUE(added) << added.error().message().toStdString();
    }
    size_t count(const char *entity) { return context.fetch(*dietModel().entity(entity), {}).value().size(); }

    PersistentStoreCoordinator coordinator;
    ManagedObjectContext context;
};

/// What the files of each version hold. When this fails the model was changed: give it a higher version, and add the
/// new fingerprint and a file of the new version to tests/model/data.
const std::map<int, qint64> fingerprints{{1, 9'114'507'064'763'087'658}};

TEST(StoredFiles, AChangedModelHasAHigherVersion)
{
    const auto known = fingerprints.find(dietModel().version());
    ASSERT_NE(known, fingerprints.end());
    EXPECT_EQ(dietModel().fingerprint(), known->second);
}

/// Each file holds one object of each entity; all attributes are set, and all are linked with each other.
TEST(StoredFiles, ThoseOfEachVersionOpenAndHoldWhatTheyHeld)
{
    for (const auto &[version, fingerprint] : fingerprints) {
        SCOPED_TRACE("version " + std::to_string(version));
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("Diet.sqlite"));
        ASSERT_TRUE(QFile::copy(QStringLiteral(KESTO_STORE_FILES "/Diet-%1.sqlite").arg(version), path));
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
        for (int round = 0; round < 2; ++round) { // as it was, and brought up to date
            Store store(path);
            int values = 0;
            for (const EntityDescription &entity : dietModel().entities()) {
                const auto objects = store.context.fetch(entity, {}).value();
                ASSERT_EQ(objects.size(), 1U) << entity.name();
                for (const AttributeDescription &attribute : entity.attributes()) {
                    const QVariant value = objects.front()->valueForKey(QString::fromStdString(attribute.name));
                    values += value.isValid() ? 1 : 0;
                    if (attribute.type == AttributeType::String) {
                        EXPECT_EQ(value.toString(), QString::fromStdString(attribute.name));
                    }
                }
                for (const auto *list : {&entity.toOneRelationships(), &entity.toManyRelationships()}) {
                    for (const RelationshipDescription &relationship : *list) {
                        const QVariant other = objects.front()->valueForKey(QString::fromStdString(relationship.name));
                        EXPECT_TRUE(relationship.toMany ? other.value<QList<ManagedObject *>>().size() == 1
                                                        : other.value<ManagedObject *>() != nullptr)
                            << entity.name() << '.' << relationship.name;
                    }
                }
            }
            EXPECT_EQ(values, 43); // of version 1
            const DietDay *day = store.context.fetch<DietDay>().value().front();
            EXPECT_EQ(day->date(), QDateTime::fromMSecsSinceEpoch(1'709'802'000'123, Qt::UTC));
            EXPECT_EQ(day->weight(), 80.5F);
            EXPECT_EQ(day->feast(), false);
            EXPECT_EQ(store.context.fetch<Image>().value().front()->data(), QByteArray("\0\1", 2));
        }
    }
}

TEST(StoredFiles, WhatNothingLeadsToIsDeletedWhenTheFileIsOpened)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("Diet.sqlite"));
    qint64 lastRow = 0;
    {
        Store store(path);
        ManagedObjectContext &context = store.context;
        auto &day = context.insert<DietDay>();
        for (JornalDay *journal : {&context.insert<JornalDay>(), &context.insert<JornalDay>()}) {
            for (TimeRow *row : {&context.insert<TimeRow>(), &context.insert<TimeRow>()}) {
                row->setJoranlDay(journal);
                context.insert<TimeObject>().setTimeRow(row);
                context.insert<DishInDietDay>().setJornalTimeRow(row);
                lastRow = row->objectID();
            }
            context.insert<FoodObject>().setJornalDayMeat(journal);
            context.insert<FoodObject>().setJornalDayWatter(journal);
            if (day.jornalDay() == nullptr)
                day.setJornalDay(journal);
        }
        auto &dish = context.insert<Dish>();
        auto &planned = context.insert<DishInDietDay>();
        planned.setDietDays(&day);
        planned.setDish(&dish);
        context.insert<DishInDietDay>().setDish(&dish); // on no day and in no row
        context.insert<Image>();
        context.insert<Image>().setDish(&dish);
        context.insert<Ingredient>(); // a product of the shopping list
        for (const char *entity : {"TimeRow", "TimeObject", "FoodObject"})
            context.insert(*dietModel().entity(entity));
        ASSERT_TRUE(context.save());
        // A day that an earlier version deleted without its journal's reference to it.
        ASSERT_TRUE(store.coordinator.access()->execute("UPDATE JornalDay SET day = 77 WHERE day IS NULL"));
    }
    LogCapture log;
    Store store(path);
    EXPECT_EQ(log.lines(), QStringList{QStringLiteral("deleted 14 records that nothing leads to any more")});
    const std::map<const char *, size_t> left{{"DietDay", 1},       {"JornalDay", 1},  {"TimeRow", 2},
                                              {"TimeObject", 2},    {"FoodObject", 2}, {"Dish", 1},
                                              {"DishInDietDay", 3}, {"Image", 1},      {"Ingredient", 1}};
    for (const auto &[entity, count] : left)
        EXPECT_EQ(store.count(entity), count) << entity;
    EXPECT_GT(store.context.insert<TimeRow>().objectID(), lastRow + 1); // one of none was inserted behind it
}

} // namespace

} // namespace kesto::test
