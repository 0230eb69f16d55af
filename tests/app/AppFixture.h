#pragma once

#include "app/AppDelegate.h"
#include "app/RootViewConrollerViewController.h"
#include "components/AlertCenter.h"
#include "components/Window.h"
#include "store/Keys.h"
#include "support/LogCapture.h"
#include "support/TestPlatform.h"

#include <gtest/gtest.h>

#include <QSizeF>

#include <memory>

namespace kesto::test
{

inline constexpr QSizeF phone(390, 844);
inline constexpr QSizeF tabletPortrait(820, 1180);
inline constexpr QSizeF tabletLandscape(1180, 820);

/// The program from its launch on, without pixels. The catalogue of this version counts as imported unless a case
/// forgets that.
class AppFixture : public testing::Test
{
protected:
    explicit AppFixture(TestPlatform::Options options = {});
    ~AppFixture() override;

    AppDelegate &launch(const QSizeF &size = phone, const AppDelegate::LaunchOptions &options = {});
    /// Ends the program; the folder stays.
    void quit();
    void restart(const QString &version);

    [[nodiscard]] UserDefaults &defaults() { return platform_.userDefaults(); }
    [[nodiscard]] static Window &window() { return Window::sharedWindow(); }
    [[nodiscard]] RootViewConrollerViewController &menu() { return *delegate_->rootMenu(); }
    void startDiet();

    /// The screen in the centre of a phone or in the detail of a tablet; the first of its stack.
    [[nodiscard]] static ViewController *mainScreen();
    [[nodiscard]] static QString mainTitle() { return mainScreen()->title(); }

    /// The message of the alert that is shown, or null.
    [[nodiscard]] static QString alertMessage();
    /// Presses the only button of the alert, which has this title.
    static void answerAlert(const QString &onlyButton);

    static void turnEventLoop();

    TestPlatform platform_;
    std::unique_ptr<AppDelegate> delegate_;
};

} // namespace kesto::test
