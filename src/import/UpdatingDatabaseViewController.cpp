#include "import/UpdatingDatabaseViewController.h"

#include "import/SQLiteParser.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"

#include <chrono>

namespace kesto
{

void UpdatingDatabaseViewController::setMode(int mode)
{
    if (mode_ == mode)
        return;
    mode_ = mode;
    Q_EMIT modeChanged();
}

QString UpdatingDatabaseViewController::text() const
{
    return localized(mode_ == 1 ? QStringLiteral("Updating Dishes Database")
                                : QStringLiteral("Creating Dishes Database"));
}

void UpdatingDatabaseViewController::viewDidLoad()
{
    connect(&timer_, &QTimer::timeout, this, &UpdatingDatabaseViewController::importWhenReady);
    timer_.start(std::chrono::milliseconds(500));
}

void UpdatingDatabaseViewController::importWhenReady()
{
    CoreDataManager &manager = CoreDataManager::sharedManager();
    if (manager.managedObjectContext() == nullptr || !manager.isStoreOpen())
        return; // without a store there is nothing to import into; the user decides what happens
    timer_.stop();
    const Result<void> done = SQLiteParser::parse();
    UserDefaults &defaults = Platform::current().userDefaults();
    defaults.setValue(appVersion_, Keys::kAppVersionKey);
    defaults.setValue(done ? QVariant() : QVariant(true), Keys::kImportFailedKey);
    defaults.synchronize(); // a failure is logged; the import is then repeated at the next start
    dismissViewController(true);
}

} // namespace kesto
