#include "import/UpdatingDatabaseViewController.h"

#include "components/Window.h"
#include "import/ImportFixture.h"
#include "model/Dish.h"
#include "platform/PropertyList.h"
#include "platform/objectgraph/PersistentStoreCoordinator.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"
#include "support/LogCapture.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>

namespace kesto::test
{

namespace
{

class UpdatingDatabaseTest : public ImportFixture
{
protected:
    ~UpdatingDatabaseTest() override { leave(); }

    /// Over a main screen, as at the start of the program.
    UpdatingDatabaseViewController &present(const QString &version, int mode = 0)
    {
        auto screen = std::make_unique<UpdatingDatabaseViewController>();
        screen->setAppVersion(version);
        screen->setMode(mode);
        UpdatingDatabaseViewController &presented = *screen;
        Window::sharedWindow().setRootViewController(std::make_unique<ViewController>());
        Window::sharedWindow().rootViewController()->presentViewController(std::move(screen), false);
        return presented;
    }

    static void leave()
    {
        Window::sharedWindow().setRootViewController(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Without the half second that a person waits; the log lines of the import.
    static QStringList runToTheEnd(UpdatingDatabaseViewController &screen)
    {
        LogCapture log;
        screen.timer().setInterval(0);
        finish();
        return log.take();
    }
    static void finish()
    {
        QElapsedTimer waited;
        waited.start();
        while (!Window::sharedWindow().presentedViewControllers().isEmpty() && !waited.hasExpired(10'000))
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        EXPECT_TRUE(Window::sharedWindow().presentedViewControllers().isEmpty());
    }

    void writeCatalogue(const QVariantList &recipes)
    {
        writeResource("recipes.plist", PropertyList::serialize(recipes).value());
    }

    [[nodiscard]] QVariant storedVersion() const
    {
        return Platform::current().userDefaults().valueForKey(Keys::kAppVersionKey);
    }
    [[nodiscard]] QVariant versionOnDisk()
    {
        const auto content = PropertyList::read(platform().defaultsPath());
        return content ? content->toMap().value(Keys::kAppVersionKey) : QVariant();
    }
    [[nodiscard]] size_t dishCount() { return context().fetchOrLog<Dish>({}).size(); }
};

TEST_F(UpdatingDatabaseTest, WaitsHalfASecondThenImportsRecordsTheVersionAndLeaves)
{
    writeCatalogue({record("1", "a, b"), record("2", "")});
    UpdatingDatabaseViewController &screen = present(QStringLiteral("1.2"));
    EXPECT_TRUE(screen.timer().isActive());
    EXPECT_EQ(screen.timer().interval(), 500);
    EXPECT_FALSE(screen.timer().isSingleShot());
    QCoreApplication::processEvents();
    EXPECT_EQ(dishCount(), 0U);
    EXPECT_FALSE(storedVersion().isValid());

    const QStringList lines = runToTheEnd(screen);
    EXPECT_EQ(lines.count(QStringLiteral("start parsing")), 1);
    EXPECT_EQ(dishCount(), 2U);
    EXPECT_EQ(storedVersion(), QVariant(QStringLiteral("1.2")));
    EXPECT_EQ(versionOnDisk(), QVariant(QStringLiteral("1.2"))) << "not left to the next turn of the event loop";
}

TEST_F(UpdatingDatabaseTest, TheVersionIsRecordedOnlyWhenTheImportIsOver)
{
    static QStringList moments;
    moments.clear();
    writeCatalogue({record("1", "a")});
    UpdatingDatabaseViewController &screen = present(QStringLiteral("1.2"));
    screen.timer().setInterval(0);
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &line) {
            if (line.endsWith(QStringLiteral(" parsing")))
                moments.append(line + (Platform::current().userDefaults().valueForKey(Keys::kAppVersionKey).isValid()
                                           ? QStringLiteral(": recorded")
                                           : QStringLiteral(": not recorded")));
        });
    finish();
    qInstallMessageHandler(before);
    EXPECT_EQ(moments, QStringList({QStringLiteral("start parsing: not recorded"),
                                    QStringLiteral("end parsing: not recorded")}));
    EXPECT_EQ(storedVersion(), QVariant(QStringLiteral("1.2")));
}

TEST_F(UpdatingDatabaseTest, AnUnreadableCatalogueAndAFullDiskStillEndTheWait)
{
    const QStringList missing = runToTheEnd(present(QStringLiteral("1")));
    EXPECT_TRUE(missing.contains(
        QStringLiteral("SKHelpManager error for array - no local plist file for fileName - |recipes|")));
    EXPECT_EQ(storedVersion(), QVariant(QStringLiteral("1")));

    leave();
    writeCatalogue({record("1", "a")});
    makeReadOnly(true);
    const QStringList failed = runToTheEnd(present(QStringLiteral("2"), 1));
    makeReadOnly(false);
    EXPECT_EQ(failed.filter(QStringLiteral("error while saving context - ")).size(), 1);
    EXPECT_EQ(storedVersion(), QVariant(QStringLiteral("2")));
    EXPECT_TRUE(Platform::current().userDefaults().boolForKey(Keys::kImportFailedKey));

    leave();
    (void)runToTheEnd(present(QStringLiteral("2")));
    EXPECT_FALSE(Platform::current().userDefaults().valueForKey(Keys::kImportFailedKey).isValid());
}

TEST_F(UpdatingDatabaseTest, WaitsForTheStore)
{
    writeCatalogue({record("1", "a")});
    ASSERT_TRUE(QDir().mkpath(platform().documentsFolder() + QStringLiteral("/Diet.sqlite"))); // cannot be opened
    UpdatingDatabaseViewController &screen = present(QStringLiteral("1"));
    screen.timer().setInterval(0);
    CoreDataManager::sharedManager().persistentStoreCoordinator()->waitForBackgroundWork();
    for (int tick = 0; tick < 5; ++tick)
        QCoreApplication::processEvents();
    EXPECT_FALSE(storedVersion().isValid());
    EXPECT_FALSE(context().hasChanges());
    ASSERT_TRUE(CoreDataManager::sharedManager().startWithEmptyStore());
    finish();
    EXPECT_EQ(dishCount(), 1U);
}

TEST_F(UpdatingDatabaseTest, SaysWhatItDoesAndCanNotBeLeft)
{
    const UpdatingDatabaseViewController &creating = present(QStringLiteral("1"), 0);
    EXPECT_EQ(creating.text(), QStringLiteral("Creating Dishes Database"));
    EXPECT_FALSE(Window::sharedWindow().back());
    EXPECT_EQ(Window::sharedWindow().presentedViewControllers().size(), 1);
    leave();
    EXPECT_EQ(present(QStringLiteral("1"), 1).text(), QStringLiteral("Updating Dishes Database"));
}

} // namespace

} // namespace kesto::test
