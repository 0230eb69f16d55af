#include "Screens.h"

#include "components/TableViewControllerWithEcternalPicker.h"

#include <random>

namespace kesto::test
{

namespace
{

/// Two sections of rows; a touch opens a picker with two wheels: the row's own number and tenths.
class PickerTable : public TableViewControllerWithEcternalPicker
{
    Q_OBJECT
public:
    QList<QStringList> content;
    QStringList turned;

    [[nodiscard]] int numberOfSections() const override { return static_cast<int>(content.size()); }
    [[nodiscard]] int numberOfRowsInSection(int section) const override
    {
        return static_cast<int>(content.at(section).size());
    }
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override
    {
        return {.title = content.at(path.section).at(path.row), .canDelete = true};
    }

    /// "a b |a c / d": the picker stands as a bar with the title of its owner.
    [[nodiscard]] std::string shown()
    {
        QStringList sections;
        for (int section = 0; section < table()->numberOfSections(); ++section) {
            QStringList rows;
            for (const TableRow &row : table()->section(section).rows)
                rows.append(row.kind == TableRow::Kind::Picker ? QLatin1Char('|') + titleOf(*pickerOwner())
                                                               : row.title);
            sections.append(rows.join(QLatin1Char(' ')));
        }
        return sections.join(QStringLiteral(" / ")).toStdString();
    }
    [[nodiscard]] QString titleOf(const IndexPath &path) const { return content.at(path.section).at(path.row); }

    void add(const IndexPath &path, const QString &title)
    {
        content[path.section].insert(path.row, title);
        insertRow(path);
    }
    void remove(const IndexPath &path)
    {
        content[path.section].removeAt(path.row);
        deleteRow(path);
    }
    void addSection(int at, const QStringList &rows)
    {
        content.insert(at, rows);
        insertSection(at);
    }
    void dropSection(int at)
    {
        content.removeAt(at);
        deleteSection(at);
    }

protected:
    void didSelectRow(const IndexPath &path, const RowId &) override { displayPickerForIndexPath(path); }
    void commitDelete(const IndexPath &path, const RowId &) override { remove(path); }
    [[nodiscard]] int numberOfComponentsInPicker() const override { return 2; }
    [[nodiscard]] int numberOfRowsInComponent(int component) const override { return component == 0 ? 26 : 10; }
    [[nodiscard]] QString titleForRow(int row, int component) const override
    {
        return component == 0 ? QString(QChar(u'a' + row)) : QString::number(row);
    }
    [[nodiscard]] int selectedRowInComponent(int component) const override
    {
        return component == 0 ? titleOf(*pickerOwner()).at(0).unicode() - u'a' : 0;
    }
    void pickerDidSelectRow(int row, int component) override
    {
        turned.append(QStringLiteral("%1:%2/%3").arg(titleOf(*pickerOwner())).arg(row).arg(component));
    }
};

} // namespace

class InlinePickerTest : public ScreensTest
{
protected:
    InlinePickerTest()
    {
        table.content = {{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")},
                         {QStringLiteral("d"), QStringLiteral("e")}};
        table.loadViewIfNeeded();
    }
    PickerTable table;
};

TEST_F(InlinePickerTest, ATouchOpensMovesAndClosesIt)
{
    const struct
    {
        ShownPath touched; // as the table shows it
        const char *shown;
        std::optional<ShownPath> picker;
    } steps[] = {
        {{0, 0}, "a |a b c / d e", ShownPath{0, 1}},
        {{0, 2}, "a b |b c / d e", ShownPath{0, 2}},
        {{0, 0}, "a |a b c / d e", ShownPath{0, 1}},
        {{0, 3}, "a b c |c / d e", ShownPath{0, 3}},
        {{0, 2}, "a b c / d e", {}},
        {{0, 2}, "a b c |c / d e", ShownPath{0, 3}},
        {{0, 3}, "a b c |c / d e", ShownPath{0, 3}}, // the picker's own row
        {{1, 0}, "a b c / d |d e", ShownPath{1, 1}},
        {{1, 2}, "a b c / d e |e", ShownPath{1, 2}},
        {{1, 9}, "a b c / d e |e", ShownPath{1, 2}},
        {{1, 1}, "a b c / d e", {}},
    };
    for (const auto &step : steps) {
        table.selectRow(step.touched.section, step.touched.row);
        EXPECT_EQ(table.shown(), step.shown);
        EXPECT_EQ(table.pickerIndexPath(), step.picker) << step.shown;
        EXPECT_EQ(table.hasInlinePicker(), step.picker.has_value());
    }
}

// That it stays with its row whatever comes and goes is shown by the random edits below.
TEST_F(InlinePickerTest, TheUserDeletesByWhatTheTableShows)
{
    table.displayPickerForIndexPath({0, 1});
    table.deleteRowByUser(0, 3); // behind the picker
    EXPECT_EQ(table.shown(), "a b |b / d e");
    table.deleteRowByUser(0, 0);
    EXPECT_EQ(table.shown(), "b |b / d e");
    table.content[0].removeFirst();
    table.reloadData(); // its row is gone
    EXPECT_EQ(table.shown(), " / d e");
    EXPECT_FALSE(table.hasInlinePicker());
    table.displayPickerForIndexPath({1, 0});
    table.setEditing(true);
    table.displayPickerForIndexPath({1, 0});
    table.selectRow(1, 0);
    EXPECT_EQ(table.shown(), " / d e");
}

TEST_F(InlinePickerTest, ItsWheelsShowTheRowAndTellWhatTheUserTurns)
{
    table.displayPickerForIndexPath({1, 0});
    EXPECT_EQ(table.picker()->selectedRow(0), 3);
    EXPECT_EQ(table.turned.size(), 0);
    table.picker()->components().at(1)->select(7);
    table.picker()->components().at(0)->select(25);
    EXPECT_EQ(table.turned, (QStringList{QStringLiteral("d:7/1"), QStringLiteral("d:25/0")}));
    table.displayPickerForIndexPath({0, 2}); // the wheels turn to the next row's
    EXPECT_EQ(table.picker()->selectedRow(0), 2);
    EXPECT_EQ(table.picker()->selectedRow(1), 0);
    table.content[0][2] = QStringLiteral("h");
    table.updatePicker();
    EXPECT_EQ(table.picker()->selectedRow(0), 7);
    table.closePicker();
    table.picker()->components().at(1)->select(3); // a wheel that still spins
    EXPECT_EQ(table.turned.size(), 2);
}

TEST_F(InlinePickerTest, WheelsThatStillTurnCountForTheRowTheyWereOpenedFor)
{
    table.displayPickerForIndexPath({0, 0});
    const QPointer<PickerComponent> wheel = table.picker()->components().at(1);
    QObject::connect(table.picker(), &Picker::shouldSettle, wheel, [wheel] { wheel->select(4); });
    table.displayPickerForIndexPath({0, 2});
    EXPECT_EQ(table.turned, QStringList{QStringLiteral("a:4/1")});
    ASSERT_FALSE(wheel.isNull());
    wheel->select(6);
    EXPECT_EQ(table.turned.size(), 1) << "nobody hears the wheels of another row";
    EXPECT_EQ(table.picker()->selectedRow(1), 0);
}

TEST_F(InlinePickerTest, AnyOrderOfEditsKeepsThePickerBelowItsRow)
{
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same edits every time
    const auto below = [&](int bound) { return static_cast<int>(random() % static_cast<unsigned>(bound)); };
    std::optional<QString> owner;
    for (int step = 0; step < 3000; ++step) {
        const int section = below(table.numberOfSections());
        const int rows = table.numberOfRowsInSection(section);
        const QString title = QString(QChar(u'a' + below(26))) + QString::number(step);
        switch (below(6)) {
        case 0:
            if (rows < 8)
                table.add({section, below(rows + 1)}, title);
            break;
        case 1:
            if (rows > 1) {
                const IndexPath path{section, below(rows)};
                if (table.titleOf(path) == owner)
                    owner.reset();
                table.remove(path);
            }
            break;
        case 2: {
            if (rows == 0)
                break;
            const IndexPath path{section, below(rows)};
            table.displayPickerForIndexPath(path);
            owner = owner == table.titleOf(path) ? std::nullopt : std::optional(table.titleOf(path));
            break;
        }
        case 3:
            if (table.numberOfSections() < 4)
                table.addSection(section, {title});
            break;
        case 4:
            if (table.numberOfSections() > 1) {
                if (owner && table.content.at(section).contains(*owner))
                    owner.reset();
                table.dropSection(section);
            }
            break;
        default:
            table.reloadSection(section);
            break;
        }
        QStringList expected;
        for (const QStringList &each : table.content) {
            QStringList lines;
            for (const QString &row : each) {
                lines.append(row);
                if (row == owner)
                    lines.append(QLatin1Char('|') + row);
            }
            expected.append(lines.join(QLatin1Char(' ')));
        }
        ASSERT_EQ(table.shown(), expected.join(QStringLiteral(" / ")).toStdString()) << "step " << step;
    }
}

} // namespace kesto::test

#include "InlinePickerTest.moc"
