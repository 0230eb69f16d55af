#include "model/DietDay.h"
#include "model/DietModel.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/DishesCategory.h"
#include "model/FoodObject.h"
#include "model/Image.h"
#include "model/Ingredient.h"
#include "model/JornalDay.h"
#include "model/PurhaseIngredient.h"
#include "model/TimeObject.h"
#include "model/TimeRow.h"
#include "platform/objectgraph/ManagedObjectContext.h"
#include "platform/objectgraph/PersistentStoreCoordinator.h"
#include "support/Printing.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <functional>
#include <limits>
#include <memory>
#include <set>

namespace kesto::test
{

namespace
{

/// An attribute with its typed accessors behind variants, and a value that it must keep. What a type can hold is tested
/// with the graph.
struct Attribute
{
    std::string entity;
    std::string name;
    std::function<QVariant(const ManagedObject &)> read;
    std::function<void(ManagedObject &, const QVariant &)> write;
    QVariant value;
};

QVariant sampleOf(const float * /*type*/) { return 80.1F; }
QVariant sampleOf(const int * /*type*/) { return qint64(-7); }
QVariant sampleOf(const quint32 * /*type*/) { return std::numeric_limits<quint32>::max(); }
QVariant sampleOf(const bool * /*type*/) { return false; }
QVariant sampleOf(const QByteArray * /*type*/) { return QByteArray("\0\1", 2); }
QVariant sampleOf(const QDateTime * /*type*/) { return QDateTime::fromMSecsSinceEpoch(1'709'802'000'123, Qt::UTC); }

template <class T, class Value, class Parameter>
Attribute typed(const char *entity, const char *name, std::optional<Value> (T::*get)() const, void (T::*set)(Parameter))
{
    return {entity, name,
            [get](const ManagedObject &object) -> QVariant {
                const auto value = (static_cast<const T &>(object).*get)();
                if (!value)
                    return {};
                if constexpr (std::is_same_v<Value, int>)
                    return QVariant::fromValue(static_cast<qint64>(*value));
                else
                    return QVariant::fromValue(*value);
            },
            [set](ManagedObject &object, const QVariant &value) {
                (static_cast<T &>(object).*set)(value.isValid() ? std::optional<Value>(value.value<Value>())
                                                                : std::nullopt);
            },
            sampleOf(static_cast<const Value *>(nullptr))};
}

template <class T>
Attribute typed(const char *entity, const char *name, QString (T::*get)() const, void (T::*set)(const QString &))
{
    return {entity, name,
            [get](const ManagedObject &object) {
                const QString value = (static_cast<const T &>(object).*get)();
                return value.isNull() ? QVariant() : QVariant(value);
            },
            [set](ManagedObject &object, const QVariant &value) { (static_cast<T &>(object).*set)(value.toString()); },
            QStringLiteral("Щи 🍲")};
}

std::vector<Attribute> attributes()
{
    return {
        typed("DietDay", "date", &DietDay::date, &DietDay::setDate),
        typed("DietDay", "weight", &DietDay::weight, &DietDay::setWeight),
        typed("DietDay", "chest", &DietDay::chest, &DietDay::setChest),
        typed("DietDay", "hip", &DietDay::hip, &DietDay::setHip),
        typed("DietDay", "waist", &DietDay::waist, &DietDay::setWaist),
        typed("DietDay", "biceps", &DietDay::biceps, &DietDay::setBiceps),
        typed("DietDay", "chB", &DietDay::chB, &DietDay::setChB),
        typed("DietDay", "bO", &DietDay::bO, &DietDay::setBO),
        typed("DietDay", "feast", &DietDay::feast, &DietDay::setFeast),
        typed("Dish", "dishID", &Dish::dishID, &Dish::setDishID),
        typed("Dish", "nameRU", &Dish::nameRU, &Dish::setNameRU),
        typed("Dish", "nameENG", &Dish::nameENG, &Dish::setNameENG),
        typed("Dish", "recipeRU", &Dish::recipeRU, &Dish::setRecipeRU),
        typed("Dish", "recipeENG", &Dish::recipeENG, &Dish::setRecipeENG),
        typed("Dish", "dietPeriod", &Dish::dietPeriod, &Dish::setDietPeriod),
        typed("Dish", "recipeNew", &Dish::recipeNew, &Dish::setRecipeNew),
        typed("Dish", "userCreated", &Dish::userCreated, &Dish::setUserCreated),
        typed("DishesCategory", "nameRU", &DishesCategory::nameRU, &DishesCategory::setNameRU),
        typed("DishesCategory", "nameENG", &DishesCategory::nameENG, &DishesCategory::setNameENG),
        typed("DishesCategory", "displayOrder", &DishesCategory::displayOrder, &DishesCategory::setDisplayOrder),
        typed("Ingredient", "name", &Ingredient::name, &Ingredient::setName),
        typed("Ingredient", "displayOrder", &Ingredient::displayOrder, &Ingredient::setDisplayOrder),
        typed("PurhaseIngredient", "count", &PurhaseIngredient::count, &PurhaseIngredient::setCount),
        typed("PurhaseIngredient", "date", &PurhaseIngredient::date, &PurhaseIngredient::setDate),
        typed("PurhaseIngredient", "purchased", &PurhaseIngredient::purchased, &PurhaseIngredient::setPurchased),
        typed("DishInDietDay", "displayOrder", &DishInDietDay::displayOrder, &DishInDietDay::setDisplayOrder),
        typed("Image", "data", &Image::data, &Image::setData),
        typed("JornalDay", "hotDay", &JornalDay::hotDay, &JornalDay::setHotDay),
        typed("JornalDay", "sportDay", &JornalDay::sportDay, &JornalDay::setSportDay),
        typed("JornalDay", "meatSportActivity", &JornalDay::meatSportActivity, &JornalDay::setMeatSportActivity),
        typed("TimeRow", "time", &TimeRow::time, &TimeRow::setTime),
        typed("TimeRow", "compleate", &TimeRow::compleate, &TimeRow::setCompleate),
        typed("TimeRow", "remind", &TimeRow::remind, &TimeRow::setRemind),
        typed("TimeRow", "reminderDate", &TimeRow::reminderDate, &TimeRow::setReminderDate),
        typed("TimeRow", "userCreated", &TimeRow::userCreated, &TimeRow::setUserCreated),
        typed("TimeRow", "otherTimeObject", &TimeRow::otherTimeObject, &TimeRow::setOtherTimeObject),
        typed("TimeObject", "type", &TimeObject::type, &TimeObject::setType),
        typed("TimeObject", "value1", &TimeObject::value1, &TimeObject::setValue1),
        typed("TimeObject", "value2", &TimeObject::value2, &TimeObject::setValue2),
        typed("TimeObject", "waterType", &TimeObject::waterType, &TimeObject::setWaterType),
        typed("FoodObject", "time", &FoodObject::time, &FoodObject::setTime),
        typed("FoodObject", "type", &FoodObject::type, &FoodObject::setType),
        typed("FoodObject", "count", &FoodObject::count, &FoodObject::setCount),
    };
}

/// A relationship from its to-one side, with the accessors of both sides. What happens to the other end when an object
/// is deleted stands for both directions.
struct Relationship
{
    std::string entity;
    std::string name;
    std::string destination;
    std::string inverse;
    std::function<ManagedObject *(const ManagedObject &)> one;
    std::function<void(ManagedObject &, ManagedObject *)> setOne;
    std::function<std::vector<ManagedObject *>(const ManagedObject &)> back;
    std::function<void(ManagedObject &, ManagedObject &)> add;
    std::function<void(ManagedObject &, ManagedObject &)> remove;
    bool deletedWithDestination;
    bool takesDestinationAlong;
};

template <class T, class D>
Relationship toMany(const char *entity, const char *name, D *(T::*one)() const, void (T::*setOne)(D *),
                    const char *destination, const char *inverse, std::vector<T *> (D::*back)() const,
                    void (D::*add)(T &), void (D::*remove)(T &), bool deletedWithDestination)
{
    return {entity,
            name,
            destination,
            inverse,
            [one](const ManagedObject &object) { return (static_cast<const T &>(object).*one)(); },
            [setOne](ManagedObject &object, ManagedObject *value) {
                (static_cast<T &>(object).*setOne)(static_cast<D *>(value));
            },
            [back](const ManagedObject &object) {
                const auto members = (static_cast<const D &>(object).*back)();
                return std::vector<ManagedObject *>(members.begin(), members.end());
            },
            [add](ManagedObject &object, ManagedObject &member) {
                (static_cast<D &>(object).*add)(static_cast<T &>(member));
            },
            [remove](ManagedObject &object, ManagedObject &member) {
                (static_cast<D &>(object).*remove)(static_cast<T &>(member));
            },
            deletedWithDestination,
            false};
}

template <class T, class D>
Relationship pair(const char *entity, const char *name, D *(T::*one)() const, void (T::*setOne)(D *),
                  const char *destination, const char *inverse, T *(D::*back)() const, void (D::*setBack)(T *),
                  bool takesDestinationAlong)
{
    return {
        entity,
        name,
        destination,
        inverse,
        [one](const ManagedObject &object) { return (static_cast<const T &>(object).*one)(); },
        [setOne](ManagedObject &object, ManagedObject *value) {
            (static_cast<T &>(object).*setOne)(static_cast<D *>(value));
        },
        [back](const ManagedObject &object) {
            T *other = (static_cast<const D &>(object).*back)();
            return other != nullptr ? std::vector<ManagedObject *>{other} : std::vector<ManagedObject *>();
        },
        [setBack](ManagedObject &object, ManagedObject &member) {
            (static_cast<D &>(object).*setBack)(static_cast<T *>(&member));
        },
        [setBack](ManagedObject &object, ManagedObject & /*member*/) { (static_cast<D &>(object).*setBack)(nullptr); },
        false,
        takesDestinationAlong};
}

std::vector<Relationship> relationships()
{
    return {
        pair("DietDay", "jornalDay", &DietDay::jornalDay, &DietDay::setJornalDay, "JornalDay", "day", &JornalDay::day,
             &JornalDay::setDay, true),
        pair("Dish", "image", &Dish::image, &Dish::setImage, "Image", "dish", &Image::dish, &Image::setDish, true),
        toMany("Dish", "dishCategory", &Dish::dishCategory, &Dish::setDishCategory, "DishesCategory", "dishes",
               &DishesCategory::dishes, &DishesCategory::addDishes, &DishesCategory::removeDishes, false),
        toMany("DishInDietDay", "dietDays", &DishInDietDay::dietDays, &DishInDietDay::setDietDays, "DietDay", "dishes",
               &DietDay::dishes, &DietDay::addDishes, &DietDay::removeDishes, true),
        toMany("DishInDietDay", "dish", &DishInDietDay::dish, &DishInDietDay::setDish, "Dish", "dishInDietDays",
               &Dish::dishInDietDays, &Dish::addDishInDietDays, &Dish::removeDishInDietDays, true),
        toMany("DishInDietDay", "jornalTimeRow", &DishInDietDay::jornalTimeRow, &DishInDietDay::setJornalTimeRow,
               "TimeRow", "dishesInDietDay", &TimeRow::dishesInDietDay, &TimeRow::addDishesInDietDay,
               &TimeRow::removeDishesInDietDay, true),
        toMany("Ingredient", "dishRU", &Ingredient::dishRU, &Ingredient::setDishRU, "Dish", "ingredientsRU",
               &Dish::ingredientsRU, &Dish::addIngredientsRU, &Dish::removeIngredientsRU, true),
        toMany("Ingredient", "dishENG", &Ingredient::dishENG, &Ingredient::setDishENG, "Dish", "ingredientsENG",
               &Dish::ingredientsENG, &Dish::addIngredientsENG, &Dish::removeIngredientsENG, true),
        toMany("PurhaseIngredient", "ingredient", &PurhaseIngredient::ingredient, &PurhaseIngredient::setIngredient,
               "Ingredient", "purchaseIngredient", &Ingredient::purchaseIngredient, &Ingredient::addPurchaseIngredient,
               &Ingredient::removePurchaseIngredient, false),
        toMany("TimeRow", "joranlDay", &TimeRow::joranlDay, &TimeRow::setJoranlDay, "JornalDay", "timeRows",
               &JornalDay::timeRows, &JornalDay::addTimeRows, &JornalDay::removeTimeRows, true),
        toMany("TimeObject", "timeRow", &TimeObject::timeRow, &TimeObject::setTimeRow, "TimeRow", "timeObjects",
               &TimeRow::timeObjects, &TimeRow::addTimeObjects, &TimeRow::removeTimeObjects, true),
        toMany("FoodObject", "jornalDayMeat", &FoodObject::jornalDayMeat, &FoodObject::setJornalDayMeat, "JornalDay",
               "meatObjects", &JornalDay::meatObjects, &JornalDay::addMeatObjects, &JornalDay::removeMeatObjects, true),
        toMany("FoodObject", "jornalDayWatter", &FoodObject::jornalDayWatter, &FoodObject::setJornalDayWatter,
               "JornalDay", "waterObjects", &JornalDay::waterObjects, &JornalDay::addWaterObjects,
               &JornalDay::removeWaterObjects, true),
    };
}

class EntityTest : public testing::Test
{
protected:
    EntityTest()
        : context_(std::make_unique<ManagedObjectContext>(coordinator_))
    {
        EXPECT_TRUE(coordinator_.addPersistentStore(folder_.filePath(QStringLiteral("Diet.sqlite")), {}));
    }
    /// Reads from the file from now on. It stays open, which leaves objects without an owner alone.
    void saveAndReopen()
    {
        ASSERT_TRUE(context_->save());
        context_ = std::make_unique<ManagedObjectContext>(coordinator_);
    }
    void clear(const std::vector<std::string> &entities)
    {
        for (const std::string &entity : entities) {
            for (ManagedObject *object : all(entity))
                context_->deleteObject(*object);
        }
        saveAndReopen();
    }
    ManagedObject &insert(const std::string &entity) { return context_->insert(*dietModel().entity(entity)); }
    std::vector<ManagedObject *> all(const std::string &entity)
    {
        return context_->fetch(*dietModel().entity(entity), {}).value();
    }

    QTemporaryDir folder_;
    PersistentStoreCoordinator coordinator_{dietModel()};
    std::unique_ptr<ManagedObjectContext> context_;
};

TEST_F(EntityTest, EveryAttributeIsTheSameByNameAndTyped)
{
    std::set<std::string> tried;
    for (const Attribute &attribute : attributes()) {
        SCOPED_TRACE(attribute.entity + '.' + attribute.name);
        ASSERT_NE(dietModel().entity(attribute.entity), nullptr);
        tried.insert(attribute.entity + '.' + attribute.name);
        const QString key = QString::fromStdString(attribute.name);
        const auto expect = [&](const ManagedObject &object, const QVariant &value) {
            for (const QVariant &got : {attribute.read(object), object.valueForKey(key)}) {
                EXPECT_EQ(got.typeId(), value.typeId());
                EXPECT_EQ(got, value);
            }
        };
        ManagedObject &typed = insert(attribute.entity);
        expect(typed, {}); // absent at first
        attribute.write(typed, attribute.value);
        expect(typed, attribute.value);
        attribute.write(typed, {});
        expect(typed, {});
        EXPECT_TRUE(typed.setValueForKey(attribute.value, key));
        saveAndReopen();
        expect(*all(attribute.entity).front(), attribute.value);
        clear({attribute.entity});
    }
    size_t count = 0;
    for (const EntityDescription &entity : dietModel().entities())
        count += entity.attributes().size();
    EXPECT_EQ(tried.size(), count); // none was left out
}

TEST_F(EntityTest, EveryRelationshipLeadsThereAndBack)
{
    size_t count = 0;
    for (const Relationship &relationship : relationships()) {
        SCOPED_TRACE(relationship.entity + '.' + relationship.name);
        count += 2;
        const QString name = QString::fromStdString(relationship.name);
        const QString inverse = QString::fromStdString(relationship.inverse);
        const auto first = [&](const std::string &entity) { return all(entity).front(); };
        insert(relationship.entity);
        insert(relationship.destination);
        const auto expectLinked = [&](bool linked) {
            ManagedObject *source = first(relationship.entity);
            ManagedObject *destination = first(relationship.destination);
            EXPECT_EQ(relationship.one(*source), linked ? destination : nullptr);
            EXPECT_EQ(relationship.back(*destination), linked ? std::vector{source} : std::vector<ManagedObject *>());
            EXPECT_EQ(source->valueForKey(name).value<ManagedObject *>(), linked ? destination : nullptr);
            const QVariant back = destination->valueForKey(inverse);
            const auto list = back.value<QList<ManagedObject *>>();
            EXPECT_EQ(list.isEmpty() ? back.value<ManagedObject *>() : list.front(), linked ? source : nullptr);
        };
        relationship.setOne(*first(relationship.entity), first(relationship.destination));
        expectLinked(true);
        relationship.setOne(*first(relationship.entity), nullptr);
        expectLinked(false);
        relationship.add(*first(relationship.destination), *first(relationship.entity));
        expectLinked(true);
        relationship.remove(*first(relationship.destination), *first(relationship.entity));
        expectLinked(false);
        EXPECT_TRUE(
            first(relationship.entity)->setValueForKey(QVariant::fromValue(first(relationship.destination)), name));
        expectLinked(true);
        saveAndReopen();
        expectLinked(true);

        for (const bool deleteDestination : {true, false}) {
            // Another pair, unlinked, must stay.
            clear({relationship.entity, relationship.destination});
            for (const std::string &entity : {relationship.entity, relationship.destination}) {
                insert(entity);
                insert(entity);
            }
            relationship.setOne(*first(relationship.entity), first(relationship.destination));
            saveAndReopen();
            context_->deleteObject(*first(deleteDestination ? relationship.destination : relationship.entity));
            saveAndReopen();
            const size_t left = all(deleteDestination ? relationship.entity : relationship.destination).size();
            const bool gone =
                deleteDestination ? relationship.deletedWithDestination : relationship.takesDestinationAlong;
            EXPECT_EQ(left, gone ? 1U : 2U) << (deleteDestination ? "destination" : "source") << " deleted";
            EXPECT_EQ(all(deleteDestination ? relationship.destination : relationship.entity).size(), 1U);
            EXPECT_EQ(relationship.one(*first(relationship.entity)), nullptr);
            EXPECT_TRUE(relationship.back(*first(relationship.destination)).empty());
        }
        clear({relationship.entity, relationship.destination});
    }
    for (const EntityDescription &entity : dietModel().entities())
        count -= entity.toOneRelationships().size() + entity.toManyRelationships().size();
    EXPECT_EQ(count, 0U); // none was left out
}

} // namespace

} // namespace kesto::test
