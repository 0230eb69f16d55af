#include "components/TableModel.h"
#include "components/Picker.h"
#include "support/TestPlatform.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

#include <random>

namespace kesto::test
{

namespace
{

TableSection section(const char *header, const QStringList &titles, const char *footer = nullptr)
{
    TableSection made{.header = QString::fromUtf8(header), .footer = QString::fromUtf8(footer)};
    for (const QString &title : titles)
        made.rows.append({.title = title});
    return made;
}

QStringList letters(const char *text)
{
    QStringList result;
    for (const char *each = text; *each; ++each)
        result.append(QString(QLatin1Char(*each)));
    return result;
}

/// The lines as a view sees them: "[header] a b (footer)", rows with section and number.
QString shown(const TableModel &model)
{
    QStringList lines;
    for (int line = 0; line < model.rowCount(); ++line) {
        const TableLine at = model.lineAt(line);
        const QString &title = at.title;
        switch (at.type) {
        case TableLine::Type::Header:
            lines.append(QLatin1Char('[') + title + QLatin1Char(']'));
            break;
        case TableLine::Type::Footer:
            lines.append(QLatin1Char('(') + title + QLatin1Char(')'));
            break;
        case TableLine::Type::Row:
            lines.append(title);
            break;
        }
    }
    return lines.join(QLatin1Char(' '));
}

/// A list kept up to date by signals alone, as a view keeps its delegates.
class Mirror
{
public:
    explicit Mirror(TableModel &model)
        : model_(model)
    {
        QObject::connect(&model, &QAbstractItemModel::modelReset, &guard_, [this] { readAll(); });
        QObject::connect(&model, &QAbstractItemModel::rowsInserted, &guard_,
                         [this](const QModelIndex &, int first, int last) {
                             for (int line = first; line <= last; ++line)
                                 lines_.insert(line, model_.lineAt(line));
                             signals_ += QStringLiteral("+%1 ").arg(last - first + 1);
                         });
        QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &guard_,
                         [this](const QModelIndex &, int first, int last) {
                             lines_.remove(first, last - first + 1);
                             signals_ += QStringLiteral("-%1 ").arg(last - first + 1);
                         });
        QObject::connect(&model, &QAbstractItemModel::rowsMoved, &guard_,
                         [this](const QModelIndex &, int from, int, const QModelIndex &, int before) {
                             lines_.move(from, before > from ? before - 1 : before);
                             signals_ += QStringLiteral("move ");
                         });
        QObject::connect(&model, &QAbstractItemModel::dataChanged, &guard_,
                         [this](const QModelIndex &first, const QModelIndex &last) {
                             int changed = 0; // in more than their places
                             for (int line = first.row(); line <= last.row(); ++line) {
                                 const TableLine before = std::exchange(lines_[line], model_.lineAt(line));
                                 changed += static_cast<const TableRow &>(before) == lines_[line] ? 0 : 1;
                             }
                             if (changed > 0)
                                 signals_ += QStringLiteral("~%1 ").arg(changed);
                         });
        readAll();
    }
    [[nodiscard]] bool isRight() const
    {
        if (lines_.size() != model_.rowCount())
            return false;
        for (int line = 0; line < model_.rowCount(); ++line) {
            if (lines_.at(line) != model_.lineAt(line))
                return false;
        }
        return true;
    }
    /// Lines that came, went, moved or changed in content.
    std::string takeSignals() { return std::exchange(signals_, {}).trimmed().toStdString(); }

private:
    void readAll()
    {
        lines_.clear();
        for (int line = 0; line < model_.rowCount(); ++line)
            lines_.append(model_.lineAt(line));
        signals_ += QStringLiteral("reset ");
    }
    TableModel &model_;
    QObject guard_;
    QList<TableLine> lines_;
    QString signals_;
};

} // namespace

TEST(TableModelTest, SectionsBecomeLinesAndBack)
{
    TableModel model;
    EXPECT_EQ(model.rowCount(), 0);
    model.setSections(
        {section(nullptr, letters("ab")), section("", {}), section("h", letters("c"), "f"), section(nullptr, {})});
    EXPECT_EQ(shown(model), QStringLiteral("a b [] [h] c (f)"));
    EXPECT_EQ(model.line({2, 0}), 4);
    for (const ShownPath &outside :
         {ShownPath{-1, 0}, ShownPath{0, -1}, ShownPath{0, 2}, ShownPath{1, 0}, ShownPath{4, 0}})
        EXPECT_FALSE(model.contains(outside)) << outside.section << ' ' << outside.row;
}

TEST(TableModelTest, AChangeIsToldAsSmallAsItIs)
{
    const struct
    {
        const char *name;
        TableSection before;
        TableSection after;
        const char *told;
    } cases[] = {
        {"nothing", section("h", letters("abc"), "f"), section("h", letters("abc"), "f"), ""},
        {"one row", section("h", letters("abc")), section("h", letters("axc")), "~1"},
        {"header", section("h", letters("abc")), section("g", letters("abc")), "~1"},
        {"insert at the beginning", section("h", letters("abc"), "f"), section("h", letters("xabc"), "f"), "+1"},
        {"insert in the middle", section("h", letters("abc"), "f"), section("h", letters("abxyc"), "f"), "+2"},
        {"insert at the end", section("h", letters("abc")), section("h", letters("abcx")), "+1"},
        {"remove the first", section("h", letters("abc")), section("h", letters("bc")), "-1"},
        {"remove one of equals", section(nullptr, letters("aaa")), section(nullptr, letters("aa")), "-1"},
        {"remove all", section(nullptr, letters("abc")), section(nullptr, {}), "-3"},
        {"header comes", section(nullptr, letters("ab")), section("h", letters("ab")), "+1"},
        {"replace by more", section("h", letters("abc")), section("h", letters("axyzc")), "~1 +2"},
        {"a header becomes a row", section("h", letters("a"), "f"), section(nullptr, letters("xyzu")), "~3 +1"},
        {"a row becomes a header", section(nullptr, letters("xyzu")), section("h", letters("a"), "f"), "-1 ~3"},
        {"replace by fewer", section("h", letters("abcde"), "f"), section("h", letters("axe"), "f"), "-2 ~1"},
    };
    for (const auto &each : cases) {
        TableModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        model.setSections({section("first", letters("1")), each.before, section("last", letters("2"))});
        Mirror mirror(model);
        mirror.takeSignals();
        model.replaceSection(1, each.after);
        EXPECT_EQ(mirror.takeSignals(), each.told) << each.name;
        EXPECT_TRUE(mirror.isRight()) << each.name;
        EXPECT_EQ(model.section(1), each.after) << each.name;
    }
}

TEST(TableModelTest, AMovedRowIsToldAsMoved)
{
    const struct
    {
        ShownPath from;
        ShownPath to;
        const char *shown;
        const char *told;
    } cases[] = {
        {{0, 0}, {0, 2}, "b c a [h] d e f", "move"}, {{0, 2}, {0, 0}, "c a b [h] d e f", "move"},
        {{0, 0}, {0, 1}, "b a c [h] d e f", "move"}, {{0, 1}, {0, 1}, "a b c [h] d e f", ""},
        {{0, 0}, {1, 0}, "b c [h] a d e f", "move"}, {{0, 0}, {1, 2}, "b c [h] d e a f", "move"},
        {{1, 0}, {0, 0}, "d a b c [h] e f", "move"}, {{1, 1}, {0, 3}, "a b c e [h] d f", "move"},
        {{1, 1}, {2, 0}, "a b c [h] d e f", ""}, // stays where it is, in another section
        {{2, 0}, {1, 2}, "a b c [h] d e f", ""},
    };
    for (const auto &each : cases) {
        TableModel model;
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        model.setSections(
            {section(nullptr, letters("abc")), section("h", letters("de")), section(nullptr, letters("f"))});
        Mirror mirror(model);
        mirror.takeSignals();
        const QString title = model.rowAt(each.from).title;
        model.moveRow(each.from, each.to);
        EXPECT_EQ(shown(model), QString::fromLatin1(each.shown));
        EXPECT_EQ(model.rowAt(each.to).title, title);
        EXPECT_EQ(mirror.takeSignals(), each.told) << each.shown;
        EXPECT_TRUE(mirror.isRight()) << each.shown;
    }
}

TEST(TableModelTest, AViewThatOnlyListensStaysRightUnderAnyEdits)
{
    std::mt19937 random(20240307); // NOLINT(cert-msc51-cpp): the same edits every time
    const auto below = [&](int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); };
    const auto anySection = [&] {
        QStringList titles;
        for (int count = below(5); count > 0; --count)
            titles.append(QString::number(below(3)));
        return section(below(2) ? "h" : nullptr, titles, below(3) ? nullptr : "f");
    };
    TableModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QList<TableSection> expected; // the same edits without any signal
    Mirror mirror(model);
    for (int step = 0; step < 4000; ++step) {
        const int count = static_cast<int>(expected.size());
        const int at = count > 0 ? below(count) : 0;
        const int rows = count > 0 ? static_cast<int>(expected[at].rows.size()) : 0;
        switch (below(8)) {
        case 0:
            if (count < 6) {
                expected.insert(at, anySection());
                model.insertSection(at, expected.at(at));
            }
            break;
        case 1:
            if (count > 0) {
                expected.removeAt(at);
                model.removeSection(at);
            }
            break;
        case 2:
            if (count > 0) {
                expected[at] = anySection();
                model.replaceSection(at, expected.at(at));
            }
            break;
        case 3:
            if (count > 0) {
                const TableRow row{.title = QString::number(step), .on = below(2) == 1};
                const int place = below(rows + 1);
                expected[at].rows.insert(place, row);
                model.insertRow({at, place}, row);
            }
            break;
        case 4:
            if (rows > 0) {
                const int place = below(rows);
                expected[at].rows.removeAt(place);
                model.removeRow({at, place});
            }
            break;
        case 5:
            if (rows > 0) {
                const int place = below(rows);
                expected[at].rows[place].subtitle = QString::number(below(2));
                model.setRow({at, place}, expected[at].rows[place]);
            }
            break;
        case 6:
            if (rows > 0) {
                const int from = below(rows);
                const int target = below(count);
                const TableRow row = expected[at].rows.takeAt(from);
                const int to = below(static_cast<int>(expected[target].rows.size()) + 1);
                expected[target].rows.insert(to, row);
                model.moveRow({at, from}, {target, to});
            }
            break;
        default:
            if (below(20) == 0) {
                expected = {anySection(), anySection()};
                model.setSections(expected);
            }
            break;
        }
        ASSERT_TRUE(mirror.isRight()) << "step " << step;
        for (int number = 0; number < expected.size(); ++number)
            ASSERT_EQ(model.section(number), expected.at(number)) << "step " << step;
        ASSERT_EQ(model.numberOfSections(), expected.size());
    }
}

} // namespace kesto::test
