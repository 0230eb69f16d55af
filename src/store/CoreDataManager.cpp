#include "store/CoreDataManager.h"

#include "model/DietDay.h"
#include "model/DietModel.h"
#include "platform/CloudKeyValueStore.h"
#include "platform/Log.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "store/Keys.h"

#include <QHash>

namespace kesto
{

const QString CoreDataManager::kCoreDataReadyNotification = QStringLiteral("kCoreDataReadyNotification");
bool CoreDataManager::updateSqliteStoreWhenStoreWillReady = false;

CoreDataManager &CoreDataManager::sharedManager() { return Platform::current().shared<CoreDataManager>(); }

CoreDataManager::CoreDataManager(Platform &platform)
    : platform_(platform)
{
    const UserDefaults &defaults = platform.userDefaults();
    startDietDay_ = defaults.dateForKey(Keys::kStartDietDateKey);
    log("instance.startDietDay - %@", startDietDay_);
    metrickSystem_ = defaults.integerForKey(Keys::kSystemKey) == 0;
    langluageCode_ = defaults.stringForKey(Keys::kLangluageCodeKey);
    platform.strings().setLangluageCode(langluageCode_);
    useCloud_ = defaults.boolForKey(Keys::kUseICloudKey) && platform.cloudStore() != nullptr;
    if (useCloud_) {
        cloudStore_ = platform.cloudStore();
        connect(cloudStore_, &CloudKeyValueStore::didChangeExternally, this, &CoreDataManager::cloudStoreChanged);
        cloudStore_->synchronize();
    }
    (void)managedObjectContext();
    if (updateSqliteStoreWhenStoreWillReady)
        updateSqliteFileForNewStartDietDay();
}

CoreDataManager::~CoreDataManager() = default;

const ManagedObjectModel &CoreDataManager::managedObjectModel() const { return dietModel(); }

QUrl CoreDataManager::documentsDirectoryURL() const { return QUrl::fromLocalFile(platform_.documentsFolder()); }

ManagedObjectContext *CoreDataManager::managedObjectContext()
{
    if (context_ != nullptr)
        return context_.get();
    PersistentStoreCoordinator *coordinator = persistentStoreCoordinator();
    if (coordinator != nullptr) {
        context_ = std::make_unique<ManagedObjectContext>(*coordinator);
        platform_.shared<NotificationCenter>().post(kCoreDataReadyNotification);
    }
    log(QStringLiteral("return context"));
    return context_.get();
}

PersistentStoreCoordinator *CoreDataManager::persistentStoreCoordinator()
{
    if (coordinator_ == nullptr) {
        coordinator_ = std::make_unique<PersistentStoreCoordinator>(managedObjectModel());
        attachInBackground([this] { return attachStores(); });
    }
    return coordinator_.get();
}

QString CoreDataManager::kgString() const
{
    return metrickSystem_ ? localized(QStringLiteral("кг")) : QStringLiteral("lbs");
}

QString CoreDataManager::cmString() const
{
    return metrickSystem_ ? localized(QStringLiteral("см")) : QStringLiteral("″");
}

void CoreDataManager::cloudStoreChanged()
{
    log(QStringLiteral("cloudStoreChanged"));
    if (cloudStore_ == nullptr)
        return;
    UserDefaults &defaults = platform_.userDefaults();
    const std::optional<QDateTime> oldStart = startDietDay_;
    const QDateTime start = cloudStore_->objectForKey(Keys::kStartDietDateKey).toDateTime();
    startDietDay_ = start.isValid() ? std::optional(start.toUTC()) : std::nullopt;
    defaults.setValue(startDietDay_ ? QVariant(*startDietDay_) : QVariant(), Keys::kStartDietDateKey);
    // Stored as integers, so the ideal weight loses its fraction.
    for (const QString &key : {Keys::kPeriod1Key, Keys::kPeriod2Key, Keys::kPeriod3Key, Keys::kIdealWidth})
        defaults.setInteger(static_cast<qint64>(cloudStore_->objectForKey(key).toDouble()), key);
    defaults.setValue(cloudStore_->objectForKey(Keys::kFavoriteDishesKey), Keys::kFavoriteDishesKey);
    if (!oldStart || oldStart != startDietDay_)
        updateSqliteFileForNewStartDietDay();
}

void CoreDataManager::updateSqliteFileForNewStartDietDay()
{
    log(QStringLiteral("updateSqliteFileForNewStartDietDay"));
    const UserDefaults &defaults = platform_.userDefaults();
    const std::optional<QDateTime> start = defaults.dateForKey(Keys::kStartDietDateKey);
    ManagedObjectContext *context = managedObjectContext();
    if (!start || context == nullptr)
        return;
    deleteDietDaysBefore(*start);
    markAttackDays(*start, defaults.integerForKey(Keys::kPeriod1Key));
    context->saveOrKeepChanges();
}

Result<std::vector<DietDay *>> CoreDataManager::dietDaysBefore(const QDateTime &date)
{
    FetchRequest earlier;
    earlier.predicate = attribute("date") < date;
    return managedObjectContext()->fetch<DietDay>(earlier);
}

void CoreDataManager::deleteDietDaysBefore(const QDateTime &date)
{
    const auto days = dietDaysBefore(date);
    if (!days) {
        log("the days before the start could not be deleted: %@", days.error().message());
        return;
    }
    for (DietDay *day : *days)
        context_->deleteObject(*day);
}

void CoreDataManager::markAttackDays(const QDateTime &start, qint64 days)
{
    if (days < 1)
        return;
    constexpr qint64 secondsPerDay = 86400;
    // Does the same as dietDatWithDate() for each date, but a long Attack takes one fetch and one save.
    FetchRequest request;
    request.predicate = attribute("date") >= start && attribute("date") <= start.addSecs((days - 1) * secondsPerDay);
    const auto stored = managedObjectContext()->fetch<DietDay>(request);
    if (!stored) {
        log("the Attack days could not be marked: %@", stored.error().message());
        return;
    }
    QHash<QDateTime, DietDay *> known;
    for (DietDay *day : *stored) {
        if (day->date() && !known.contains(*day->date()))
            known.insert(*day->date(), day);
    }
    for (qint64 i = 0; i < days; ++i) {
        const QDateTime date = start.addSecs(i * secondsPerDay);
        DietDay *day = known.value(date);
        if (day == nullptr) {
            day = &context_->insert<DietDay>();
            day->setDate(date);
        }
        day->setChB(true);
    }
}

void CoreDataManager::reparseSqliteIfNeeded(const std::function<void()> &parse)
{
    const QString marker = QStringLiteral("kLaunchedFirstTimeAfter_v_1_1_Update");
    UserDefaults &defaults = platform_.userDefaults();
    if (defaults.valueForKey(marker).isValid())
        return;
    defaults.setBool(true, marker);
    log(QStringLiteral("reparse"));
    parse();
}

int CoreDataManager::dietPeriodForCalendar(const Calendar &calendar, const QDateTime &date)
{
    const UserDefaults &defaults = Platform::current().userDefaults();
    const std::optional<QDateTime> start = defaults.dateForKey(Keys::kStartDietDateKey);
    // Without a start every date counts as the first day.
    const qint64 day = start ? calendar.wholeUnits(Calendar::Unit::Day, *start, date) : 0;
    const qint64 attack = defaults.integerForKey(Keys::kPeriod1Key);
    const qint64 cruise = attack + defaults.integerForKey(Keys::kPeriod2Key);
    const qint64 consolidation = cruise + defaults.integerForKey(Keys::kPeriod3Key);
    if (0 <= day && day < attack)
        return 0;
    if (attack <= day && day < cruise)
        return 1;
    if (cruise <= day && day < consolidation)
        return 2;
    return day >= consolidation ? 3 : -1;
}

QString CoreDataManager::periodNameForDietPeriod(int period)
{
    switch (period) {
    case 0:
        return localized(QStringLiteral("Атака"));
    case 1:
        return localized(QStringLiteral("Круиз"));
    case 2:
        return localized(QStringLiteral("Консолидация"));
    case 3:
        return localized(QStringLiteral("Cтабилизация")); // the key begins with a Latin letter
    default:
        return {};
    }
}

std::optional<QColor> CoreDataManager::colorForPeriod(int period)
{
    switch (period) {
    case 0:
        return QColor::fromRgbF(0.824F, 0.247F, 0.247F);
    case 1:
        return QColor::fromRgbF(0.584F, 0.796F, 0.976F);
    case 2:
        return QColor::fromRgbF(0.506F, 0.718F, 0.298F);
    case 3:
        return QColor::fromRgbF(0.824F, 0.741F, 0.184F);
    default:
        return std::nullopt;
    }
}

} // namespace kesto
