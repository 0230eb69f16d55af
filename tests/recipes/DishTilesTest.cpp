#include "recipes/DishTiles.h"
#include "model/Dish.h"
#include "store/StoreFixture.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace kesto::test
{
namespace
{

TEST(DishTiles, TellsEachChangeAsSmallAsItIs)
{
    StoreFixture program;
    std::vector<const Dish *> dishes;
    for (int i = 0; i < 10; ++i)
        dishes.push_back(&program.context().insert<Dish>());
    DishTiles tiles;
    const QAbstractItemModelTester tester(&tiles, QAbstractItemModelTester::FailureReportingMode::Fatal);
    QSignalSpy inserted(&tiles, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&tiles, &QAbstractItemModel::rowsRemoved);
    QSignalSpy changed(&tiles, &QAbstractItemModel::dataChanged);

    // Digits are dishes; a point behind one is its check mark. Expected: +first-last, -first-last, ~row.
    for (const auto &[next, told] : {std::pair("", ""),
                                     {"1234", "+0-3"},
                                     {"1234", ""},
                                     {"123.4", "~2"},
                                     {"1243.", "-2-3 +2-3"},
                                     {"12593", "-2-2 +2-3 ~4"},
                                     {"129", "-2-4 +2-2"},
                                     {"0129", "+0-0"},
                                     {"0.129.", "~0 ~3"},
                                     {"0.29.", "-1-1"},
                                     {"0022", "-1-2 +1-3 ~0"},
                                     {"", "-0-3"},
                                     {"78", "+0-1"}}) {
        SCOPED_TRACE(next);
        QList<DishTile> list;
        for (const char *each = next; *each != 0; ++each) {
            if (*each == '.')
                list.last().checked = true;
            else
                list.append({.dish = dishes[static_cast<size_t>(*each - '0')], .title = QString(QLatin1Char(*each))});
        }
        tiles.setTiles(list);
        QStringList heard;
        for (const auto &[spy, sign] : {std::pair(&removed, u'-'), {&inserted, u'+'}}) {
            for (const QVariantList &each : std::as_const(*spy))
                heard.append(QStringLiteral("%1%2-%3").arg(QChar(sign)).arg(each[1].toInt()).arg(each[2].toInt()));
            spy->clear();
        }
        for (const QVariantList &each : std::as_const(changed))
            heard.append(QStringLiteral("~%1").arg(each[0].toModelIndex().row()));
        changed.clear();
        EXPECT_EQ(heard.join(u' ').toStdString(), told);
        EXPECT_EQ(tiles.tiles(), list);
        EXPECT_EQ(tiles.rowCount(), list.size());
        for (int row = 0; row < list.size(); ++row) {
            EXPECT_EQ(tiles.data(tiles.index(row), DishTiles::TitleRole), list[row].title);
            EXPECT_EQ(tiles.data(tiles.index(row), DishTiles::CheckedRole), list[row].checked);
        }
    }
}

} // namespace
} // namespace kesto::test
