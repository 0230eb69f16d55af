#include "platform/UserDefaults.h"
#include "platform/PropertyList.h"
#include "support/LogCapture.h"
#include "support/ResourceLimit.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <limits>
#include <optional>
#include <thread>
#include <vector>

using namespace kesto;
using kesto::test::LogCapture;
using kesto::test::ResourceLimit;

namespace
{

class UserDefaultsTest : public testing::Test
{
protected:
    QTemporaryDir folder_;
    const QString path_ = folder_.filePath(u"Настройки.plist"_qs);

    void put(const QByteArray &bytes) const
    {
        QFile file(path_);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    [[nodiscard]] QByteArray bytesOf(const QString &path) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(UserDefaultsTest, KeepsValuesTypesAndAbsenceOverRestarts)
{
    const QDateTime start(QDate(2024, 3, 7), QTime(23, 0), Qt::UTC);
    {
        UserDefaults defaults(path_);
        defaults.setInteger(0, u"kPeriod1Key"_qs);
        defaults.setBool(false, u"kPauseKey"_qs);
        defaults.setFloat(72.3f, u"Вес"_qs);
        defaults.setValue(2, u"Окружность запястья"_qs);
        defaults.setValue(u"1.0"_qs, u"kAppVersionKey"_qs);
        defaults.setValue(u""_qs, u"empty"_qs);
        defaults.setValue(start.toLocalTime(), u"kStartDietDateKey"_qs);
        defaults.setValue(QStringList{u"Ёжики"_qs, u"Суп"_qs}, u"kFavoriteDishesKey"_qs);
        defaults.setValue(QVariantList(), u"none"_qs);
        defaults.setBool(true, u"old data merged"_qs);
        defaults.setBool(true, u"removed"_qs);
        defaults.removeObjectForKey(u"removed"_qs);
        defaults.setInteger(5, u"removed too"_qs);
        defaults.setValue(QVariant(), u"removed too"_qs);
        defaults.setInteger(5, u"and too"_qs);
        defaults.setValue(QString(), u"and too"_qs);
    }
    const UserDefaults defaults(path_);
    const auto type = [&](const QString &key) { return defaults.valueForKey(key).typeId(); };
    EXPECT_EQ(type(u"kPeriod1Key"_qs), QMetaType::LongLong);
    EXPECT_EQ(type(u"kPauseKey"_qs), QMetaType::Bool);
    EXPECT_FALSE(defaults.boolForKey(u"kPauseKey"_qs));
    EXPECT_EQ(defaults.floatForKey(u"Вес"_qs), 72.3f);
    EXPECT_EQ(defaults.valueForKey(u"Вес"_qs), QVariant(72.3));
    EXPECT_EQ(defaults.integerForKey(u"Окружность запястья"_qs), 2);
    EXPECT_EQ(defaults.stringForKey(u"kAppVersionKey"_qs), u"1.0"_qs);
    EXPECT_FALSE(defaults.stringForKey(u"empty"_qs).isNull());
    EXPECT_EQ(defaults.dateForKey(u"kStartDietDateKey"_qs), start);
    EXPECT_EQ(defaults.dateForKey(u"kStartDietDateKey"_qs)->timeSpec(), Qt::UTC);
    EXPECT_EQ(defaults.stringArrayForKey(u"kFavoriteDishesKey"_qs), (QStringList{u"Ёжики"_qs, u"Суп"_qs}));
    EXPECT_EQ(type(u"none"_qs), QMetaType::QVariantList);
    EXPECT_TRUE(defaults.boolForKey(u"old data merged"_qs));
    for (const QString &key : {u"removed"_qs, u"removed too"_qs, u"and too"_qs, u"never"_qs}) {
        EXPECT_FALSE(defaults.valueForKey(key).isValid());
        EXPECT_EQ(defaults.integerForKey(key), 0);
        EXPECT_FALSE(defaults.dateForKey(key).has_value());
        EXPECT_TRUE(defaults.stringForKey(key).isNull());
    }
}

TEST_F(UserDefaultsTest, ReadsNumbersFlagsAndTextsFromOtherTypes)
{
    struct Case
    {
        QVariant value;
        qint64 integer;
        float number;
        bool flag;
        QString text;
    };
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    const Case cases[] = {
        {7, 7, 7, true, {}},
        {-1, -1, -1, true, {}},
        {true, 1, 1, true, {}},
        {false, 0, 0, false, {}},
        {2.9, 2, 2.9f, true, {}},
        {-2.9, -2, -2.9f, true, {}},
        {0.4, 0, 0.4f, true, {}},
        {1e30, most, 1e30f, true, {}},
        {-1e30, std::numeric_limits<qint64>::min(), -1e30f, true, {}},
        {u"42"_qs, 42, 42, true, u"42"_qs},
        {u"2.5"_qs, 2, 2.5f, true, u"2.5"_qs},
        {u"9007199254740993"_qs, 9007199254740993, 9007199254740993.0f, true, u"9007199254740993"_qs},
        {u"0"_qs, 0, 0, false, u"0"_qs},
        {u"12 kg"_qs, 0, 0, false, u"12 kg"_qs},
        {u""_qs, 0, 0, false, u""_qs},
        {QVariantList{1}, 0, 0, false, {}},
        {QDateTime(QDate(2024, 1, 1), QTime(0, 0), Qt::UTC), 0, 0, false, {}},
    };
    UserDefaults defaults(path_);
    for (const Case &c : cases) {
        SCOPED_TRACE(testing::PrintToString(c.value));
        defaults.setValue(c.value, u"key"_qs);
        EXPECT_EQ(defaults.integerForKey(u"key"_qs), c.integer);
        EXPECT_EQ(defaults.floatForKey(u"key"_qs), c.number);
        EXPECT_EQ(defaults.boolForKey(u"key"_qs), c.flag);
        EXPECT_EQ(defaults.stringForKey(u"key"_qs), c.text);
    }
    defaults.setValue(QVariantList{u"a"_qs, 1, u"b"_qs}, u"key"_qs);
    EXPECT_EQ(defaults.stringArrayForKey(u"key"_qs), (QStringList{u"a"_qs, u"b"_qs}));
    defaults.setValue(u"a"_qs, u"key"_qs);
    EXPECT_EQ(defaults.stringArrayForKey(u"key"_qs), QStringList());
}

TEST_F(UserDefaultsTest, ChangesOfTypeAloneAreStored)
{
    for (const QVariant &value :
         {QVariant(1), QVariant(true), QVariant(1.0), QVariant(QVariantList{1}), QVariant(QVariantList{true})}) {
        UserDefaults(path_).setValue(value, u"key"_qs);
        const QVariant stored = UserDefaults(path_).valueForKey(u"key"_qs);
        EXPECT_EQ(PropertyList::serialize(stored), PropertyList::serialize(value));
    }
}

TEST_F(UserDefaultsTest, RegisteredDefaultsApplyButAreNeverWritten)
{
    {
        UserDefaults defaults(path_);
        defaults.registerDefaults({{u"kSystemKey"_qs, 0}, {u"kUseICloudKey"_qs, true}, {u"kLangluageKey"_qs, 1}});
        defaults.registerDefaults({{u"kLangluageKey"_qs, 0}});
        EXPECT_TRUE(defaults.boolForKey(u"kUseICloudKey"_qs));
        EXPECT_EQ(defaults.valueForKey(u"kLangluageKey"_qs), QVariant(0));
        defaults.setBool(false, u"kUseICloudKey"_qs);
        EXPECT_FALSE(defaults.boolForKey(u"kUseICloudKey"_qs));
        defaults.setInteger(1, u"kSystemKey"_qs);
        defaults.removeObjectForKey(u"kSystemKey"_qs);
        EXPECT_TRUE(defaults.valueForKey(u"kSystemKey"_qs).isValid());
    }
    EXPECT_EQ(*PropertyList::read(path_), QVariant(QVariantMap{{u"kUseICloudKey"_qs, false}}));
    const UserDefaults defaults(path_);
    EXPECT_FALSE(defaults.valueForKey(u"kSystemKey"_qs).isValid());
}

TEST_F(UserDefaultsTest, KeepsAFileAsideThatItCannotRead)
{
    const QByteArray whole = *PropertyList::serialize(QVariantMap{{u"Вес"_qs, 80}});
    const QByteArray bad[] = {"", whole.first(whole.size() / 2), "bplist00...", "[General]\nkey=1\n",
                              *PropertyList::serialize(QVariantList{1})};
    int number = 0;
    for (const QByteArray &bytes : bad) {
        SCOPED_TRACE(bytes.toStdString());
        put(bytes);
        LogCapture capture;
        const QString aside = path_ + u".damaged-"_qs + QString::number(++number);
        {
            UserDefaults defaults(path_);
            EXPECT_FALSE(defaults.valueForKey(u"Вес"_qs).isValid());
            EXPECT_EQ(capture.lines().size(), 2);
            EXPECT_EQ(capture.lines().constLast(), path_ + u" is damaged and was renamed to "_qs + aside);
            defaults.setInteger(number, u"n"_qs);
        }
        EXPECT_EQ(bytesOf(aside), bytes);
        EXPECT_EQ(UserDefaults(path_).integerForKey(u"n"_qs), number);
    }
}

TEST_F(UserDefaultsTest, ANewFolderOrFileThatFailsIsTriedAgain)
{
    const QString path = folder_.filePath(u"later/settings.plist"_qs);
    LogCapture capture;
    UserDefaults defaults(path);
    EXPECT_EQ(capture.lines(), QStringList()); // a file that is not there is no fault
    defaults.setInteger(60, u"kIdealWidth"_qs);
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(capture.take().size(), 1);
    EXPECT_EQ(defaults.integerForKey(u"kIdealWidth"_qs), 60);
    ASSERT_TRUE(QDir(folder_.path()).mkdir(u"later"_qs));
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(capture.take(), QStringList());
    EXPECT_EQ(UserDefaults(path).integerForKey(u"kIdealWidth"_qs), 60);
}

TEST_F(UserDefaultsTest, AFileThatCannotBeReadNowIsNotOverwritten)
{
    ASSERT_TRUE(PropertyList::write(QVariantMap{{u"kept"_qs, 1}, {u"changed"_qs, 1}, {u"removed"_qs, 1}}, path_));
    const QByteArray before = bytesOf(path_);
    LogCapture capture;
    std::optional<ResourceLimit> noDescriptors(std::in_place, RLIMIT_NOFILE, 0);
    UserDefaults defaults(path_);
    EXPECT_TRUE(defaults.readError());
    defaults.setInteger(2, u"changed"_qs);
    defaults.setInteger(2, u"removed"_qs);
    defaults.removeObjectForKey(u"removed"_qs);
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(capture.lines().size(), 2);
    noDescriptors.reset();
    EXPECT_EQ(bytesOf(path_), before);

    EXPECT_TRUE(defaults.synchronize());
    EXPECT_FALSE(defaults.readError());
    EXPECT_EQ(defaults.integerForKey(u"kept"_qs), 1);
    EXPECT_EQ(*PropertyList::read(path_), QVariant(QVariantMap{{u"kept"_qs, 1}, {u"changed"_qs, 2}}));
}

TEST_F(UserDefaultsTest, RemovesWhatAKilledWriteLeft)
{
    for (const char16_t *ending : {u"", u".abcDEF", u".damaged-1"})
        ASSERT_TRUE(PropertyList::write(QVariantMap{{u"a"_qs, 1}}, path_ + QString::fromUtf16(ending)));
    EXPECT_EQ(UserDefaults(path_).integerForKey(u"a"_qs), 1);
    EXPECT_FALSE(QFile::exists(path_ + u".abcDEF"_qs));
    EXPECT_TRUE(QFile::exists(path_ + u".damaged-1"_qs));
}

TEST_F(UserDefaultsTest, RefusesOtherTypes)
{
    LogCapture capture;
    UserDefaults defaults(path_);
    defaults.setInteger(1, u"key"_qs);
    defaults.setValue(QDate(2024, 1, 1), u"key"_qs);
    defaults.registerDefaults({{u"other"_qs, QVariantList{QVariant()}}});
    EXPECT_EQ(capture.lines().size(), 2);
    EXPECT_EQ(defaults.integerForKey(u"key"_qs), 1);
    EXPECT_FALSE(defaults.valueForKey(u"other"_qs).isValid());
    EXPECT_TRUE(defaults.synchronize());
}

TEST_F(UserDefaultsTest, WritesSoonAfterAChangeAndOnlyThen)
{
    UserDefaults defaults(path_);
    QCoreApplication::processEvents();
    EXPECT_FALSE(QFile::exists(path_));
    std::thread([&] { defaults.setInteger(1, u"a"_qs); }).join();
    defaults.setInteger(2, u"b"_qs);
    EXPECT_FALSE(QFile::exists(path_));
    QCoreApplication::processEvents();
    EXPECT_EQ(*PropertyList::read(path_), QVariant(QVariantMap{{u"a"_qs, 1}, {u"b"_qs, 2}}));

    ASSERT_TRUE(QFile::remove(path_));
    defaults.setInteger(2, u"b"_qs); // nothing new
    QCoreApplication::processEvents();
    EXPECT_FALSE(QFile::exists(path_));
    defaults.setInteger(3, u"b"_qs);
    QCoreApplication::processEvents();
    EXPECT_EQ(UserDefaults(path_).integerForKey(u"b"_qs), 3);
}

TEST_F(UserDefaultsTest, TakesWritersFromManyThreads)
{
    constexpr int threadCount = 4;
    constexpr int keyCount = 100;
    {
        UserDefaults defaults(path_);
        std::vector<std::thread> threads;
        for (int thread = 0; thread < threadCount; ++thread) {
            threads.emplace_back([&defaults, thread] {
                for (int i = 0; i < keyCount; ++i) {
                    const QString key = QString::number(thread) + u' ' + QString::number(i);
                    defaults.setInteger(i, key);
                    defaults.setInteger(thread, u"shared"_qs);
                    EXPECT_EQ(defaults.integerForKey(key), i);
                    EXPECT_TRUE(i % 25 != 0 || defaults.synchronize());
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
    }
    const UserDefaults defaults(path_);
    for (int thread = 0; thread < threadCount; ++thread) {
        for (int i = 0; i < keyCount; ++i)
            EXPECT_EQ(defaults.valueForKey(QString::number(thread) + u' ' + QString::number(i)), QVariant(i));
    }
}

} // namespace
