#include "journal/JornalFixture.h"

#include "journal/Reminders.h"
#include "journal/TimeObjectAdditions.h"
#include "journal/TimeOfDay.h"
#include "journal/TimeRowAdditions.h"

#include <QSet>

namespace kesto::test
{

namespace
{

class JornalValues : public JornalFixture
{
protected:
    using JornalFixture::JornalFixture;

    TimeRow &rowAt(const QDateTime &date, float time)
    {
        auto &made = program.context().insert<TimeRow>();
        made.setTime(time);
        JornalHelper::dietDayForDate(date)->jornalDay()->addTimeRows(made);
        return made;
    }
    TimeObject &item(int type, std::optional<float> value1 = {}, std::optional<int> value2 = {},
                     std::optional<int> waterType = {})
    {
        auto &made = program.context().insert<TimeObject>();
        made.setType(type);
        made.setValue1(value1);
        made.setValue2(value2);
        made.setWaterType(waterType);
        return made;
    }
    /// Date and time at which a row's reminder fires.
    QString fires(const QDate &day, float time)
    {
        const QDateTime start = program.platform.date(day.year(), day.month(), day.day());
        const std::optional<QDateTime> date = reminderFireDate(rowAt(start, time));
        return date ? date->toTimeZone(program.platform.calendar().timeZone())
                          .toString(QStringLiteral("yyyy-MM-dd HH:mm t"))
                    : QString();
    }
};

TEST_F(JornalValues, TimesAreHoursAndMinutesOfADay)
{
    QSet<float> numbers;
    for (int minute = 0; minute < 24 * 60; ++minute) {
        const QTime time(minute / 60, minute % 60);
        EXPECT_EQ(clockTime(timeOfDay(time)), time);
        EXPECT_EQ(timeText(timeOfDay(time)), time.toString(QStringLiteral("H:mm")));
        numbers.insert(timeOfDay(time));
    }
    EXPECT_EQ(numbers.size(), 24 * 60);
    EXPECT_EQ(timeOfDay(QTime(18, 30)), 18.3F);
    EXPECT_EQ(clockTime(NAN), QTime(0, 0));
    EXPECT_EQ(clockTime(-3), QTime(0, 0));
    EXPECT_EQ(clockTime(1e30F), QTime(23, 59));
    EXPECT_EQ(clockTime(7.77F), QTime(7, 59));
}

// Every way that a clock may write the time: 18:30, 6:30 PM, 18.30, ١٨:٣٠, 18 h 30.
TEST_F(JornalValues, TheCurrentTimeIsTheSameInEveryLocale)
{
    program.platform.clock().set(program.platform.date(2024, 3, 7, 18, 30));
    const QLocale before;
    for (const char *name : {"ru_RU", "en_US", "fi_FI", "ar_EG", "fr_CA", "ko_KR", "bg_BG"}) {
        QLocale::setDefault(QLocale(QLatin1String(name)));
        EXPECT_EQ(JornalHelper::currentTime(), 18.3F) << name;
    }
    QLocale::setDefault(before);
    program.platform.clock().set(program.platform.date(2024, 3, 7, 0, 5));
    EXPECT_EQ(JornalHelper::currentTime(), 0.05F);
}

TEST_F(JornalValues, EveryTypeHasItsTexts)
{
    struct Type
    {
        const char *name, *reminder, *prefix1, *prefix2;
    };
    const Type types[] = {
        {"Вода", "Пора выпить воды", "мл.", ""},
        {"Сон", "Вам пора отдохнуть", "мин.", ""},
        {"Бассейн", "Пора поплавать", "м.", "мин."},
        {"Бег", "Пора на пробежку", "км.", "мин."},
        {"Отруби", "Не забывайте ежедневно употреблять овсяные отруби", "ст. лож.", ""},
        {"Ходьба", "Пора на прогулку", "км.", "мин."},
        {"Йога", "Есть время? Займитесь йогой", "мин.", ""},
        {"Фитнес", "Есть время? Займитесь фитнесом", "мин.", ""},
        {"Велосипед", "Пора прокатиться на велосипеде", "км.", "мин."},
    };
    QSet<QRgb> colors;
    for (int type = 0; type < timeObjectTypeCount; ++type) {
        const TimeObject &one = item(type);
        EXPECT_EQ(timeObjectNameForType(type), QString::fromUtf8(types[type].name));
        EXPECT_EQ(notificationDescription(one), QString::fromUtf8(types[type].reminder));
        EXPECT_EQ(prefix1(one), QString::fromUtf8(types[type].prefix1));
        EXPECT_EQ(prefix2(one), QString::fromUtf8(types[type].prefix2));
        EXPECT_EQ(prefix2(one).isNull(), *types[type].prefix2 == '\0');
        EXPECT_EQ(image(one), QStringLiteral("ic_%1").arg(type));
        colors.insert(color(one).rgb());
    }
    EXPECT_EQ(colors.size(), timeObjectTypeCount);
    for (const int type : {-1, 9}) {
        EXPECT_TRUE(notificationDescription(item(type)).isNull());
        EXPECT_TRUE(prefix1(item(type)).isNull());
        EXPECT_FALSE(color(item(type)).isValid());
    }
}

TEST_F(JornalValues, AnItemIsDescribedByWhatItHas)
{
    program.defaults().setValue(QVariantMap{{QStringLiteral("1"), 175}, {QStringLiteral("2"), QStringLiteral("?")}},
                                Keys::kWaterWalskey);
    EXPECT_EQ(description(item(3, 3.0F, 30)), QStringLiteral("3 км., 30 мин."));
    EXPECT_EQ(description(item(3, {}, 30)), QStringLiteral("30 мин."));
    EXPECT_EQ(description(item(4, 2.5F)), QStringLiteral("2.5 ст. лож."));
    EXPECT_EQ(description(item(5, 0.1F)), QStringLiteral("0.1 км."));
    EXPECT_EQ(description(item(0, {}, {}, 1)), QStringLiteral("175 мл."));
    EXPECT_EQ(description(item(0, {}, {}, 2)), QStringLiteral("0 мл."));
    EXPECT_EQ(description(item(0, 5.0F, {}, 7)), QStringLiteral("0 мл."));
    EXPECT_EQ(description(item(3)), QString());
}

TEST_F(JornalValues, ARowIsKnownByItsDayAndItsTime)
{
    TimeRow &late = rowAt(march(7), 18.3F);
    EXPECT_EQ(idStirng(late), QStringLiteral("2024-03-06 23:00:00 +0000 - 18.3"));
    EXPECT_EQ(timeDescription(late), QStringLiteral("18:30"));
    EXPECT_EQ(idStirng(rowAt(march(8), 9)), QStringLiteral("2024-03-07 23:00:00 +0000 - 9"));

    EXPECT_TRUE(isEmpty(late));
    late.setOtherTimeObject(QStringLiteral(""));
    EXPECT_FALSE(isEmpty(late));
    late.setOtherTimeObject({});
    late.addTimeObjects(item(1));
    EXPECT_FALSE(isEmpty(late));
}

TEST_F(JornalValues, RemindersFireAMinuteLateWhereTheFractionIsExact)
{
    const std::pair<float, const char *> times[] = {
        {9, "08 09:00"},     {0, "08 00:00"},     {18.3F, "08 18:30"}, {23.55F, "08 23:55"}, {7.05F, "08 07:06"},
        {7.25F, "08 07:26"}, {12.5F, "08 12:51"}, {0.05F, "08 00:06"}, {6.59F, "08 07:00"},  {23.59F, "09 00:00"},
    };
    for (const auto &[time, fire] : times)
        EXPECT_EQ(fires(QDate(2024, 3, 8), time).mid(8, 8), QString::fromUtf8(fire)) << time;
    EXPECT_EQ(fires(QDate(2039, 12, 31), 9), QStringLiteral("2039-12-31 09:00 CET"));
    EXPECT_EQ(reminderFireDate(program.context().insert<TimeRow>()), std::nullopt);
}

TEST_F(JornalValues, RemindersKnowTheNightsOfTheChangingClocks)
{
    // Skipped, then shown twice.
    EXPECT_EQ(fires(QDate(2024, 3, 31), 2.3F), QStringLiteral("2024-03-31 03:00 CEST"));
    EXPECT_EQ(fires(QDate(2024, 3, 31), 2), QStringLiteral("2024-03-31 03:00 CEST"));
    EXPECT_EQ(fires(QDate(2024, 3, 31), 3.3F), QStringLiteral("2024-03-31 03:30 CEST"));
    EXPECT_EQ(fires(QDate(2024, 10, 27), 2.3F), QStringLiteral("2024-10-27 02:30 CEST"));
    EXPECT_EQ(fires(QDate(2024, 10, 27), 9), QStringLiteral("2024-10-27 09:00 CET"));
}

} // namespace

} // namespace kesto::test
