#include "DataFolder.h"

#include "BaselineDatabase.h"
#include "Fixtures.h"

#include "import/SQLiteParser.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "platform/RandomSource.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "platform/objectgraph/ManagedObjectContext.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"

#include <QDate>
#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <map>
#include <memory>

namespace kesto::bench
{

namespace
{

void fill(const QString &folder, const DataOptions &options)
{
    const QString resources = QStringLiteral(KESTO_RESOURCES_FOLDER);
    const QString documents = folder + QStringLiteral("/Documents");
    QDir().mkpath(documents);
    UserDefaults defaults(folder + QStringLiteral("/UserDefaults.plist"));
    StringTables strings(resources, QStringLiteral("ru"));
    SystemClock clock;
    SystemRandomSource random;
    const Calendar calendar;
    const QDate today = calendar.dayOf(clock.now());
    defaults.setValue(QStringLiteral(KESTO_VERSION), Keys::kAppVersionKey);
    if (options.started) {
        defaults.setValue(calendar.startOfDay(today.addDays(-kDays / 2)), Keys::kStartDietDateKey);
        defaults.setInteger(10, Keys::kPeriod1Key);
        defaults.setInteger(200, Keys::kPeriod2Key);
        defaults.setInteger(300, Keys::kPeriod3Key);
    }
    const Platform platform(Platform::Services{.documentsFolder = documents,
                                               .resourcesFolder = resources,
                                               .version = {},
                                               .userDefaults = &defaults,
                                               .strings = &strings,
                                               .notifications = nullptr,
                                               .clock = &clock,
                                               .random = &random,
                                               .cloudStore = nullptr,
                                               .calendar = calendar});
    if (!SQLiteParser::parse())
        qFatal("the catalogue could not be imported");
    if (options.daysBefore + options.daysAfter > 0) {
        std::vector<QDateTime> days;
        for (int i = -options.daysBefore; i < options.daysAfter; ++i)
            days.push_back(calendar.startOfDay(today.addDays(i)));
        ManagedObjectContext &context = *CoreDataManager::sharedManager().managedObjectContext();
        insertDiary(days, context);
        if (!context.save())
            fail(QStringLiteral("the diary can't be written"));
    }
    defaults.synchronize();
}

QString original(const DataOptions &options)
{
    static std::map<DataOptions, std::unique_ptr<QTemporaryDir>> folders;
    std::unique_ptr<QTemporaryDir> &folder = folders[options];
    if (folder == nullptr) {
        folder = std::make_unique<QTemporaryDir>();
        const auto before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        fill(folder->path(), options);
        qInstallMessageHandler(before);
    }
    return folder->path();
}

} // namespace

DataFolder::DataFolder(const DataOptions &options)
{
    const QDir from(original(options));
    QDirIterator files(from.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QString to = copy_.filePath(from.relativeFilePath(file));
        if (!QDir().mkpath(QFileInfo(to).path()) || !QFile::copy(file, to))
            fail(QStringLiteral("the data folder can't be copied"));
    }
}

} // namespace kesto::bench
