#include "app/WindowFixture.h"
#include "components/AlertCenter.h"
#include "components/BKPasscodeLockScreenManager.h"
#include "components/Shell.h"
#include "components/SideMenuContainer.h"
#include "components/Window.h"
#include "journal/FoodBalanceRootViewController.h"
#include "journal/JornalHelper.h"
#include "journal/JornalSheduleRootViewController.h"
#include "journal/JornalTabBarController.h"
#include "journal/TimeRowDetailViewController.h"
#include "journal/TimerViewController.h"
#include "journal/WaterBalanceRootViewController.h"
#include "model/TimeRow.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "store/Keys.h"

#include <QFontMetricsF>
#include <QJSValue>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QSignalSpy>

#include <algorithm>

namespace kesto::test
{

namespace
{

struct Size
{
    QSize window;
    QString language;
};

void PrintTo(const Size &size, std::ostream *stream)
{
    *stream << size.window.width() << " " << size.language.toStdString();
}

/// Every text at twice its size.
class TextSizeTest : public WindowFixture, public testing::WithParamInterface<Size>
{
protected:
    struct Text
    {
        QString text;
        QRectF place; ///< of what is painted, in the window
    };

    void open(std::optional<int> daysOfDiet)
    {
        prepare(daysOfDiet);
        start(Device::Phone, GetParam().window, GetParam().language);
        program_->view().setMinimumSize({});
        program_->view().resize(GetParam().window);
        program_->userInterface().appearance().setMotion(false);
        program_->userInterface().appearance().setTextScale(2);
        settle();
    }
    void settle()
    {
        for (int frame = 0; frame < 3; ++frame) {
            QSignalSpy drawn(&program_->view(), &QQuickWindow::frameSwapped);
            program_->view().update();
            EXPECT_TRUE(drawn.wait());
        }
    }
    [[nodiscard]] SideMenuContainer &container()
    {
        return dynamic_cast<SideMenuContainer &>(*program_->window().rootViewController());
    }
    void expectReadable(const ViewController &controller)
    {
        expectReadable(item(*program_->view().contentItem(),
                            [&controller](const QQuickItem &each) {
                                return each.property("controller").value<ViewController *>() == &controller;
                            }),
                       8);
    }
    /// Complains of every text that can't be read whole, of words that are broken, and of every two that overlap.
    void expectReadable(QQuickItem *view, int least)
    {
        ASSERT_NE(view, nullptr);
        texts_.clear();
        look(*view);
        EXPECT_GT(texts_.size(), least) << "nothing was looked at";
        for (qsizetype i = 0; i < texts_.size(); ++i) {
            for (qsizetype k = i + 1; k < texts_.size(); ++k) {
                const QRectF both = texts_[i].place.intersected(texts_[k].place);
                EXPECT_FALSE(both.width() > 2 && both.height() > 2)
                    << texts_[i].text.toStdString() << " is over " << texts_[k].text.toStdString();
            }
        }
    }

    QList<Text> texts_;

private:
    void look(QQuickItem &item)
    {
        if (!item.isVisible() || item.opacity() == 0)
            return;
        const QString text = item.property("text").toString();
        if (item.property("truncated").isValid() && !text.isEmpty())
            expectWhole(item, text);
        for (QQuickItem *child : item.childItems())
            look(*child);
    }

    void expectWhole(QQuickItem &item, const QString &text)
    {
        const std::string words = text.toStdString();
        const QRectF painted(0, 0, item.property("paintedWidth").toReal(), item.property("paintedHeight").toReal());
        EXPECT_FALSE(item.property("truncated").toBool()) << words << " is cut";
        EXPECT_LE(painted.width(), item.width() + 1) << words << " is too wide";
        EXPECT_LE(painted.height(), item.height() + 1) << words << " is too high";
        expectNoBrokenWord(item, text);
        QRectF seen = item.mapRectToScene(QRectF(0, 0, painted.width(), item.height()));
        bool scrolled = false;
        for (QQuickItem *around = item.parentItem(); around != nullptr; around = around->parentItem()) {
            const bool scrolls = around->inherits("QQuickFlickable");
            if (scrolls)
                seen &= around->mapRectToScene(QRectF(0, 0, around->width(), around->height()));
            scrolled =
                scrolled || scrolls || (around->parentItem() && around->parentItem()->inherits("QQuickFlickable"));
            if (around->width() <= 0 || around->height() <= 0)
                continue;
            const QRectF place = item.mapRectToItem(around, QRectF(0, 0, item.width(), item.height()));
            EXPECT_TRUE(place.left() >= -1 && place.right() <= around->width() + 1) << words << where(*around);
            EXPECT_TRUE(scrolled || (place.top() >= -1 && place.bottom() <= around->height() + 1))
                << words << where(*around);
        }
        if (!seen.isEmpty())
            texts_.append({text, seen});
    }
    static std::string where(const QQuickItem &around)
    {
        return std::string(" sticks out of ") + around.metaObject()->className();
    }

    static void expectNoBrokenWord(const QQuickItem &item, const QString &text)
    {
        QFont font = item.property("font").value<QFont>();
        font.setPixelSize(item.property("fontInfo").value<QJSValue>().property(QStringLiteral("pixelSize")).toInt());
        static const QRegularExpression between(QStringLiteral("[\\s/—–-]+"));
        const QStringList words = text.split(between, Qt::SkipEmptyParts);
        for (const QString &word : words)
            EXPECT_LE(QFontMetricsF(font).horizontalAdvance(word), item.width() + 1)
                << word.toStdString() << " is broken";
    }
};

TEST_P(TextSizeTest, TheMenuAndTheCalculator)
{
    ASSERT_NO_FATAL_FAILURE(open(std::nullopt));
    expectReadable(*container().centerViewController());
    container().setMenuOpen(true);
    settle();
    expectReadable(*container().leftMenuViewController());
}

TEST_P(TextSizeTest, TheCalendar)
{
    ASSERT_NO_FATAL_FAILURE(open(20));
    expectReadable(*container().centerViewController());
}

TEST_P(TextSizeTest, WaterProteinAndTimer)
{
    ASSERT_NO_FATAL_FAILURE(open(3));
    auto opened = JornalHelper::jornalTabBarVCForToday();
    JornalTabBarController &jornal = *opened;
    Shell::current()->openDetailViewController(std::move(opened));
    jornal.water()->picker()->touch(8);
    jornal.protein()->meatButtonTouched(3);
    auto &timer = dynamic_cast<TimerViewController &>(*jornal.viewControllers().at(JornalTabBarController::TimerTab));
    for (const int tab :
         {JornalTabBarController::WaterTab, JornalTabBarController::ProteinTab, JornalTabBarController::TimerTab}) {
        jornal.setSelectedIndex(tab);
        settle();
        expectReadable(*jornal.viewControllers().at(tab));
    }
    timer.start();
    timer.updateControls();
    settle();
    expectReadable(item(*program_->view().contentItem(),
                        [&timer](const QQuickItem &each) {
                            return each.property("controller").value<ViewController *>() == &timer;
                        }),
                   2);
    jornal.setSelectedIndex(JornalTabBarController::WaterTab);
    jornal.water()->actionButtonTouched(WaterBalanceRootViewController::VolumeAction);
    settle();
    expectReadable(*jornal.water()->presentedViewController());
}

TEST_P(TextSizeTest, TheJournalAndTheEditorOfARow)
{
    ASSERT_NO_FATAL_FAILURE(open(1));
    auto made = JornalHelper::jornalTabBarVCForToday();
    JornalTabBarController &jornal = *made;
    TimeRow &row = *jornal.shedule()->content()[2];
    TimeRowDetailViewController editor(row);
    editor.waterValueChanged(8);
    for (const int tag : {2, 102, 4, 8, 108})
        editor.endEditing(tag, QStringLiteral("12345.5"));
    editor.endEditing(TimeRowDetailViewController::otherTag, QStringLiteral("Позвонить врачу"));
    row.setRemind(true);
    Shell::current()->openDetailViewController(std::move(made));
    settle();
    expectReadable(*container().centerViewController());
    jornal.openRow(row);
    settle();
    expectReadable(*container().centerViewController());
}

/// The smallest windows: no word of what asks is lost, nor is one of its buttons.
class SmallWindowTest : public TextSizeTest
{
};

TEST_P(SmallWindowTest, AQuestionForADay)
{
    ASSERT_NO_FATAL_FAILURE(open(std::nullopt));
    const QString begin = localized(QStringLiteral("Начать"));
    const QString cancel = localized(QStringLiteral("Отменить"));
    AlertCenter::sharedCenter().show({.title = localized(QStringLiteral("Начать диету с")),
                                      .buttons = {{cancel, Alert::Role::Cancel}, {begin}},
                                      .dateField = Alert::DateField{}});
    settle();
    expectReadable(
        item(*program_->view().contentItem(),
             [](const QQuickItem &each) {
                 return QLatin1String(each.metaObject()->className()).startsWith(QLatin1String("AlertDialog"));
             }),
        6);
    const QDate today = Platform::current().calendar().dayOf(QDateTime::currentDateTimeUtc());
    for (const QString &text : {begin, cancel, QString::number(today.day()), QString::number(today.year())}) {
        EXPECT_TRUE(std::any_of(texts_.begin(), texts_.end(),
                                [&](const Text &each) { return each.text == text && each.place.height() > 24; }))
            << text.toStdString() << " is out of sight";
    }
}

TEST_P(SmallWindowTest, TheLock)
{
    ASSERT_NO_FATAL_FAILURE(open(std::nullopt));
    Platform::current().userDefaults().setValue(QStringLiteral("1234"), Keys::kPasscodeKey);
    BKPasscodeLockScreenManager::sharedManager().showLockScreen(false);
    settle();
    expectReadable(*program_->window().lockScreen());
    for (const Qt::Key key : {Qt::Key_9, Qt::Key_9, Qt::Key_9, Qt::Key_9})
        person().presses(key);
    settle();
    expectReadable(*program_->window().lockScreen());
}

INSTANTIATE_TEST_SUITE_P(Phones, SmallWindowTest,
                         testing::Values(Size{QSize(320, 480), QStringLiteral("ru")},
                                         Size{QSize(320, 480), QStringLiteral("en")},
                                         Size{QSize(844, 390), QStringLiteral("ru")}));

// So high that no list has a row out of sight.
INSTANTIATE_TEST_SUITE_P(Phones, TextSizeTest,
                         testing::Values(Size{QSize(390, 3200), QStringLiteral("ru")},
                                         Size{QSize(390, 3200), QStringLiteral("en")},
                                         Size{QSize(320, 3600), QStringLiteral("ru")}));

} // namespace

} // namespace kesto::test
