#include "platform/Log.h"
#include "platform/TextOrder.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

#include <QTimeZone>

#include <limits>

using namespace kesto;

namespace
{

enum class Colour { Green = 3 };

TEST(StringFormat, WritesEveryPlaceholder)
{
    const QDateTime date(QDate(2026, 1, 31), QTime(22, 30, 0, 999), Qt::UTC);
    const std::pair<QString, QString> cases[] = {
        {stringWithFormat("%@", 60.0f), u"60"_qs},
        {stringWithFormat("%@", 2.5f), u"2.5"_qs},
        {stringWithFormat("%@", 72.3f), u"72.3"_qs},
        {stringWithFormat("%@", 16777216.0f), u"16777216"_qs},
        {stringWithFormat("%@", 0.1), u"0.1"_qs},
        {stringWithFormat("%@", 1'000'000.0), u"1000000"_qs},
        {stringWithFormat("%@", -0.00001), u"-1e-05"_qs},
        {stringWithFormat("%@", 1e22), u"1e+22"_qs},
        {stringWithFormat("%@ %@", 7, true), u"7 1"_qs},
        {stringWithFormat("%@", std::numeric_limits<quint64>::max()), u"18446744073709551615"_qs},
        {stringWithFormat("%@|%@|%@", QString(), std::optional<int>(), u""_qs), u"(null)|(null)|"_qs},
        {stringWithFormat("%@ - %@", date, u"18.3"_qs), u"2026-01-31 22:30:00 +0000 - 18.3"_qs},
        {stringWithFormat("%@", date.toTimeZone(QTimeZone("Asia/Kolkata"))), u"2026-01-31 22:30:00 +0000"_qs},
        {stringWithFormat("%@ %@", QStringList{u"а"_qs, u"b"_qs}, QVariantMap{{u"k"_qs, 1}}), u"(а, b) {k = 1}"_qs},
        {stringWithFormat("%@", QByteArray("\x01\xff")), u"<01ff>"_qs},
        {stringWithFormat("%d %ld %lu", -5, qint64(1) << 40, 3u), u"-5 1099511627776 3"_qs},
        {stringWithFormat("%d %d %d", 2.99, -2.99f, Colour::Green), u"2 -2 3"_qs},
        {stringWithFormat("%d", 1e300), u"9223372036854775807"_qs},
        {stringWithFormat("%d %f", std::optional<int>(), std::optional<float>()), u"0 0.000000"_qs},
        {stringWithFormat("%f %0.2f %0.0f %.1f", 1.5, 72.345f, 2.5, 9), u"1.500000 72.35 2 9.0"_qs},
        {stringWithFormat("%02d:%02d|%5.1f|%-4d|%04d", 7, 5, 2.25, 3, -3), u"07:05|  2.2|3   |-003"_qs},
        {stringWithFormat("100 %% %@", "жир"), u"100 % жир"_qs},
        {stringWithFormat("«%@»%%", u"%@ %d"_qs), u"«%@ %d»%"_qs}, // an argument is no format
        {stringWithFormat("plain"), u"plain"_qs},
    };
    for (const auto &[written, expected] : cases)
        EXPECT_EQ(written, expected);
}

TEST(StringFormat, ReadsBackAsTheSameSinglePrecisionNumber)
{
    float value = 0.001f;
    for (int i = 0; i < 5000; ++i, value *= 1.0071f)
        ASSERT_EQ(stringWithFormat("%@", value).toFloat(), value);
}

TEST(Log, KeepsTheLineAsItIs)
{
    const test::LogCapture capture;
    log(u" 100 % \"text\" \n"_qs);
    log("error while saving context - %@", QString());
    EXPECT_EQ(capture.lines(), (QStringList{u" 100 % \"text\" \n"_qs, u"error while saving context - (null)"_qs}));
}

TEST(TextOrder, GoesByCodePoints)
{
    const QString sorted[] = {u""_qs,  u"1"_qs, u"A"_qs,      u"AB"_qs,     u"a"_qs, u"Ё"_qs,  u"А"_qs,
                              u"а"_qs, u"ё"_qs, u"\ue000"_qs, u"\uffee"_qs, u"😀"_qs, u"😀a"_qs, u"😁"_qs};
    for (size_t i = 0; i < std::size(sorted); ++i) {
        for (size_t j = 0; j < std::size(sorted); ++j) {
            const int order = compareLiterally(sorted[i], sorted[j]);
            EXPECT_EQ((order > 0) - (order < 0), (i > j) - (i < j)) << i << ' ' << j;
        }
    }
    EXPECT_EQ(compareCaseInsensitively(u"Яблоко"_qs, u"яБЛОКО"_qs), 0);
    EXPECT_LT(compareCaseInsensitively(u"apple"_qs, u"Avocado"_qs), 0);
}

TEST(TextOrder, SearchesWithoutCaseAndTakesYoForYe)
{
    for (const char16_t *wanted : {u"ёжик", u"ежик", u"ЁЖИК", u"е\u0308ж", u""})
        EXPECT_TRUE(matchesSearch(u"Суп «ЕЖИКИ»"_qs, QString::fromUtf16(wanted)));
    EXPECT_TRUE(matchesSearch(u"Мёд и Ёршик"_qs, u"мед И ершик"_qs));
    EXPECT_FALSE(matchesSearch(u"Мёд"_qs, u"мод"_qs));
    EXPECT_FALSE(matchesSearch(u"Чай"_qs, u"чаи"_qs));
}

} // namespace
