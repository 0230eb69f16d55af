#include "DishesFixture.h"

#include <QPointer>
#include <QSignalSpy>

namespace kesto::test
{
namespace
{

class DishChoiceTest : public DishesFixture
{
};

TEST_F(DishChoiceTest, CheckMarksOfTheGridAndOfTheDishAgree)
{
    for (const AddingDelegate::Into into :
         {AddingDelegate::Into::Nothing, AddingDelegate::Into::Plan, AddingDelegate::Into::Journal}) {
        SCOPED_TRACE(static_cast<int>(into));
        const bool taken = into != AddingDelegate::Into::Nothing;
        AddingDelegate delegate(program, into);
        auto made = std::make_unique<DishesViewController>(0, &program.day(), 0);
        made->setDelegate(&delegate);
        DishesViewController &screen = show(std::move(made));
        EXPECT_EQ(titles(screen), QStringLiteral("б ж"));
        for (const auto &[row, after] : {std::pair(1, "б ж!"), {0, "б! ж!"}}) {
            screen.selectItem(row);
            EXPECT_FALSE(isSelected());
            touchCheckMark();
            EXPECT_EQ(isSelected(), taken);
            stack->popViewController(false);
            EXPECT_EQ(titles(screen), taken ? QString::fromUtf8(after) : QStringLiteral("б ж"));
            screen.selectItem(row);
            EXPECT_EQ(isSelected(), taken);
            touchCheckMark();
            stack->popViewController(false);
        }
        EXPECT_EQ(delegate.added.join(u' '), QStringLiteral("ж ж б б")) << "every touch is heard";
    }
    DishesViewController &again = show(std::make_unique<DishesViewController>(0, &program.day(), 0));
    again.selectItem(0);
    EXPECT_TRUE(isSelected()) << "the journal has it";
    touchCheckMark(); // nobody is there to take it
    EXPECT_TRUE(isSelected());

    // What the grid has taken, the dish's screen shows from the start.
    AddingDelegate delegate(program, AddingDelegate::Into::Plan);
    auto made = std::make_unique<DishesViewController>(0, &program.day(), 2);
    made->setDelegate(&delegate);
    DishesViewController &screen = show(std::move(made));
    screen.selectDishButtonTouchedAtIndexPath(0);
    screen.selectItem(0);
    EXPECT_TRUE(isSelected());
    stack->popViewController(false);
    screen.selectItem(1);
    EXPECT_FALSE(isSelected());
}

TEST_F(DishChoiceTest, AddModeOffersThePhaseAndMarksWhatTheJournalHas)
{
    program.placeInJournal(program.dish("б"));
    program.plan(program.dish("ж"));
    AddingDelegate delegate(program, AddingDelegate::Into::Journal);
    auto made = std::make_unique<DishesViewController>(0, &program.day(), 0);
    made->setDelegate(&delegate);
    DishesViewController &screen = show(std::move(made));
    EXPECT_TRUE(screen.addDishMode());
    EXPECT_EQ(titles(screen), QStringLiteral("б! ж")) << "what is planned only does not count";
    EXPECT_TRUE(screen.tiles()->tiles()[0].checkable);
    EXPECT_TRUE(screen.dayAlreadyIncludeDish(program.dish("б")));
    EXPECT_FALSE(screen.dayAlreadyIncludeDish(program.dish("ж")));

    QSignalSpy changed(screen.tiles(), &QAbstractItemModel::dataChanged);
    screen.selectDishButtonTouchedAtIndexPath(1);
    EXPECT_EQ(titles(screen), QStringLiteral("б! ж!"));
    EXPECT_EQ(changed.count(), 1);
    screen.selectDishButtonTouchedAtIndexPath(1);
    EXPECT_EQ(delegate.added, QStringList({QStringLiteral("ж"), QStringLiteral("ж")})) << "the delegate decides";
    screen.selectDishButtonTouchedAtIndexPath(2);
    EXPECT_EQ(delegate.added.size(), 2);

    delegate.into = AddingDelegate::Into::Plan;
    DishesViewController planning(0, &program.day(), 2);
    planning.setDelegate(&delegate);
    EXPECT_EQ(titles(planning), QStringLiteral("а е"));
    planning.selectDishButtonTouchedAtIndexPath(1);
    planning.updateToPeriod(0);
    EXPECT_EQ(titles(planning), QStringLiteral("а е!")) << "what was planned from here";

    delegate.into = AddingDelegate::Into::Nothing;
    DishesViewController none(0, &program.day(), 2);
    none.setDelegate(&delegate);
    EXPECT_EQ(titles(none), QStringLiteral("а е"));
    none.selectDishButtonTouchedAtIndexPath(0);
    EXPECT_EQ(titles(none), QStringLiteral("а е")) << "it was refused";
}

TEST_F(DishChoiceTest, AddModeWithoutAJournalMarksNothing)
{
    program.placeInJournal(program.dish("б"));
    DietDay &other = *DietDay::dietDatWithDate(program.platform.date(2024, 3, 8), program.context()).value();
    EXPECT_EQ(titles(*std::make_unique<DishesViewController>(0, &other, 0)), QStringLiteral("б ж"));
    EXPECT_EQ(titles(*std::make_unique<DishesViewController>(0, nullptr, 0)), QStringLiteral("б ж"));
    DietDay &day = program.day();
    program.context().deleteObject(day);
    EXPECT_EQ(titles(*std::make_unique<DishesViewController>(0, &day, 0)), QStringLiteral("б ж"));
}

TEST_F(DishChoiceTest, ADelegateMayCloseTheScreens)
{
    struct Closing : AddDishDelegate
    {
        void addDish(Dish &) override
        {
            Window::sharedWindow().setRootViewController(nullptr);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    } delegate;
    auto made = std::make_unique<DishesViewController>(0, &program.day(), 0);
    made->setDelegate(&delegate);
    const QPointer<DishesViewController> screen(&show(std::move(made)));
    screen->selectDishButtonTouchedAtIndexPath(0);
    EXPECT_TRUE(screen.isNull());
}

} // namespace
} // namespace kesto::test
