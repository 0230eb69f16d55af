// Chooses the store file and moves the data between the local file and the cloud's.

#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"

#include <QFile>
#include <QMetaObject>

#include <utility>

namespace kesto
{

namespace
{

const QString kUbiquitousContentName = QStringLiteral("kestoDietIcloudStore");

QUrl url(const QString &path) { return QUrl::fromLocalFile(path); }

} // namespace

void CoreDataManager::attachInBackground(const std::function<std::optional<StoreProblem>()> &attachment)
{
    coordinator_->performLocked([this, attachment] {
        std::optional<StoreProblem> problem = attachment();
        QMetaObject::invokeMethod(
            this, [this, problem = std::move(problem)] { attachmentEnded(problem); }, Qt::QueuedConnection);
    });
}

void CoreDataManager::attachmentEnded(const std::optional<StoreProblem> &problem)
{
    storeProblem_ = problem;
    if (storeProblem_)
        Q_EMIT storeRefused();
    else
        Q_EMIT storeOpened();
}

bool CoreDataManager::isStoreOpen() { return !persistentStoreCoordinator()->persistentStorePath().isNull(); }

Result<void> CoreDataManager::startWithEmptyStore()
{
    if (!storeProblem_)
        return failure(QStringLiteral("cannot set the store file aside"), {}, QStringLiteral("it is in use"));
    const Result<QString> copy = setStoreAside(storeProblem_->path);
    if (!copy)
        return tl::unexpected(copy.error());
    const QString path = std::exchange(storeProblem_, std::nullopt)->path;
    log("the store file %@ was renamed to %@", path, *copy);
    // What was inserted while there was no store has keys that a store may use for other objects.
    formerContexts_.push_back(std::move(context_));
    platform_.userDefaults().removeObjectForKey(Keys::kAppVersionKey);
    // The same file anew: choosing again could open an old file of before a move.
    const bool isCloudFile = path == cloudPath();
    attachInBackground([this, path, isCloudFile] { return openStore(path, isCloudFile); });
    (void)managedObjectContext();
    return {};
}

// Runs in the background with the coordinator's lock held.
std::optional<StoreProblem> CoreDataManager::attachStores()
{
    UserDefaults &defaults = platform_.userDefaults();
    const QString local = platform_.documentsFolder() + QStringLiteral("/Diet.sqlite");
    const QString cloud = cloudPath();
    for (const QString &path : {local, cloud}) {
        if (const Result<void> finished = finishSettingAside(path); !finished)
            return kesto::storeProblem(path, finished.error());
    }
    const bool merged = defaults.boolForKey(Keys::kOldDataMerged);
    const bool localExists = QFile::exists(local);
    const bool cloudExists = QFile::exists(cloud);
    log(merged ? QStringLiteral("merged alredy") : QStringLiteral("!old data merged"));
    log(localExists ? QStringLiteral("old database file exist") : QStringLiteral("not database file exises"));

    if (defaults.boolForKey(Keys::kDisableiCloud)) {
        // Move back only a cloud file that holds the data: they were merged into it, or there never was a local file.
        // An old or empty cloud file would replace what the user has entered since.
        if (cloudExists && (merged || !localExists))
            return moveFromCloud(local, cloud);
        defaults.setBool(false, Keys::kOldDataMerged);
        defaults.setBool(false, Keys::kDisableiCloud);
    }
    // An abandoned move removes its target but may leave its markers on disk. So the files decide, too.
    if (!useCloud_ && cloudExists && !localExists)
        return moveFromCloud(local, cloud);
    const bool inCloud = defaults.boolForKey(Keys::kOldDataMerged) && cloudExists;
    if (useCloud_ && localExists && !inCloud)
        return mergeIntoCloud(local, cloud);
    return openStore(useCloud_ ? cloud : local, useCloud_);
}

QString CoreDataManager::cloudPath() const
{
    return platform_.documentsFolder() + QStringLiteral("/iCloudDiet.sqlite");
}

std::optional<StoreProblem> CoreDataManager::attach(const QString &path, const PersistentStoreOptions &options)
{
    const Result<void> added = coordinator_->addPersistentStore(path, options);
    if (added)
        return std::nullopt;
    log("error while additing presitance store - %@", added.error().message());
    return kesto::storeProblem(path, added.error());
}

// The next start chooses the file by these markers. So they must be on disk before anything is written to the target of
// a move; otherwise that start would move the old file over it. When they cannot be written the move is abandoned.
Result<void> CoreDataManager::recordMove(const std::vector<std::pair<QString, bool>> &markers)
{
    UserDefaults &defaults = platform_.userDefaults();
    std::vector<std::pair<QString, QVariant>> before;
    for (const auto &[key, value] : markers) {
        before.emplace_back(key, defaults.valueForKey(key));
        defaults.setBool(value, key);
    }
    Result<void> written = defaults.synchronize();
    if (!written) {
        for (const auto &[key, value] : before)
            defaults.setValue(value, key);
    }
    return written;
}

std::optional<StoreProblem> CoreDataManager::moveFromCloud(const QString &local, const QString &cloud)
{
    log("REMOVE ICLOUD STORE fron urk - %@", url(cloud));
    if (auto problem = attach(cloud, {kUbiquitousContentName, false}))
        return problem;
    coordinator_->perform([this, local] {
        const auto record = [this] {
            return recordMove({{Keys::kOldDataMerged, false}, {Keys::kDisableiCloud, false}});
        };
        if (const Result<void> moved = coordinator_->migratePersistentStore(local, {QString(), true}, record); !moved) {
            log(moved.error().message());
            return; // the cloud file stays in use; the next start tries again
        }
        QMetaObject::invokeMethod(
            this, [local] { log("merged from removing icloude store, to new url - %@", url(local)); },
            Qt::QueuedConnection);
    });
    return std::nullopt;
}

std::optional<StoreProblem> CoreDataManager::mergeIntoCloud(const QString &local, const QString &cloud)
{
    log(QStringLiteral("start merging from normal store to iCLoud"));
    if (auto problem = attach(local, {}))
        return problem;
    coordinator_->perform([this, local, cloud] {
        const auto record = [this] { return recordMove({{Keys::kOldDataMerged, true}}); };
        const Result<void> moved = coordinator_->migratePersistentStore(cloud, {kUbiquitousContentName, false}, record);
        if (!moved) {
            log(moved.error().message());
            return; // the local file stays in use; the next start tries again
        }
        QMetaObject::invokeMethod(
            this,
            [local, cloud] { log("merged to icloud store, from url _ %@, to new url - %@", url(local), url(cloud)); },
            Qt::QueuedConnection);
    });
    return std::nullopt;
}

std::optional<StoreProblem> CoreDataManager::openStore(const QString &path, bool isCloudFile)
{
    PersistentStoreOptions options;
    if (isCloudFile) {
        options.ubiquitousContentName = kUbiquitousContentName;
        log(QStringLiteral("add iclouyd key"));
    }
    if (auto problem = attach(path, options))
        return problem;
    log("added normal store to url - %@", url(path));
    return std::nullopt;
}

} // namespace kesto
