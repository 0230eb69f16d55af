#include "Screens.h"

#include "components/TableViewController.h"

namespace kesto::test
{

namespace
{

/// A table whose hooks write down what reached them.
class NotingTable : public TableViewController
{
    Q_OBJECT
public:
    QList<QList<TableRow>> rows;
    QStringList calls;

    [[nodiscard]] int numberOfSections() const override { return static_cast<int>(rows.size()); }
    [[nodiscard]] int numberOfRowsInSection(int section) const override
    {
        return static_cast<int>(rows.at(section).size());
    }
    [[nodiscard]] TableRow cellForRow(const IndexPath &path) const override
    {
        return rows.at(path.section).at(path.row);
    }
    std::string take() { return std::exchange(calls, {}).join(QStringLiteral(", ")).toStdString(); }

protected:
    void viewDidLoad() override
    {
        reloadRow({0, 0}); // too early, and harmless
        insertRow({0, 0});
        deleteSection(0);
        calls.append(QStringLiteral("load %1").arg(table()->rowCount()));
    }
    void didSelectRow(const IndexPath &path) override { note("select", path, {}); }
    void textFieldDidEndEditing(const IndexPath &path, int tag, const QString &text) override
    {
        note("text", path, QStringLiteral("%1=%2").arg(tag).arg(text));
    }
    void switchChanged(const IndexPath &path, bool on) override
    {
        note("switch", path, on ? QStringLiteral("on") : QStringLiteral("off"));
    }
    void accessoryTouched(const IndexPath &path) override { note("accessory", path, {}); }
    void commitDelete(const IndexPath &path) override { note("delete", path, {}); }
    void moveRow(const IndexPath &from, const IndexPath &to) override
    {
        rows[to.section].insert(to.row, rows[from.section].takeAt(from.row));
        note("move", from, QStringLiteral("to %1").arg(to.row));
    }
    [[nodiscard]] bool canMoveRow(const IndexPath &from, const IndexPath &to) const override
    {
        return TableViewController::canMoveRow(from, to) && to.row != 0;
    }

private:
    void note(const char *what, const IndexPath &path, const QString &more)
    {
        calls.append(
            QStringLiteral("%1 %2.%3 %4").arg(QLatin1String(what)).arg(path.section).arg(path.row).arg(more).trimmed());
    }
};

} // namespace

class TableViewControllerTest : public ScreensTest
{
protected:
    TableViewControllerTest()
    {
        using Kind = TableRow::Kind;
        table.rows = {{{.title = QStringLiteral("text")},
                       {.title = QStringLiteral("deaf"), .enabled = false, .canDelete = true},
                       {.title = QStringLiteral("unselectable"), .selectable = false}},
                      {{.kind = Kind::Editable, .tag = 103, .text = QStringLiteral("62")},
                       {.kind = Kind::Switch, .on = true},
                       {.accessory = TableRow::Accessory::CheckButton}},
                      {{.title = QStringLiteral("a"), .canDelete = true, .canMove = true},
                       {.title = QStringLiteral("b"), .canMove = true},
                       {.title = QStringLiteral("c"), .canMove = true}}};
        table.loadViewIfNeeded();
        EXPECT_EQ(table.take(), "load 0");
        EXPECT_EQ(table.table()->rowCount(), 9);
    }
    NotingTable table;
};

TEST_F(TableViewControllerTest, OnlyWhatARowOffersReachesTheHooks)
{
    for (int section = -1; section <= 3; ++section) {
        for (int row = -1; row <= 3; ++row) {
            table.selectRow(section, row);
            table.endEditingText(section, row, QStringLiteral("58,5"));
            table.turnSwitch(section, row, false);
            table.touchAccessory(section, row);
            table.deleteRowByUser(section, row);
        }
    }
    EXPECT_EQ(table.take(), "select 0.0, select 1.0, text 1.0 103=58,5, select 1.1, switch 1.1 off, select 1.2, "
                            "accessory 1.2, select 2.0, delete 2.0, select 2.1, select 2.2");
}

TEST_F(TableViewControllerTest, ARowKeepsWhatTheUserGaveItUntilItIsReloaded)
{
    table.endEditingText(1, 0, QStringLiteral("58"));
    table.turnSwitch(1, 1, false);
    table.turnSwitch(1, 1, false); // no change
    EXPECT_EQ(table.take(), "text 1.0 103=58, switch 1.1 off");
    EXPECT_EQ(table.table()->rowAt({1, 0}).text, QStringLiteral("58"));
    EXPECT_FALSE(table.table()->rowAt({1, 1}).on);
    table.reloadRow({1, 0});
    table.reloadRow({1, 1});
    table.reloadRow({7, 7});
    table.deleteRow({0, 9});
    table.insertRow({9, 0});
    table.deleteSection(9);
    EXPECT_EQ(table.table()->rowCount(), 9);
    EXPECT_EQ(table.table()->rowAt({1, 0}).text, QStringLiteral("62"));
    EXPECT_TRUE(table.table()->rowAt({1, 1}).on);
}

TEST_F(TableViewControllerTest, WhileEditingRowsMoveAndAreNotSelected)
{
    const auto edit = table.editButtonItem();
    EXPECT_EQ(edit->title(), QStringLiteral("Изменить"));
    table.moveRowByUser(2, 0, 2, 2);
    EXPECT_EQ(table.take(), "");
    edit->trigger();
    EXPECT_TRUE(table.isEditing());
    EXPECT_EQ(edit->title(), QStringLiteral("Готово"));

    table.selectRow(0, 0);
    const struct
    {
        int from;
        int toSection;
        int to;
    } refused[] = {{0, 2, 0}, {1, 2, 0}, {0, 2, 3}, {0, 2, -1}, {0, 1, 1}, {0, 5, 0}, {4, 2, 1}};
    for (const auto &each : refused)
        table.moveRowByUser(2, each.from, each.toSection, each.to);
    table.moveRowByUser(0, 0, 0, 1); // a row that does not move
    EXPECT_EQ(table.take(), "");
    table.moveRowByUser(2, 0, 2, 2);
    EXPECT_EQ(table.take(), "move 2.0 to 2");
    EXPECT_EQ(table.table()->rowAt({2, 2}).title, QStringLiteral("a"));
    table.reloadData();
    EXPECT_EQ(table.table()->rowAt({2, 2}).title, QStringLiteral("a"));
    table.setEditing(false);
    EXPECT_EQ(edit->title(), QStringLiteral("Изменить"));
}

} // namespace kesto::test

#include "TableViewControllerTest.moc"
