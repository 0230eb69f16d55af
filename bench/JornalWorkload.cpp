#include "BaselineDatabase.h"
#include "Checksum.h"
#include "Fixtures.h"
#include "Workloads.h"

#include "components/NavigationController.h"
#include "components/Window.h"
#include "journal/JornalSheduleRootViewController.h"
#include "journal/JornalTabBarController.h"
#include "journal/WaterVals.h"
#include "model/DietDay.h"
#include "platform/Clock.h"
#include "platform/Platform.h"
#include "platform/RandomSource.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"

#include <QFile>
#include <QTemporaryDir>

#include <ctime>
#include <optional>

namespace kesto::bench
{

namespace
{

constexpr double kNanosecondsPerSecond = 1e9;

/// Of this thread, in nanoseconds: a save waits for the disk, which is not this program's time.
double processorTime()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * kNanosecondsPerSecond + static_cast<double>(now.tv_nsec);
}

/// A program without an interface over a copy of a store file.
class JornalProgram
{
public:
    JornalProgram(Fixtures &fixtures, const QString &file)
        : day_(fixtures.days()[kJornalDay])
        , silenced_(qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {}))
        , defaults_(std::in_place, folder_.filePath(QStringLiteral("defaults.plist")))
        , strings_(QStringLiteral(KESTO_RESOURCES_FOLDER), QStringLiteral("ru"))
    {
        if (!QFile::copy(file, folder_.filePath(QStringLiteral("Diet.sqlite"))))
            fail(QStringLiteral("the file can't be copied"));
        defaults_->registerDefaults({{Keys::kWaterWalskey, defultsWaterVals()}});
        platform_.emplace(Platform::Services{.documentsFolder = folder_.path(),
                                             .resourcesFolder = QStringLiteral(KESTO_RESOURCES_FOLDER),
                                             .version = {},
                                             .userDefaults = &*defaults_,
                                             .strings = &strings_,
                                             .notifications = nullptr,
                                             .clock = &clock_,
                                             .random = &random_,
                                             .cloudStore = nullptr,
                                             .calendar = Calendar(QTimeZone::utc(), Qt::Monday)});
        CoreDataManager &manager = CoreDataManager::sharedManager();
        manager.persistentStoreCoordinator()->waitForBackgroundWork();
        (void)DietDay::dayWithoutCreation(fixtures.days()[kJornalDay - 1],
                                          *manager.managedObjectContext()); // opens the file
        auto navigation = std::make_unique<NavigationController>(std::make_unique<ViewController>());
        stack_ = navigation.get();
        Window::sharedWindow().setSize({390, 844});
        Window::sharedWindow().setRootViewController(std::move(navigation));
    }
    ~JornalProgram()
    {
        platform_.reset();
        qInstallMessageHandler(silenced_);
    }
    JornalProgram(const JornalProgram &) = delete;
    JornalProgram &operator=(const JornalProgram &) = delete;

    void open()
    {
        auto made = JornalHelper::jornalTabBarVCForDate(day_);
        jornal_ = made.get();
        stack_->pushViewController(std::move(made), false);
    }
    void step() { jornal_->helper()->goToNextDay(); }
    [[nodiscard]] quint64 checksum() const
    {
        Checksum checksum;
        const JornalSheduleRootViewController &shedule = *jornal_->shedule();
        checksum.add(shedule.waterText()).add(shedule.proteinText());
        for (int row = 0; row < shedule.table()->numberOfRowsInSection(0); ++row)
            checksum.add(shedule.table()->rowAt({0, row}).title);
        return checksum.value();
    }

private:
    QTemporaryDir folder_;
    QDateTime day_;
    QtMessageHandler silenced_;
    std::optional<UserDefaults> defaults_;
    StringTables strings_;
    SystemClock clock_;
    SystemRandomSource random_;
    std::optional<Platform> platform_;
    NavigationController *stack_ = nullptr;
    JornalTabBarController *jornal_ = nullptr;
};

enum class Act { Open, Step };

template <Act act>
class JornalTrial final : public Trial
{
public:
    JornalTrial(Fixtures &fixtures, bool tenYears)
        : program_(fixtures, fixtures.jornalFile(tenYears))
    {
        if (act == Act::Step)
            program_.open();
    }
    void run() override
    {
        const double start = processorTime();
        if (act == Act::Open)
            program_.open();
        else
            program_.step();
        taken_ = processorTime() - start;
    }
    quint64 checksum() override { return program_.checksum(); }
    Told told() override { return {.nanoseconds = taken_}; }

private:
    JornalProgram program_;
    double taken_ = 0;
};

template <Act act>
Workload jornal(const char *name, Fixtures &fixtures)
{
    const auto over = [&fixtures](const char *contender, bool tenYears) {
        return Contender{contender,
                         [&fixtures, tenYears] { return std::make_unique<JornalTrial<act>>(fixtures, tenYears); }};
    };
    return {.name = name,
            .contenders = {over("ours", true), over("a file of two days", false)},
            .bars = {{Bar::Kind::TimesContender, 1.1, "a file of two days"},
                     {Bar::Kind::NanosecondsEach, 16e6},
                     {Bar::Kind::StatementsAsFor, 0, "a file of two days"}}};
}

} // namespace

Workload jornalOpening(Fixtures &fixtures)
{
    return jornal<Act::Open>(
        "journal opened, processor time: 3,650 days, 20,000 time rows, 40,000 intake records in the file", fixtures);
}

Workload jornalStep(Fixtures &fixtures)
{
    return jornal<Act::Step>("journal moved to the next day, processor time: the same file", fixtures);
}

} // namespace kesto::bench
