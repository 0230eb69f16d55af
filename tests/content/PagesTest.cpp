#include "content/ShippedContent.h"
#include "platform/PropertyList.h"
#include "platform/StringTables.h"

#include <gtest/gtest.h>

#include <pugixml.hpp>

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <memory>

using namespace kesto;
using namespace kesto::test;

namespace
{

QString textFor(Language language, const QString &key)
{
    static std::array<QHash<QString, QString>, 2> tables;
    if (tables[language].isEmpty()) {
        const QString path = ShippedContent::folderOf(language) + QStringLiteral("/Localizable.strings");
        tables[language] = StringTables::parse(ShippedContent::textOf(path), path);
    }
    EXPECT_TRUE(tables[language].contains(key)) << key.toStdString();
    return tables[language].value(key);
}

QStringList tipsOf(Language language)
{
    const QString path = ShippedContent::folderOf(language) + u'/' + textFor(language, QStringLiteral("tips plist")) +
                         QStringLiteral(".plist");
    const Result<QVariant> tips = PropertyList::read(path);
    EXPECT_TRUE(tips && tips->typeId() == QMetaType::QVariantList) << path.toStdString();
    return tips ? tips->toStringList() : QStringList();
}

/// The pages of a language by name, without the folder and ".html".
QStringList pagesOf(Language language)
{
    QStringList pages{textFor(language, QStringLiteral("about html")),
                      textFor(language, QStringLiteral("phases html"))};
    const QString suffix = textFor(language, QStringLiteral("tips_sufix"));
    for (int tip = 1; tip <= tipsOf(language).size(); ++tip)
        pages.append(QStringLiteral("sov%1%2").arg(tip).arg(suffix));
    return pages;
}

QString pathOf(Language language, const QString &page)
{
    return ShippedContent::folderOf(language) + u'/' + page + QStringLiteral(".html");
}

struct Page
{
    pugi::xml_document document;
    QString text; ///< what a reader sees
    QStringList elements;
};

std::unique_ptr<Page> load(const QString &path)
{
    auto page = std::make_unique<Page>();
    const pugi::xml_parse_result result = page->document.load_file(path.toUtf8().constData(), pugi::parse_full);
    EXPECT_TRUE(result) << path.toStdString() << ": " << result.description() << " at byte " << result.offset;
    struct Walker : pugi::xml_tree_walker
    {
        Page *page = nullptr;
        bool for_each(pugi::xml_node &node) override
        {
            if (node.type() == pugi::node_element)
                page->elements.append(QString::fromUtf8(node.name()));
            if (node.type() == pugi::node_pcdata)
                page->text += QString::fromUtf8(node.value()) + u' ';
            return true;
        }
    } walker;
    walker.page = page.get();
    page->document.traverse(walker);
    page->text = page->text.simplified();
    return page;
}

} // namespace

TEST(Pages, BothLanguagesHaveAsManyTips)
{
    const QStringList russian = tipsOf(Russian);
    EXPECT_EQ(russian.size(), tipsOf(English).size());
    EXPECT_GE(russian.size(), 20);
    for (const Language language : kLanguages) {
        const QStringList tips = tipsOf(language);
        EXPECT_EQ(QSet<QString>(tips.begin(), tips.end()).size(), tips.size()) << "a title stands twice";
        for (const QString &tip : tips)
            EXPECT_TRUE(!tip.isEmpty() && tip == tip.simplified()) << tip.toStdString();
    }
}

TEST(Pages, AreWellFormedWithTheSheetAndWithoutOutsideLinks)
{
    for (const Language language : kLanguages) {
        for (const QString &name : pagesOf(language)) {
            const QString path = pathOf(language, name);
            SCOPED_TRACE(path.toStdString());
            ASSERT_TRUE(QFileInfo::exists(path));
            const std::unique_ptr<Page> page = load(path);
            const pugi::xml_node html = page->document.child("html");
            EXPECT_EQ(QString::fromUtf8(html.attribute("lang").value()), kLanguageCodes[language]);
            EXPECT_STREQ(html.child("head").find_child_by_attribute("name", "viewport").name(), "meta");
            EXPECT_STREQ(html.child("head").child("meta").attribute("charset").value(), "utf-8");

            const QString sheet = QString::fromUtf8(html.child("head").child("link").attribute("href").value());
            EXPECT_TRUE(!sheet.isEmpty() && QFileInfo::exists(QFileInfo(path).path() + u'/' + sheet))
                << sheet.toStdString();
            for (const char *active : {"script", "iframe", "img", "object", "form", "style"})
                EXPECT_FALSE(page->elements.contains(QLatin1String(active))) << active;
            const QString source = ShippedContent::textOf(path);
            EXPECT_FALSE(
                source.contains(QRegularExpression(QStringLiteral("(https?:)?//[a-z]|www\\.|mailto:|@import"))));
        }
    }
}

TEST(Pages, AreWrittenInTheirLanguage)
{
    static const std::array<QRegularExpression, 2> foreign{QRegularExpression(QStringLiteral("[A-Za-z]{2,}")),
                                                           QRegularExpression(QStringLiteral("[\\x{400}-\\x{52f}]"))};
    static const QRegularExpression doubled(QStringLiteral("\\b(\\w+)\\s+\\1\\b"),
                                            QRegularExpression::CaseInsensitiveOption |
                                                QRegularExpression::UseUnicodePropertiesOption);
    for (const Language language : kLanguages) {
        const QStringList pages = pagesOf(language);
        for (qsizetype i = 0; i < pages.size(); ++i) {
            SCOPED_TRACE(pages[i].toStdString());
            const std::unique_ptr<Page> page = load(pathOf(language, pages[i]));
            EXPECT_GT(page->text.size(), 300) << "too little to read";
            const QRegularExpressionMatch other = foreign[language].match(page->text);
            EXPECT_FALSE(other.hasMatch()) << other.captured().toStdString();
            // A title is repeated as the heading.
            const QString body = page->text.mid(page->text.indexOf(u' ', page->text.size() / 4));
            EXPECT_FALSE(doubled.match(body).hasMatch()) << doubled.match(body).captured().toStdString();
            if (i >= 2) {
                const pugi::xml_node html = page->document.child("html");
                const QString heading = QString::fromUtf8(html.child("body").child("h1").text().get());
                EXPECT_EQ(heading, tipsOf(language)[i - 2]) << "the list of tips names another page";
            }
        }
    }
}

TEST(Pages, BothLanguagesHaveTheSameStructure)
{
    const QStringList russian = pagesOf(Russian);
    const QStringList english = pagesOf(English);
    ASSERT_EQ(russian.size(), english.size());
    for (qsizetype i = 0; i < russian.size(); ++i)
        EXPECT_EQ(load(pathOf(Russian, russian[i]))->elements, load(pathOf(English, english[i]))->elements)
            << russian[i].toStdString();
}

TEST(Pages, NoneIsLeftOver)
{
    for (const Language language : kLanguages) {
        QStringList known{QStringLiteral("Localizable.strings"),
                          textFor(language, QStringLiteral("tips plist")) + QStringLiteral(".plist")};
        for (const QString &page : pagesOf(language))
            known.append(page + QStringLiteral(".html"));
        for (const QString &file : QDir(ShippedContent::folderOf(language)).entryList(QDir::Files))
            EXPECT_TRUE(known.contains(file)) << file.toStdString() << " is named nowhere";
    }
}

TEST(Pages, SayWhomToAsk)
{
    const std::array<QString, 2> doctor{QStringLiteral("врач"), QStringLiteral("doctor")};
    const std::array<QStringList, 2> groups{
        QStringList{QStringLiteral("беремен"), QStringLiteral("диабет"), QStringLiteral("почек")},
        QStringList{QStringLiteral("pregnan"), QStringLiteral("diabet"), QStringLiteral("kidney")}};
    for (const Language language : kLanguages) {
        const QString about = load(pathOf(language, textFor(language, QStringLiteral("about html"))))->text.toLower();
        EXPECT_TRUE(about.contains(doctor[language]));
        for (const QString &group : groups[language])
            EXPECT_TRUE(about.contains(group)) << group.toStdString();
    }
}
