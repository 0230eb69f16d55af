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
    if (CoreDataManager::sharedManager().managedObjectContext() == nullptr)
        return;
    timer_.stop();
    SQLiteParser::parse();
    UserDefaults &defaults = Platform::current().userDefaults();
    defaults.setValue(appVersion_, Keys::kAppVersionKey);
    defaults.synchronize();
    dismissViewController(true);
}

} // namespace kesto
