#include "app/WindowFixture.h"
#include "components/SideMenuContainer.h"
#include "components/Window.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>

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

/// Every text at twice its size, on windows so high that no list has a row out of sight.
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
    /// Complains of every text that can't be read whole, and of every two that overlap.
    void expectReadable(const ViewController &controller)
    {
        QQuickItem *view = item(*program_->view().contentItem(), [&controller](const QQuickItem &each) {
            return each.property("controller").value<ViewController *>() == &controller;
        });
        ASSERT_NE(view, nullptr);
        texts_.clear();
        look(*view);
        EXPECT_GT(texts_.size(), 8) << "nothing was looked at";
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
        texts_.append({text, item.mapRectToScene(QRectF(0, 0, painted.width(), item.height()))});
        for (QQuickItem *around = item.parentItem(); around != nullptr; around = around->parentItem()) {
            if (around->width() <= 0 || around->height() <= 0)
                continue;
            const QRectF place = item.mapRectToItem(around, QRectF(0, 0, item.width(), item.height()));
            EXPECT_TRUE(place.left() >= -1 && place.right() <= around->width() + 1 && place.top() >= -1 &&
                        place.bottom() <= around->height() + 1)
                << words << " sticks out of " << around->metaObject()->className();
        }
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

INSTANTIATE_TEST_SUITE_P(Phones, TextSizeTest,
                         testing::Values(Size{QSize(390, 3200), QStringLiteral("ru")},
                                         Size{QSize(390, 3200), QStringLiteral("en")},
                                         Size{QSize(320, 3600), QStringLiteral("ru")}));

} // namespace

} // namespace kesto::test
