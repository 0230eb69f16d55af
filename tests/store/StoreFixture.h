#pragma once

#include "model/DietDay.h"
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
        DietDay::dietDatWithDate(date, context()).setWeight(weight);
        ASSERT_TRUE(context().save());
    }
    [[nodiscard]] std::optional<float> weight(const QDateTime &date)
    {
        const DietDay *day = DietDay::dayWithoutCreation(date, context());
        return day != nullptr ? day->weight() : std::nullopt;
    }

    TestPlatform platform;

private:
    void registerDefaults() { defaults().registerDefaults({{Keys::kUseICloudKey, true}, {Keys::kSystemKey, 0}}); }
};

inline TestPlatform::Options withCloud()
{
    TestPlatform::Options options;
    options.cloud = true;
    return options;
}

} // namespace kesto::test
