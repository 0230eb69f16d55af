#include "objectgraph/GraphTest.h"
#include "support/LogCapture.h"

#include <QTimeZone>

#include <cmath>
#include <limits>

namespace kesto::test
{

namespace
{

using AttributeTest = GraphTest;

const QDateTime kMoment(QDate(2024, 3, 31), QTime(1, 59, 59, 999), Qt::UTC);

bool isSame(const QVariant &left, const QVariant &right)
{
    // QVariant compares empty with null texts and converts between types.
    return left.isValid() == right.isValid() && left.typeId() == right.typeId() && left.isNull() == right.isNull() &&
           left == right;
}

TEST_F(AttributeTest, EveryValueComesBackAsItWasWritten)
{
    const struct
    {
        const char *key;
        QList<QVariant> values;
    } table[] = {
        {"name",
         {QVariant(), QString::fromUtf8(""), QStringLiteral("0"), QStringLiteral("Щи да каша — «пища наша» 🍲 ё"),
          QString(QChar(0xFFFD)) + QChar(0xE000), QStringLiteral("a'b\"c%_\\\n\t"), QString(QChar(u'\0')) + u'x',
          QString(1 << 20, u'ж')}},
        {"age",
         {QVariant(), qint64(0), qint64(-1), qint64(42), std::numeric_limits<qint64>::max(),
          std::numeric_limits<qint64>::min()}},
        {"height",
         {QVariant(), 0.0F, 80.1F, -1.5e-30F, 3.0F, std::numeric_limits<float>::max(),
          std::numeric_limits<float>::denorm_min()}},
        {"active", {QVariant(), false, true}},
        {"born",
         {QVariant(), kMoment, QDateTime::fromMSecsSinceEpoch(0, Qt::UTC), QDateTime::fromMSecsSinceEpoch(-1, Qt::UTC),
          QDateTime(QDate(1900, 1, 1), QTime(0, 0), Qt::UTC), QDateTime(QDate(9999, 12, 31), QTime(0, 0), Qt::UTC)}},
        {"photo", {QVariant(), QByteArray(""), QByteArray("\0\xff\0", 3), QByteArray(1 << 20, '\x7f')}},
        {"rank", {QVariant(), quint32(0), quint32(7), std::numeric_limits<quint32>::max()}},
    };
    for (const auto &[key, values] : table) {
        for (const QVariant &before : values) {
            for (const QVariant &after : values) {
                ManagedObject &object = person("Anna");
                set(object, key, before);
                const bool isName = qstrcmp(key, "name") == 0;
                save(); // the second value is an update of the row, the first an insertion or an update
                set(object, key, after);
                EXPECT_TRUE(isSame(get(object, key), after)) << key;
                saveAndReopen();
                const auto all = graph().fetch("Person");
                ASSERT_EQ(all.size(), 1U);
                EXPECT_TRUE(isSame(get(*all.front(), key), after))
                    << key << ": " << testing::PrintToString(get(*all.front(), key).toString().left(40));
                if (isName)
                    set(*all.front(), "name", QStringLiteral("Anna"));
                set(*all.front(), "photo", QVariant());
            }
        }
    }
}

TEST_F(AttributeTest, DatesOfAnyZoneAreTheSameInstant)
{
    const QDateTime local = kMoment.toTimeZone(QTimeZone("Europe/Berlin"));
    set(person("Anna"), "born", local);
    saveAndReopen();
    EXPECT_EQ(get(person("Anna"), "born").toDateTime().timeSpec(), Qt::UTC);
    const auto found = [&](const QDateTime &date) {
        return graph().fetch("Person", {.predicate = attribute("born") == date}).size();
    };
    EXPECT_EQ(found(kMoment), 1U);
    EXPECT_EQ(found(local), 1U);
    EXPECT_EQ(found(kMoment.addMSecs(1)), 0U);
    EXPECT_EQ(found(kMoment.addMSecs(-1)), 0U);
}

TEST_F(AttributeTest, UnknownNamesAndOtherTypesAreRefusedAndLogged)
{
    const QVariant text(QStringLiteral("12")), number(12), date(kMoment), bytes(QByteArray("12")),
        list(QVariantList{1});
    const QVariant animal = QVariant::fromValue(&pet("Rex"));
    const struct
    {
        const char *key;
        QVariant kept;
        QList<QVariant> refused;
    } table[] = {
        {"name", QStringLiteral("Anna"), {number, date, bytes, list, true, 1.5}},
        {"age",
         qint64(3),
         {text, date, bytes, list, 1.5, 1e30, std::nan(""), QVariant::fromValue(~quint64(0)),
          std::numeric_limits<double>::infinity()}},
        {"height", 1.5F, {text, QStringLiteral("tall"), date, bytes, list, std::nan("")}},
        {"active", true, {text, QStringLiteral("yes"), date, bytes, list}},
        {"born", kMoment, {text, number, bytes, list, QStringLiteral("2024-03-31T01:59:59Z")}},
        {"photo", QByteArray("1"), {text, number, date, list}},
        {"rank", quint32(4), {text, date, bytes, -1, Q_INT64_C(4294967296), 0.5}},
        {"passport", QVariant(), {text, number, animal, list}},
        {"boss", QVariant(), {text, animal}},
        {"nickname", QVariant(), {text, QVariant()}},
        {"_pk", QVariant(), {number}},
        {"", QVariant(), {text}},
    };
    for (const auto &[key, kept, refused] : table) {
        ManagedObject &object = insert("Person");
        if (kept.isValid())
            set(object, key, kept);
        save();
        const LogCapture log;
        for (const QVariant &value : refused)
            EXPECT_FALSE(object.setValueForKey(value, QString::fromUtf8(key))) << key << ' ' << value.typeName();
        EXPECT_EQ(log.lines().size(), refused.size()) << key;
        for (const QString &line : log.lines())
            EXPECT_TRUE(line.contains(QStringLiteral("Person")) && line.contains(QString::fromUtf8(key)));
        EXPECT_FALSE(object.hasChanges()) << key;
        if (kept.isValid()) {
            EXPECT_TRUE(isSame(get(object, key), kept)) << key;
        }
    }
    const LogCapture log;
    EXPECT_FALSE(get(pet("Rex"), "age").isValid());
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(AttributeTest, NumbersOfAnyKindFitWhereTheirValueDoes)
{
    ManagedObject &anna = person("Anna");
    const struct
    {
        const char *key;
        QVariant given;
        QVariant kept;
    } table[] = {
        {"age", 5, qint64(5)},
        {"age", 5.0, qint64(5)},
        {"age", quint32(5), qint64(5)},
        {"age", true, qint64(1)},
        {"age", 5.0F, qint64(5)},
        {"height", 5, 5.0F},
        {"height", 80.1, 80.1F},
        {"active", 0, false},
        {"active", 2, true},
        {"active", qint64(1) << 40, true},
        {"active", 0.0, false},
        {"rank", 5, quint32(5)},
        {"rank", qint64(5), quint32(5)},
    };
    for (const auto &[key, given, kept] : table) {
        set(anna, key, QVariant());
        set(anna, key, given);
        EXPECT_TRUE(isSame(get(anna, key), kept)) << key << ' ' << given.typeName();
    }
}

TEST_F(AttributeTest, WhatIsNoNumberOrNoDateIsAbsent)
{
    // The store has no place for these; memory and store must not differ.
    ManagedObject &anna = person("Anna");
    set(anna, "height", 1.0F);
    anna.setAttribute(anna.entity().property("height").value().slot, std::nan(""));
    EXPECT_FALSE(get(anna, "height").isValid());
    set(anna, "born", QVariant(QDateTime()));
    EXPECT_FALSE(get(anna, "born").isValid());
    saveAndReopen();
    EXPECT_FALSE(get(person("Anna"), "height").isValid());
}

} // namespace

} // namespace kesto::test
