#include "Screens.h"

#include "components/BKPasscodeViewController.h"

#include <QElapsedTimer>

namespace kesto::test
{

namespace
{

/// Knows the passcode; counts failures; may lock, and may answer later.
class Keeper : public BKPasscodeViewControllerDelegate
{
public:
    QString passcode = QStringLiteral("0420");
    unsigned failures = 0;
    std::optional<QDateTime> lockedUntil;
    bool answersLater = false;
    QList<std::function<void(bool)>> open;
    QStringList finished;
    QStringList asked;
    std::function<void()> onFailure;

    void passcodeViewController(BKPasscodeViewController &, const QString &authenticatePasscode,
                                const std::function<void(bool)> &resultHandler) override
    {
        asked.append(authenticatePasscode);
        if (answersLater)
            open.append(resultHandler);
        else
            resultHandler(authenticatePasscode == passcode);
    }
    void passcodeViewController(BKPasscodeViewController &, const QString &didFinishWithPasscode) override
    {
        finished.append(didFinishWithPasscode);
    }
    void passcodeViewControllerDidFailAttempt(BKPasscodeViewController &) override
    {
        ++failures;
        if (onFailure)
            onFailure();
    }
    unsigned passcodeViewControllerNumberOfFailedAttempts(BKPasscodeViewController &) override { return failures; }
    std::optional<QDateTime> passcodeViewControllerLockUntilDate(BKPasscodeViewController &) override
    {
        return lockedUntil;
    }
};

} // namespace

class BKPasscodeViewControllerTest : public ScreensTest
{
protected:
    using Type = BKPasscodeViewController::Type;

    BKPasscodeViewController *entry(Type type)
    {
        auto made = std::make_unique<BKPasscodeViewController>(type, &keeper);
        BKPasscodeViewController *controller = made.get();
        window().setRootViewController(std::move(made));
        QObject::connect(controller, &ViewController::shaken, controller, [this] { ++shakes; });
        return controller;
    }
    static void type(BKPasscodeViewController *controller, const char *digits)
    {
        for (; *digits; ++digits) {
            if (*digits == '<')
                controller->deleteDigit();
            else
                controller->digit(*digits - '0');
        }
    }
    static QString text(const char *key) { return localized(QString::fromLatin1(key)); }

    Keeper keeper;
    int shakes = 0;
};

TEST_F(BKPasscodeViewControllerTest, ANewPasscodeIsTypedTwice)
{
    BKPasscodeViewController *controller = entry(Type::New);
    EXPECT_EQ(controller->prompt(), text("Enter your passcode"));
    type(controller, "<01<17"); // 017
    controller->digit(10);
    controller->digit(-1);
    EXPECT_EQ(controller->enteredLength(), 3);
    type(controller, "7");
    EXPECT_EQ(controller->prompt(), text("Re-enter your passcode"));
    EXPECT_EQ(controller->enteredLength(), 0);
    type(controller, "0178");
    EXPECT_EQ(controller->prompt(), text("Enter your passcode"));
    EXPECT_EQ(controller->message(), text("Passcodes did not match. Try again."));
    EXPECT_FALSE(controller->isFailure());
    EXPECT_EQ(shakes, 1);
    type(controller, "00780078");
    EXPECT_EQ(keeper.finished, QStringList{QStringLiteral("0078")}); // zeros in front stay
    EXPECT_TRUE(keeper.asked.isEmpty());
    EXPECT_FALSE(controller->isInputEnabled());
    type(controller, "1111<");
    EXPECT_EQ(controller->enteredLength(), 0);
    EXPECT_EQ(keeper.finished.size(), 1);
}

TEST_F(BKPasscodeViewControllerTest, AChangeAsksForTheOldOneAndWantsAnother)
{
    BKPasscodeViewController *controller = entry(Type::Change);
    EXPECT_EQ(controller->prompt(), text("Enter your old passcode"));
    type(controller, "1234");
    EXPECT_EQ(controller->prompt(), text("Enter your old passcode"));
    EXPECT_TRUE(controller->isFailure());
    EXPECT_EQ(controller->message(), QStringLiteral("Неудачных попыток: 1"));
    type(controller, "0420");
    EXPECT_EQ(controller->prompt(), text("Enter your new passcode"));
    EXPECT_TRUE(controller->message().isEmpty());
    type(controller, "0420");
    EXPECT_EQ(controller->message(), text("Enter a different passcode. Cannot re-use the same passcode."));
    EXPECT_EQ(controller->prompt(), text("Enter your new passcode"));
    type(controller, "11112222"); // differ
    EXPECT_EQ(controller->prompt(), text("Enter your new passcode"));
    type(controller, "99999999");
    EXPECT_EQ(keeper.finished, QStringList{QStringLiteral("9999")});
    EXPECT_EQ(keeper.asked, (QStringList{QStringLiteral("1234"), QStringLiteral("0420")}));
    EXPECT_EQ(shakes, 3);
}

TEST_F(BKPasscodeViewControllerTest, ACheckRejectsAnyNumberOfTimes)
{
    BKPasscodeViewController *controller = entry(Type::Check);
    for (int attempt = 0; attempt < 20; ++attempt)
        type(controller, "9999");
    EXPECT_EQ(keeper.failures, 20U);
    EXPECT_EQ(shakes, 20);
    EXPECT_TRUE(keeper.finished.isEmpty());
    type(controller, "0420");
    EXPECT_EQ(keeper.finished, QStringList{QStringLiteral("0420")});
}

TEST_F(BKPasscodeViewControllerTest, NothingIsTakenUntilTheLockOutIsOver)
{
    keeper.failures = 6;
    keeper.lockedUntil = platform.clock().now().addSecs(60); // from an earlier visit
    BKPasscodeViewController *controller = entry(Type::Change);
    const struct
    {
        qint64 secondsLeft;
        const char *message;
    } times[] = {{86400, "Повторите через 1440 мин"},
                 {301, "Повторите через 6 мин"},
                 {300, "Повторите через 5 мин"},
                 {60, "Повторите через 1 мин"},
                 {1, "Повторите через 1 мин"}};
    for (const auto &each : times) {
        keeper.lockedUntil = platform.clock().now().addSecs(each.secondsLeft);
        type(controller, "0");
        EXPECT_EQ(controller->message(), QString::fromUtf8(each.message));
        EXPECT_TRUE(controller->isFailure());
        EXPECT_FALSE(controller->isInputEnabled());
        EXPECT_EQ(controller->enteredLength(), 0);
    }
    platform.clock().advanceMSecs(999);
    type(controller, "0420");
    EXPECT_TRUE(keeper.asked.isEmpty());
    platform.clock().advanceMSecs(1);
    type(controller, "0");
    EXPECT_TRUE(controller->isInputEnabled());
    EXPECT_EQ(controller->message(), QStringLiteral("Неудачных попыток: 6"));
    type(controller, "420");
    EXPECT_EQ(controller->prompt(), text("Enter your new passcode"));
}

TEST_F(BKPasscodeViewControllerTest, AFailureMayLockAtOnceAndTheScreenTellsByItselfWhenItIsOver)
{
    keeper.onFailure = [this] {
        if (keeper.failures == 6)
            keeper.lockedUntil = platform.clock().now().addSecs(60);
    };
    BKPasscodeViewController *controller = entry(Type::Change);
    for (int attempt = 0; attempt < 8; ++attempt)
        type(controller, "5555");
    EXPECT_EQ(keeper.failures, 6U);
    EXPECT_EQ(controller->message(), QStringLiteral("Повторите через 1 мин"));
    platform.clock().advance(60);
    // Nobody touches it: a real second later it looks at the clock.
    QElapsedTimer patience;
    patience.start();
    while (!controller->isInputEnabled() && patience.elapsed() < 10'000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    EXPECT_TRUE(controller->isInputEnabled());
    EXPECT_EQ(controller->message(), QStringLiteral("Неудачных попыток: 6"));
}

TEST_F(BKPasscodeViewControllerTest, ALateAnswerCountsOnceAndNotAfterTheEnd)
{
    keeper.answersLater = true;
    QPointer<BKPasscodeViewController> controller = entry(Type::Check);
    type(controller, "1111");
    EXPECT_FALSE(controller->isInputEnabled());
    type(controller, "2222"); // not taken
    ASSERT_EQ(keeper.open.size(), 1);
    keeper.open.at(0)(false);
    keeper.open.at(0)(true);
    EXPECT_EQ(keeper.failures, 1U);
    EXPECT_TRUE(keeper.finished.isEmpty());
    type(controller, "0420");
    keeper.open.at(0)(true); // of the first attempt
    EXPECT_TRUE(keeper.finished.isEmpty());
    keeper.open.at(1)(true);
    EXPECT_EQ(keeper.finished, QStringList{QStringLiteral("0420")});

    controller = entry(Type::Check);
    type(controller, "0420");
    window().setRootViewController(nullptr);
    settle();
    EXPECT_FALSE(controller);
    keeper.open.at(2)(true);
    EXPECT_EQ(keeper.finished.size(), 1);
}

} // namespace kesto::test
