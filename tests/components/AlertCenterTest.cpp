#include "components/AlertCenter.h"
#include "support/TestPlatform.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace kesto::test
{

class AlertCenterTest : public testing::Test
{
protected:
    static AlertCenter &center() { return AlertCenter::sharedCenter(); }
    /// A question with three buttons that notes its answer.
    Alert question(const QString &title, QObject *context = nullptr)
    {
        return {.title = title,
                .buttons = {{.title = QStringLiteral("Отменить"), .role = Alert::Role::Cancel},
                            {.title = QStringLiteral("Начать")},
                            {.title = QStringLiteral("Удалить"), .role = Alert::Role::Destructive}},
                .context = context,
                .answered = [this, title](const AlertAnswer &answer) {
                    answers.append(title + QLatin1Char(':') + answer.buttonTitle +
                                   (answer.isCancel ? QStringLiteral("!") : QString()));
                }};
    }

    TestPlatform platform;
    QStringList answers;
};

TEST_F(AlertCenterTest, AlertsWaitForEachOther)
{
    QStringList shown;
    QObject::connect(&center(), &AlertCenter::currentChanged, &center(),
                     [&] { shown.append(center().current() ? center().current()->title() : QStringLiteral("-")); });
    for (const QString &title : {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")})
        center().show(question(title));
    EXPECT_EQ(center().waitingCount(), 2);
    EXPECT_EQ(center().current()->cancelButtonIndex(), 0);
    EXPECT_EQ(center().current()->destructiveButtonIndex(), 2);
    center().current()->answer(3);
    center().current()->answer(-1);
    center().current()->answer(1);
    center().current()->cancel();
    center().current()->answer(2);
    EXPECT_EQ(center().current(), nullptr);
    EXPECT_EQ(answers,
              (QStringList{QStringLiteral("1:Начать"), QStringLiteral("2:Отменить!"), QStringLiteral("3:Удалить")}));
    EXPECT_EQ(shown, (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("-")}));
}

TEST_F(AlertCenterTest, WhatAnAnswerShowsComesAfterThoseThatWait)
{
    Alert first = question(QStringLiteral("1"));
    first.answered = [this](const AlertAnswer &) {
        EXPECT_EQ(center().current(), nullptr);
        center().show(question(QStringLiteral("from 1")));
        center().show(question(QStringLiteral("from 1 too")));
    };
    center().show(first);
    center().show(question(QStringLiteral("2")));
    center().current()->answer(1);
    EXPECT_EQ(center().current()->title(), QStringLiteral("2"));
    center().current()->answer(1);
    EXPECT_EQ(center().current()->title(), QStringLiteral("from 1"));
    center().current()->answer(1);
    EXPECT_EQ(center().current()->title(), QStringLiteral("from 1 too"));
    center().current()->answer(1);
    EXPECT_EQ(center().current(), nullptr);

    center().show(first); // and at once when none waits
    center().current()->answer(0);
    EXPECT_EQ(center().current()->title(), QStringLiteral("from 1"));
    EXPECT_EQ(center().waitingCount(), 1);
}

TEST_F(AlertCenterTest, AnAnswerForSomebodyGoneIsDropped)
{
    auto asker = std::make_unique<QObject>();
    center().show(question(QStringLiteral("shown"), asker.get()));
    center().show(question(QStringLiteral("waiting"), asker.get()));
    showAlert({}, QStringLiteral("a message"), asker.get(), {});
    center().show(question(QStringLiteral("of nobody")));
    center().show(question(QStringLiteral("the last"), asker.get()));
    asker.reset();
    center().current()->answer(1);
    ASSERT_NE(center().current(), nullptr);
    EXPECT_EQ(center().current()->message(), QStringLiteral("a message")) << "the question before it is of no use";
    EXPECT_EQ(center().current()->context(), nullptr);
    center().current()->answer(0);
    center().current()->answer(1);
    EXPECT_EQ(center().current(), nullptr);
    EXPECT_EQ(answers, QStringList{QStringLiteral("of nobody:Начать")});
}

TEST_F(AlertCenterTest, OneAlertIsAnsweredOnce)
{
    center().show(question(QStringLiteral("1")));
    ShownAlert *alert = center().current();
    alert->answer(1);
    alert->answer(2); // the second of two quick touches: the object is still there
    alert->cancel();
    EXPECT_EQ(answers.size(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST_F(AlertCenterTest, AMessageHasOneButtonThatAlsoCancels)
{
    showAlert(QStringLiteral("Спасибо"), QStringLiteral("Большое спасибо"), nullptr,
              [this](const AlertAnswer &answer) { answers.append(answer.buttonTitle); });
    EXPECT_EQ(center().current()->buttonTitles(), QStringList{localized(QStringLiteral("Ok"))});
    center().current()->cancel();
    EXPECT_EQ(answers, QStringList{localized(QStringLiteral("Ok"))});

    Alert choice = question(QStringLiteral("no way out"));
    choice.buttons.removeFirst();
    center().show(choice);
    center().current()->cancel();
    EXPECT_NE(center().current(), nullptr);
}

TEST_F(AlertCenterTest, TheAnswerCarriesWhatWasTypedAndPicked)
{
    AlertAnswer got;
    const auto keep = [&](const AlertAnswer &answer) { got = answer; };
    center().show({.buttons = {{.title = QStringLiteral("Ok")}},
                   .textField = Alert::TextField{.placeholder = QStringLiteral("Название блюда"),
                                                 .text = QStringLiteral("суп"),
                                                 .keyboard = Keyboard::Type::Email},
                   .answered = keep});
    EXPECT_TRUE(center().current()->hasTextField());
    EXPECT_EQ(center().current()->text(), QStringLiteral("суп"));
    EXPECT_EQ(center().current()->keyboard(), Keyboard::Type::Email);
    center().current()->setText(QStringLiteral("борщ"));
    center().current()->answer(0);
    EXPECT_EQ(got.text, QStringLiteral("борщ"));
    EXPECT_FALSE(got.date.isValid());

    center().show({.buttons = {{.title = QStringLiteral("Ok")}},
                   .dateField = Alert::DateField{.mode = DatePicker::Mode::Time,
                                                 .date = platform.date(2024, 3, 7, 7, 8),
                                                 .minuteInterval = 5},
                   .answered = keep});
    center().current()->datePicker()->components().at(0)->select(21);
    center().current()->answer(0);
    EXPECT_EQ(got.date, platform.date(2024, 3, 7, 21, 5));
    EXPECT_TRUE(got.text.isEmpty());

    center().show({.dateField = Alert::DateField{}, .answered = keep});
    center().current()->answer(0);
    EXPECT_EQ(got.date, platform.clock().now());
}

} // namespace kesto::test
