#include "app/MainJob.h"
#include "app/WindowFixture.h"
#include "components/NavigationController.h"
#include "components/Shell.h"
#include "components/Window.h"
#include "model/Ingredient.h"
#include "model/PurhaseIngredient.h"
#include "recipes/CartViewController.h"
#include "recipes/ImageViewController.h"
#include "store/CoreDataManager.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QWheelEvent>

namespace kesto::test
{

namespace
{

/// A phone with the program on it, the recipes prepared.
class ShoppingWindowTest : public WindowFixture
{
protected:
    void SetUp() override
    {
        start(Device::Phone, QSize(390, 844), QStringLiteral("en"));
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return program_->window().presentedViewControllers().isEmpty(); }, 60'000));
    }
    template <class Screen, class... Arguments>
    Screen &open(Arguments &&...arguments)
    {
        auto screen = std::make_unique<Screen>(std::forward<Arguments>(arguments)...);
        Screen &opened = *screen;
        Shell::current()->openDetailViewController(std::move(screen));
        return opened;
    }
    void types(std::initializer_list<Qt::Key> keys)
    {
        for (const Qt::Key key : keys)
            person().presses(key);
    }
};

const QString addOwn = QStringLiteral("Add your own product");

TEST_F(ShoppingWindowTest, TypesTicksAndCounts)
{
    auto &cart = open<CartViewController>();
    const Person user = person();
    ASSERT_TRUE(user.touches(QAccessible::Button, addOwn));
    ASSERT_TRUE(user.waitsToSee(QAccessible::Button, QStringLiteral("Add")));
    types({Qt::Key_T, Qt::Key_E, Qt::Key_A});
    ASSERT_TRUE(user.touches(QAccessible::Button, QStringLiteral("Add")));
    ASSERT_TRUE(user.touches(QAccessible::CheckBox, QStringLiteral("tea")));
    EXPECT_EQ(shoppingList(), QStringList{QStringLiteral("tea*")});

    // A quantity is stored when another thing is touched, and ticks nothing.
    ASSERT_TRUE(user.touches(QAccessible::EditableText, QStringLiteral("Quantity: tea")));
    types({Qt::Key_5});
    EXPECT_EQ(shoppingList(), QStringList{QStringLiteral("tea*")});
    ASSERT_TRUE(user.touches(QAccessible::Button, addOwn));
    ASSERT_TRUE(user.waitsToSee(QAccessible::Button, QStringLiteral("Add")));
    EXPECT_EQ(shoppingList(), QStringList{QStringLiteral("tea=5*")});
    types({Qt::Key_M});
    ASSERT_TRUE(user.touches(QAccessible::Button, QStringLiteral("Add")));

    // The lines change places under the field that is being edited.
    ASSERT_TRUE(user.touches(QAccessible::EditableText, QStringLiteral("Quantity: m")));
    types({Qt::Key_7});
    QTest::qWait(5); // a later instant
    CoreDataManager::sharedManager().addIngredientToCard(QStringLiteral("tea"));
    cart.reloadData();
    types({Qt::Key_Return});
    EXPECT_EQ(shoppingList(), QStringList({QStringLiteral("tea=5*"), QStringLiteral("m=7")}));

    // The keys do the same: Tab from a row leads into its field, Escape takes back what was typed there.
    types({Qt::Key_Home, Qt::Key_Space});
    EXPECT_EQ(shoppingList(), QStringList({QStringLiteral("tea=5"), QStringLiteral("m=7")}));
    types({Qt::Key_Tab, Qt::Key_9, Qt::Key_Escape});
    EXPECT_EQ(shoppingList().constFirst(), QStringLiteral("tea=5"));
    types({Qt::Key_Tab, Qt::Key_9, Qt::Key_Return, Qt::Key_Delete});
    EXPECT_EQ(shoppingList(), QStringList{QStringLiteral("m=7")});
}

TEST_F(ShoppingWindowTest, AFieldThatWasLeftUntouchedShowsTheQuantityOfItsLine)
{
    for (const char *name : {"tea", "salt"}) {
        CoreDataManager::sharedManager().addIngredientToCard(QString::fromLatin1(name));
        QTest::qWait(5); // a later instant
    }
    const std::vector<PurhaseIngredient *> stored = CoreDataManager::sharedManager().purhaseIngredients();
    stored[0]->setCount(QStringLiteral("3 g"));
    stored[1]->setCount(QStringLiteral("5 bags"));
    auto &cart = open<CartViewController>();
    const Person user = person();
    const auto shown = [this](const char *product) {
        const QString name = QStringLiteral("Quantity: ") + QLatin1String(product);
        const QQuickItem *field = item(*program_->view().contentItem(), [&name](const QQuickItem &each) {
            return each.isVisible() && each.property("placeholderText").isValid() && each.property("name") == name;
        });
        return field != nullptr ? field->property("text").toString() : QString();
    };
    ASSERT_TRUE(user.touches(QAccessible::EditableText, QStringLiteral("Quantity: salt")));
    ASSERT_TRUE(user.touches(QAccessible::EditableText, QStringLiteral("Quantity: tea")));
    types({Qt::Key_Escape});
    CoreDataManager::sharedManager().addIngredientToCard(QStringLiteral("tea"));
    cart.reloadData();
    EXPECT_EQ(shoppingList(), QStringList({QStringLiteral("tea=5 bags"), QStringLiteral("salt=3 g")}));
    EXPECT_EQ(shown("tea"), QStringLiteral("5 bags"));
    EXPECT_EQ(shown("salt"), QStringLiteral("3 g"));
}

TEST_F(ShoppingWindowTest, KeepsTheLastRowOfALongListInReach)
{
    ManagedObjectContext &context = *CoreDataManager::sharedManager().managedObjectContext();
    constexpr int size = 10'000;
    for (int i = 0; i < size; ++i) {
        auto &product = context.insert<Ingredient>();
        product.setName(QString::number(i));
        auto &line = context.insert<PurhaseIngredient>();
        line.setIngredient(&product);
        line.setDate(QDateTime::fromMSecsSinceEpoch(1000 * i, Qt::UTC));
    }
    ASSERT_TRUE(context.save());
    open<CartViewController>();
    const Person user = person();
    ASSERT_TRUE(user.waitsToSee(QAccessible::CheckBox, QString::number(size - 1)));
    types({Qt::Key_End});
    EXPECT_TRUE(user.waitsToSee(QAccessible::Button, addOwn));
    EXPECT_TRUE(user.waitsToSee(QAccessible::CheckBox, QStringLiteral("0")));
    ASSERT_TRUE(user.touches(QAccessible::EditableText, QStringLiteral("Quantity: 0")));
    types({Qt::Key_3, Qt::Key_Return});
    EXPECT_EQ(shoppingList().constLast(), QStringLiteral("0=3"));
}

TEST_F(ShoppingWindowTest, LooksCloselyAtAPicture)
{
    auto &base = open<ViewController>();
    base.navigationController()->pushViewController(
        std::make_unique<ImageViewController>(QStringLiteral("app_icon"), QStringLiteral("Icon")), false);
    const Person user = person();
    ASSERT_TRUE(user.waitsToSee(QAccessible::Graphic, QStringLiteral("Icon")));
    QQuickWindow &window = program_->view();
    const QQuickItem *view =
        item(*window.contentItem(), [](const QQuickItem &each) { return each.property("zoom").isValid(); });
    ASSERT_NE(view, nullptr);
    const auto zoom = [&] { return view->property("zoom").toReal(); };
    const QPoint middle(195, 440);
    const auto wheel = [&](int turn) {
        QWheelEvent event(middle, middle, {}, QPoint(0, turn), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window, &event);
    };
    EXPECT_EQ(zoom(), 1);
    wheel(120);
    EXPECT_NEAR(zoom(), 1.2, 0.01);
    wheel(-1200);
    EXPECT_EQ(zoom(), 1) << "never smaller than the room";
    for (int i = 0; i < 20; ++i)
        wheel(120);
    EXPECT_EQ(zoom(), 5);
    types({Qt::Key_0});
    EXPECT_EQ(zoom(), 1);
    QTest::mouseDClick(&window, Qt::LeftButton, {}, middle);
    EXPECT_EQ(zoom(), 2.5);
    QTest::qWait(600); // a new double tap, not the third tap of one
    QTest::mouseDClick(&window, Qt::LeftButton, {}, middle);
    EXPECT_EQ(zoom(), 1);
    types({Qt::Key_Escape});
    EXPECT_EQ(base.navigationController()->topViewController(), &base);
}

} // namespace

} // namespace kesto::test
