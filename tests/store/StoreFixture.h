#pragma once

#include "model/DietDay.h"
#include "model/Ingredient.h"
#include "model/PurhaseIngredient.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"
#include "support/LogCapture.h"
#include "support/TestPlatform.h"

#include <QCoreApplication>
#include <QFile>

#include <gmock/gmock.h>

namespace kesto::test
{

/// A program with its store manager, to be ended and started again over the same folder.
class StoreFixture
{
public:
    explicit StoreFixture(TestPlatform::Options options = {})
        : platform(std::move(options))
    {
        registerDefaults();
    }

    [[nodiscard]] CoreDataManager &manager() { return CoreDataManager::sharedManager(); }
    [[nodiscard]] ManagedObjectContext &context() { return *manager().managedObjectContext(); }
    [[nodiscard]] UserDefaults &defaults() { return platform.userDefaults(); }
    [[nodiscard]] QString path(const char *name) const
    {
        return platform.documentsFolder() + QLatin1Char('/') + QLatin1String(name);
    }

    /// Waits for the attachment, for moves between files and for the lines they send to the main thread.
    void settle()
    {
        manager().persistentStoreCoordinator()->waitForBackgroundWork();
        QCoreApplication::processEvents();
    }

    void restart()
    {
        settle();
        platform.restart();
        registerDefaults();
    }

    /// The file in use.
    [[nodiscard]] QString file()
    {
        return QFileInfo(manager().persistentStoreCoordinator()->persistentStorePath()).fileName();
    }

    void weigh(const QDateTime &date, float weight)
    {
        DietDay::dietDatWithDate(date, context()).value()->setWeight(weight);
        ASSERT_TRUE(context().save());
    }
    [[nodiscard]] std::optional<float> weight(const QDateTime &date)
    {
        const DietDay *day = DietDay::dayWithoutCreation(date, context());
        return day != nullptr ? day->weight() : std::nullopt;
    }

    /// A product and its line on the shopping list, so many times; saved.
    void fillShoppingList(int size)
    {
        for (int i = 0; i < size; ++i) {
            auto &product = context().insert<Ingredient>();
            product.setName(QString::number(i));
            auto &line = context().insert<PurhaseIngredient>();
            line.setIngredient(&product);
            line.setDate(QDateTime::fromMSecsSinceEpoch(1000 * i, Qt::UTC));
        }
        EXPECT_TRUE(context().save());
    }

    TestPlatform platform;

private:
    void registerDefaults() { defaults().registerDefaults({{Keys::kUseICloudKey, true}, {Keys::kSystemKey, 0}}); }
};

inline QStringList texts(std::initializer_list<const char *> utf8)
{
    QStringList list;
    for (const char *text : utf8)
        list.append(QString::fromUtf8(text));
    return list;
}

inline TestPlatform::Options withCloud() { return {.cloud = true}; }

} // namespace kesto::test
