#include "ui/SectionTitles.h"

#include <gtest/gtest.h>

namespace kesto::test
{

namespace
{
TableSection section(const QString &header, int rows, const QString &footer = {})
{
    return {.header = header, .footer = footer, .rows = QList<TableRow>(rows)};
}
} // namespace

TEST(SectionTitlesTest, LeadsToTheHeadersAsTheTableChanges)
{
    TableModel table;
    SectionTitles titles;
    titles.setTable(&table);
    EXPECT_TRUE(titles.titles().isEmpty());

    table.setSections(
        {section(QStringLiteral("A"), 2, QStringLiteral("foot")), section({}, 3), section(QStringLiteral("B"), 1)});
    EXPECT_EQ(titles.titles(), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
    EXPECT_EQ(titles.line(0), 0);
    EXPECT_EQ(titles.line(1), 7);
    EXPECT_EQ(titles.line(2), -1);

    table.removeRow({0, 0});
    EXPECT_EQ(titles.line(1), 6);
    table.removeSection(1);
    EXPECT_EQ(titles.line(1), 3);
    table.insertSection(0, section(QStringLiteral("0"), 0));
    EXPECT_EQ(titles.titles().first(), QStringLiteral("0"));
    EXPECT_EQ(titles.line(2), 4);
}

TEST(SectionTitlesTest, ShortensToWholeLetters)
{
    TableModel table;
    SectionTitles titles;
    titles.setTable(&table);
    QStringList initials;
    for (const auto &[title, initial] : {std::pair(u"Ёж", u"Ё"),
                                         {u"🍲 суп", u"🍲"},
                                         {u"🇫🇷 omelette", u"🇫🇷"},
                                         {u"e\u0301clair", u"e\u0301"},
                                         {u"", u""}}) {
        table.insertSection(table.numberOfSections(), section(QString::fromUtf16(title), 1));
        initials.append(QString::fromUtf16(initial));
    }
    EXPECT_EQ(titles.initials(), initials);
}

} // namespace kesto::test
