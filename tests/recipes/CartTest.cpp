#include "ShoppingFixture.h"

#include "recipes/CartViewController.h"

#include <QAbstractItemModelTester>

namespace kesto::test
{
namespace
{

constexpr int lines = CartViewController::LinesSection;

struct CartScreen : ShoppingFixture
{
    explicit CartScreen(std::initializer_list<const char *> products)
    {
        for (const char *name : products)
            addToCart(utf8(name));
        open();
    }
    void open() { screen = &show(std::make_unique<CartViewController>()); }
    void reopen()
    {
        window().setRootViewController(nullptr);
        turnEventLoop();
        restart();
        window().setSize({390, 844});
        open();
    }
    /// The table from the top: "name", "name=count", "-" before a bought one, and a "/" between sections.
    [[nodiscard]] QString shown() const
    {
        QStringList texts;
        for (int section = 0; section < table().numberOfSections(); ++section) {
            if (section > 0)
                texts.append(QStringLiteral("/"));
            for (const TableRow &row : table().section(section).rows) {
                EXPECT_EQ(row.checked, row.struckThrough);
                texts.append((row.struckThrough ? QStringLiteral("-") : QString()) + row.title +
                             (row.text.isEmpty() ? QString() : u'=' + row.text));
            }
        }
        return texts.join(u' ');
    }
    [[nodiscard]] const TableModel &table() const { return *screen->table(); }
    [[nodiscard]] QString idOf(int row) const { return table().rowAt({lines, row}).id.text(); }
    [[nodiscard]] QStringList rightButtons() const { return images(screen->rightBarButtonItems()); }

    CartViewController *screen = nullptr;
};

const QString add = QStringLiteral("Добавить свой продукт");

TEST(Cart, TicksLinesOffAndKeepsTheirQuantities)
{
    CartScreen cart{"salt", "milk", "egg"};
    const QAbstractItemModelTester tester(cart.screen->table(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(cart.shown(), QStringLiteral("egg milk salt / ") + add);
    EXPECT_EQ(cart.table().rowAt({lines, 0}).placeholder, QStringLiteral("#"));
    EXPECT_EQ(cart.rightButtons(), QStringList{QStringLiteral("Изменить")});
    EXPECT_EQ(images(cart.screen->toolbarItems()), QStringList{QStringLiteral("Очистить корзину")});

    cart.screen->selectRow(lines, 1);
    cart.screen->endEditingText(lines, cart.idOf(0), QStringLiteral("  10 шт. "));
    cart.screen->endEditingText(lines, cart.idOf(2), QString());
    EXPECT_EQ(cart.shown(), QStringLiteral("egg=  10 шт.  -milk salt / ") + add);
    cart.reopen();
    EXPECT_EQ(cart.shown(), QStringLiteral("egg=  10 шт.  -milk salt / ") + add);
    EXPECT_FALSE(cart.screen->pIngAtIndexPath({lines, 2})->count().isNull()) << "nothing was typed, too";
    EXPECT_TRUE(cart.screen->pIngAtIndexPath({lines, 1})->count().isNull());
    EXPECT_FALSE(cart.screen->pIngAtIndexPath({lines, 0})->purchased().has_value()) << "never touched";
    cart.screen->selectRow(lines, 1);
    EXPECT_EQ(cart.screen->pIngAtIndexPath({lines, 1})->purchased(), false);

    for (const IndexPath path : {IndexPath{lines, -1}, {lines, 3}, {CartViewController::AddSection, 0}, {7, 0}})
        EXPECT_EQ(cart.screen->pIngAtIndexPath(path), nullptr);
}

TEST(Cart, GivesAQuantityToTheLineItWasTypedFor)
{
    CartScreen cart{"salt", "milk", "egg"};
    const QString salt = cart.idOf(2);
    const QString milk = cart.idOf(1);
    cart.addToCart(QStringLiteral("salt")); // it moves to the top
    cart.screen->reloadData();
    cart.screen->endEditingText(lines, salt, QStringLiteral("1 kg"));
    EXPECT_EQ(cart.shown(), QStringLiteral("salt=1 kg egg milk / ") + add);

    cart.screen->deleteRowByUser(lines, 2);
    cart.screen->endEditingText(lines, milk, QStringLiteral("2 l"));
    EXPECT_EQ(cart.shown(), QStringLiteral("salt=1 kg egg / ") + add) << "the line is gone, the others are not its own";

    cart.manager().removePurchaseIngredientFromCard(*cart.screen->pIngAtIndexPath({lines, 0}));
    cart.screen->endEditingText(lines, salt, QStringLiteral("3"));
    cart.screen->endEditingText(lines, cart.idOf(0), QStringLiteral("3"));
    cart.screen->selectRow(lines, 0);
    EXPECT_EQ(cart.cart(), QStringList{QStringLiteral("egg")}) << "a line that went elsewhere stays away";
}

TEST(Cart, GivesAQuantityAlsoWhereNothingCanBeStored)
{
    ShoppingFixture program;
    ASSERT_TRUE(QDir().mkpath(program.path("Diet.sqlite"))); // no place for the file
    for (const char *name : {"tea", "salt", "milk"})
        program.addToCart(QString::fromLatin1(name));
    auto &screen = program.show(std::make_unique<CartViewController>());
    ASSERT_GT(screen.pIngAtIndexPath({lines, 1})->objectID(), qint64(1) << 53)
        << "an identity of a line that is not stored";
    screen.endEditingText(lines, screen.table()->rowAt({lines, 1}).id.text(), QStringLiteral("7"));
    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(screen.pIngAtIndexPath({lines, row})->count(), row == 1 ? QStringLiteral("7") : QString());
}

TEST(Cart, AddsAProductOfOnesOwn)
{
    CartScreen cart{};
    const auto type = [&](const char *text, const char *button) {
        cart.screen->selectRow(CartViewController::AddSection, 0);
        ASSERT_TRUE(ShoppingFixture::alert() && ShoppingFixture::alert()->hasTextField());
        EXPECT_EQ(ShoppingFixture::question(), add + QStringLiteral(": (Отменить), Добавить"));
        ShoppingFixture::alert()->setText(utf8(text));
        ShoppingFixture::answer(button);
    };
    type("чай - 100 г", "Отменить");
    type("", "Добавить");
    type("- заметка", "Добавить");
    EXPECT_EQ(cart.shown(), QStringLiteral("/ ") + add);
    EXPECT_TRUE(cart.rightButtons().isEmpty());
    type("чай - 100 г", "Добавить");
    EXPECT_EQ(cart.shown(), QStringLiteral("чай / ") + add);
    EXPECT_EQ(cart.rightButtons(), QStringList{QStringLiteral("Изменить")});

    // The answer comes when the screen is gone.
    cart.screen->selectRow(CartViewController::AddSection, 0);
    ShoppingFixture::alert()->setText(QStringLiteral("кофе"));
    cart.window().setRootViewController(nullptr);
    ShoppingFixture::turnEventLoop();
    if (ShoppingFixture::alert() != nullptr)
        ShoppingFixture::answer("Добавить");
    EXPECT_EQ(cart.cart(), QStringList{QStringLiteral("чай")});
}

TEST(Cart, DeletesLinesInEditingAndBySwipe)
{
    CartScreen cart{"salt", "milk", "egg"};
    const QAbstractItemModelTester tester(cart.screen->table(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(cart.screen->heightForHeaderInSection(lines), CartViewController::standard);
    cart.screen->deleteRowByUser(lines, 1);
    EXPECT_EQ(cart.shown(), QStringLiteral("egg salt / ") + add);
    cart.screen->deleteRowByUser(CartViewController::AddSection, 0);
    EXPECT_EQ(cart.shown(), QStringLiteral("egg salt / ") + add) << "not a line";

    cart.screen->rightBarButtonItems().constFirst()->trigger();
    EXPECT_TRUE(cart.screen->isEditing());
    EXPECT_EQ(cart.shown(), QStringLiteral("egg salt"));
    EXPECT_EQ(cart.rightButtons(), QStringList{QStringLiteral("Готово")});
    cart.screen->selectRow(lines, 0);
    EXPECT_EQ(cart.shown(), QStringLiteral("egg salt")) << "nothing is bought while editing";
    cart.screen->rightBarButtonItems().constFirst()->trigger();
    EXPECT_EQ(cart.shown(), QStringLiteral("egg salt / ") + add);

    cart.screen->setEditing(true);
    cart.screen->deleteRowByUser(lines, 1);
    EXPECT_TRUE(cart.screen->isEditing());
    EXPECT_TRUE(cart.screen->emptyTitle().isNull());
    cart.screen->deleteRowByUser(lines, 0);
    EXPECT_FALSE(cart.screen->isEditing());
    EXPECT_EQ(cart.shown(), QStringLiteral("/ ") + add);
    EXPECT_TRUE(cart.rightButtons().isEmpty());
    EXPECT_EQ(cart.screen->heightForHeaderInSection(lines), 20);
    EXPECT_FALSE(cart.screen->emptyTitle().isEmpty());
    EXPECT_EQ(cart.context().fetchOrLog<Ingredient>().size(), 0U) << "typed products go with their lines";
    cart.reopen();
    EXPECT_EQ(cart.shown(), QStringLiteral("/ ") + add);
}

TEST(Cart, ClearsWhenToldTwice)
{
    CartScreen cart{"salt", "milk"};
    BarButtonItem &clear = *cart.screen->toolbarItems().constFirst();
    clear.trigger();
    EXPECT_EQ(ShoppingFixture::question(),
              QStringLiteral("Вы действительно хотите очистить корзину?: (Отменить), Очистить!"));
    EXPECT_EQ(ShoppingFixture::alert()->style(), Alert::Style::ActionSheet);
    ShoppingFixture::answer("Отменить");
    EXPECT_EQ(cart.shown(), QStringLiteral("milk salt / ") + add);

    cart.screen->setEditing(true);
    clear.trigger();
    ShoppingFixture::answer("Очистить");
    EXPECT_EQ(cart.shown(), QStringLiteral("/ ") + add);
    EXPECT_FALSE(cart.screen->isEditing());
    EXPECT_TRUE(cart.rightButtons().isEmpty());
    clear.trigger();
    ShoppingFixture::answer("Очистить");
    cart.screen->setEditing(true);
    EXPECT_FALSE(cart.screen->isEditing()) << "there is nothing to edit";
    cart.reopen();
    EXPECT_EQ(cart.shown(), QStringLiteral("/ ") + add);
}

TEST(Cart, ShowsOnReturnWhatCameMeanwhile)
{
    CartScreen cart{"salt"};
    cart.navigation->pushViewController(std::make_unique<ViewController>(), false);
    cart.addToCart(QStringLiteral("milk"));
    EXPECT_EQ(cart.shown(), QStringLiteral("salt / ") + add);
    cart.navigation->popViewController(false);
    EXPECT_EQ(cart.shown(), QStringLiteral("milk salt / ") + add);
    for (PurhaseIngredient *line : cart.manager().purhaseIngredients())
        cart.manager().removePurchaseIngredientFromCard(*line);
    cart.screen->setEditing(true);
    cart.screen->reloadData();
    EXPECT_EQ(cart.shown(), QStringLiteral("/ ") + add) << "what went away while it was edited ends editing";
}

} // namespace
} // namespace kesto::test
