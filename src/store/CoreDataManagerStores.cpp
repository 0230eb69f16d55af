// Which store file is opened, and the moves between the local file and the one that a cloud keeps.

#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"

#include <QFile>
#include <QMetaObject>

namespace kesto
{

namespace
{

const QString kUbiquitousContentName = QStringLiteral("kestoDietIcloudStore");

QUrl url(const QString &path) { return QUrl::fromLocalFile(path); }

} // namespace

// Runs in the background with the coordinator's lock held.
void CoreDataManager::attachStores()
{
    UserDefaults &defaults = platform_.userDefaults();
    const QString local = platform_.documentsFolder() + QStringLiteral("/Diet.sqlite");
    const QString cloud = platform_.documentsFolder() + QStringLiteral("/iCloudDiet.sqlite");
    const bool merged = defaults.boolForKey(Keys::kOldDataMerged);
    const bool localExists = QFile::exists(local);
    log(merged ? QStringLiteral("merged alredy") : QStringLiteral("!old data merged"));
    log(localExists ? QStringLiteral("old database file exist") : QStringLiteral("not database file exises"));

    if (defaults.boolForKey(Keys::kDisableiCloud)) {
        // The cloud file holds the data only if they were once moved there, or never were anywhere else. Moving back an
        // old or empty one would replace what the user typed since.
        if (QFile::exists(cloud) && (merged || !localExists)) {
            moveFromCloud(local, cloud);
            return;
        }
        defaults.setBool(false, Keys::kOldDataMerged);
        defaults.setBool(false, Keys::kDisableiCloud);
    }
    if (useCloud_ && !defaults.boolForKey(Keys::kOldDataMerged) && localExists)
        mergeIntoCloud(local, cloud);
    else
        openStore(local, cloud);
}

void CoreDataManager::moveFromCloud(const QString &local, const QString &cloud)
{
    log("REMOVE ICLOUD STORE fron urk - %@", url(cloud));
    if (const auto added = coordinator_->addPersistentStore(cloud, {kUbiquitousContentName, false}); !added) {
        log("error while additing presitance store - %@", added.error().message());
        return;
    }
    coordinator_->perform([this, local] {
        UserDefaults &defaults = platform_.userDefaults();
        // The markers are on disk before the first write to the local file: killed between the two, the next start
        // would move the cloud file back once more, over that write.
        const auto clearMarkers = [&defaults] {
            defaults.setBool(false, Keys::kOldDataMerged);
            defaults.setBool(false, Keys::kDisableiCloud);
            defaults.synchronize();
            return Result<void>();
        };
        if (!coordinator_->migratePersistentStore(local, {QString(), true}, clearMarkers))
            return; // the cloud file stays in use; the next start tries again
        QMetaObject::invokeMethod(
            this, [local] { log("merged from removing icloude store, to new url - %@", url(local)); },
            Qt::QueuedConnection);
    });
}

void CoreDataManager::mergeIntoCloud(const QString &local, const QString &cloud)
{
    log(QStringLiteral("start merging from normal store to iCLoud"));
    if (const auto added = coordinator_->addPersistentStore(local, {}); !added) {
        log("error while additing presitance store - %@", added.error().message());
        return;
    }
    coordinator_->perform([this, local, cloud] {
        UserDefaults &defaults = platform_.userDefaults();
        const auto setMarker = [&defaults] {
            defaults.setBool(true, Keys::kOldDataMerged);
            defaults.synchronize();
            return Result<void>();
        };
        if (!coordinator_->migratePersistentStore(cloud, {kUbiquitousContentName, false}, setMarker))
            return; // the local file stays in use; the next start tries again
        QMetaObject::invokeMethod(
            this,
            [local, cloud] { log("merged to icloud store, from url _ %@, to new url - %@", url(local), url(cloud)); },
            Qt::QueuedConnection);
    });
}

void CoreDataManager::openStore(const QString &local, const QString &cloud)
{
    PersistentStoreOptions options;
    if (useCloud_) {
        options.ubiquitousContentName = kUbiquitousContentName;
        log(QStringLiteral("add iclouyd key"));
    }
    const QString path = useCloud_ ? cloud : local;
    if (const auto added = coordinator_->addPersistentStore(path, options))
        log("added normal store to url - %@", url(path));
    else
        log("error while additing presitance store - %@", added.error().message());
}

} // namespace kesto
