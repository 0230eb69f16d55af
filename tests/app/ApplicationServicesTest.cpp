#include "app/ApplicationServices.h"

#include "platform/Platform.h"
#include "platform/PropertyList.h"
#include "platform/StringTables.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

namespace kesto::test
{

namespace
{

class ApplicationServicesTest : public testing::Test
{
protected:
    ApplicationServicesTest()
    {
        for (const QString &code : {QStringLiteral("ru"), QStringLiteral("en")}) {
            const QString folder = root_.filePath(QStringLiteral("share/%1.lproj").arg(code));
            QDir().mkpath(folder);
            QFile table(folder + QStringLiteral("/Localizable.strings"));
            if (table.open(QIODevice::WriteOnly))
                table.write("\"code\" = \"" + code.toUtf8() + "\";");
        }
    }

    std::unique_ptr<ApplicationServices> open(const QString &dataFolder, const QString &language = {})
    {
        error_.clear();
        return ApplicationServices::open({.dataFolder = dataFolder,
                                          .resourcesFolder = root_.filePath(QStringLiteral("share")),
                                          .version = QStringLiteral("3.1"),
                                          .language = language},
                                         &error_);
    }

    QTemporaryDir root_;
    QString error_;
};

TEST_F(ApplicationServicesTest, MakesAFolderForTheUsersEyesOnly)
{
    const QString folder = root_.filePath(QStringLiteral("some/where/data"));
    const auto services = open(folder);
    ASSERT_NE(services, nullptr) << error_.toStdString();
    EXPECT_EQ(QFile::permissions(folder) & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser),
              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(Platform::current().documentsFolder(), folder + QStringLiteral("/Documents"));
    EXPECT_TRUE(QFileInfo(Platform::current().documentsFolder()).isDir());
    EXPECT_EQ(Platform::current().version(), QStringLiteral("3.1"));
}

TEST_F(ApplicationServicesTest, ASecondProgramOnOneFolderIsRefused)
{
    const QString folder = root_.filePath(QStringLiteral("data"));
    auto first = open(folder);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(open(folder + QStringLiteral("/../data/")), nullptr);
    EXPECT_TRUE(error_.contains(QStringLiteral("running already"))) << error_.toStdString();
    EXPECT_TRUE(error_.contains(folder));
    first.reset();
    EXPECT_NE(open(folder), nullptr);
}

TEST_F(ApplicationServicesTest, SaysWhatIsWrongWithAFolder)
{
    QFile file(root_.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    for (const QString &folder : {file.fileName(), file.fileName() + QStringLiteral("/below")}) {
        EXPECT_EQ(open(folder), nullptr);
        EXPECT_TRUE(error_.contains(folder)) << error_.toStdString();
    }
    EXPECT_TRUE(file.exists());
    ASSERT_TRUE(QDir(root_.filePath(QStringLiteral("share"))).removeRecursively());
    EXPECT_EQ(open(root_.filePath(QStringLiteral("data"))), nullptr);
    EXPECT_TRUE(error_.contains(QStringLiteral("resources"))) << error_.toStdString();
}

TEST_F(ApplicationServicesTest, RefusesToStartWithoutSettingsThatAreThere)
{
    const QString settings = root_.filePath(QStringLiteral("data/UserDefaults.plist"));
    ASSERT_TRUE(QDir().mkpath(settings)); // a folder cannot be read as a file
    EXPECT_EQ(open(root_.filePath(QStringLiteral("data"))), nullptr);
    EXPECT_TRUE(error_.contains(settings)) << error_.toStdString();
    ASSERT_TRUE(QDir().rmdir(settings));
    EXPECT_NE(open(root_.filePath(QStringLiteral("data"))), nullptr);
}

TEST_F(ApplicationServicesTest, TheLanguageIsAskedForElseChosenElseTheSystems)
{
    const QString folder = root_.filePath(QStringLiteral("data"));
    EXPECT_EQ(open(folder, QStringLiteral("ru"))->platform().strings().preferredLanguage(), QStringLiteral("ru"));
    // Tests run in the C locale, which is no language of ours.
    EXPECT_EQ(open(folder)->platform().strings().preferredLanguage(), QStringLiteral("en"));
    ASSERT_TRUE(PropertyList::write(QVariantMap{{QStringLiteral("AppleLanguages"), QStringList(QStringLiteral("ru"))}},
                                    folder + QStringLiteral("/UserDefaults.plist")));
    EXPECT_EQ(open(folder)->platform().strings().preferredLanguage(), QStringLiteral("ru"));
    EXPECT_EQ(open(folder, QStringLiteral("en"))->platform().strings().preferredLanguage(), QStringLiteral("en"));
}

} // namespace

} // namespace kesto::test
