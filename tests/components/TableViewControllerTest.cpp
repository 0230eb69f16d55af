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
    void didSelectRow(const IndexPath &path, const RowId &id) override { note("select", path, id); }
    void textFieldDidEndEditing(const IndexPath &path, const RowId &id, const QString &text) override
    {
        note("text", path, id, text);
    }
    void switchChanged(const IndexPath &path, const RowId &id, bool on) override
    {
        note("switch", path, id, on ? QStringLiteral("on") : QStringLiteral("off"));
    }
    void accessoryTouched(const IndexPath &path, const RowId &id) override { note("accessory", path, id); }
    void commitDelete(const IndexPath &path, const RowId &id) override { note("delete", path, id); }
    void moveRow(const IndexPath &from, const IndexPath &to) override
    {
        rows[to.section].insert(to.row, rows[from.section].takeAt(from.row));
        note("move", from, {}, QStringLiteral("to %1").arg(to.row));
    }
    [[nodiscard]] bool canMoveRow(const IndexPath &from, const IndexPath &to) const override
    {
        return TableViewController::canMoveRow(from, to) && to.row != 0;
    }

private:
    // "text 1.0 weight 58": what, section and row, the identity unless it is the row, and what else came along
    void note(const char *what, const IndexPath &path, const RowId &id, const QString &more = {})
    {
        QStringList words{QLatin1String(what), QStringLiteral("%1.%2").arg(path.section).arg(path.row),
                          id == RowId(path.row) ? QString() : id.text(), more};
        words.removeAll(QString());
        calls.append(words.join(u' '));
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
                      {{.id = QStringLiteral("weight"), .kind = Kind::Editable, .text = QStringLiteral("62")},
                       {.id = 7, .kind = Kind::Switch, .on = true},
                       {.accessory = TableRow::Accessory::CheckButton}},
                      {{.title = QStringLiteral("a"), .canDelete = true, .canMove = true},
                       {.title = QStringLiteral("b"), .canMove = true},
                       {.title = QStringLiteral("c"), .canMove = true}}};
        table.loadViewIfNeeded();
        EXPECT_EQ(table.take(), "load 0");
        EXPECT_EQ(table.table()->rowCount(), 9);
    }
    /// As a view reads it.
    [[nodiscard]] QString idAt(const ShownPath &path)
    {
        return table.table()->lineAt(table.table()->line(path)).idText();
    }

    NotingTable table;
};

TEST_F(TableViewControllerTest, OnlyWhatARowOffersReachesTheHooks)
{
    for (int section = -1; section <= 3; ++section) {
        for (int row = -1; row <= 3; ++row) {
            table.selectRow(section, row);
            if (table.table()->contains({section, row}))
                table.endEditingText(section, idAt({section, row}), QStringLiteral("58,5"));
            table.turnSwitch(section, row, false);
            table.touchAccessory(section, row);
            table.deleteRowByUser(section, row);
        }
    }
    EXPECT_EQ(table.take(), "select 0.0, select 1.0 weight, text 1.0 weight 58,5, "
                            "select 1.1 7, switch 1.1 7 off, select 1.2, "
                            "accessory 1.2, select 2.0, delete 2.0, select 2.1, select 2.2");
}

TEST_F(TableViewControllerTest, ARowKeepsWhatTheUserGaveItUntilItIsReloaded)
{
    table.endEditingText(1, QStringLiteral("weight"), QStringLiteral("58"));
    table.turnSwitch(1, 1, false);
    table.turnSwitch(1, 1, false); // no change
    EXPECT_EQ(table.take(), "text 1.0 weight 58, switch 1.1 7 off");
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

TEST_F(TableViewControllerTest, AFieldsTextGoesToTheRowItWasOpenedFor)
{
    const QString opened = idAt({1, 0});
    table.rows[1].prepend({.kind = TableRow::Kind::Editable, .text = QStringLiteral("another")});
    table.insertRow({1, 0});
    table.endEditingText(1, opened, QStringLiteral("58"));
    EXPECT_EQ(table.take(), "text 1.1 weight 58");
    table.rows[1].removeAt(1);
    table.deleteRow({1, 1});
    table.endEditingText(1, opened, QStringLiteral("59"));
    table.editingTextChanged(1, opened, QStringLiteral("59"));
    EXPECT_EQ(table.take(), "");
    EXPECT_EQ(table.table()->rowAt({1, 0}).text, QStringLiteral("another"));
}

TEST_F(TableViewControllerTest, ActivatingARowDoesWhatATouchDoes)
{
    table.rows[0][2].accessory = TableRow::Accessory::InfoButton;
    table.reloadData();
    for (const ShownPath path : {ShownPath{0, 0}, {0, 1}, {0, 2}, {1, 1}, {1, 2}, {9, 9}})
        EXPECT_TRUE(table.activateRow(path.section, path.row));
    EXPECT_EQ(table.take(), "select 0.0, accessory 0.2, switch 1.1 7 off, select 1.2");
    EXPECT_FALSE(table.activateRow(1, 0)) << "its field gets the keyboard focus";
    EXPECT_EQ(table.take(), "");
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
