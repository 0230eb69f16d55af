#pragma once

#include "components/NavigationController.h"
#include "components/Window.h"
#include "support/TestPlatform.h"

#include <QCoreApplication>
#include <QEvent>
#include <QStringList>

#include <gtest/gtest.h>

#include <functional>

namespace kesto::test
{

/// A screen that writes down what happens to it: "name load", "name +" (will appear), "name ." (did appear), "name -"
/// (will disappear), "name x" (destroyed).
class Screen : public ViewController
{
    Q_OBJECT
public:
    Screen(const QString &name, QStringList &diary)
        : diary_(diary)
    {
        setTitle(name);
    }
    ~Screen() override { write("x"); }

    std::function<void()> onAppear;
    bool closable = true;
    [[nodiscard]] bool canClose() const override { return closable; }

protected:
    void viewDidLoad() override { write("load"); }
    void viewWillAppear() override
    {
        write("+");
        if (onAppear)
            std::exchange(onAppear, {})();
    }
    void viewDidAppear() override { write("."); }
    void viewWillDisappear() override { write("-"); }

private:
    void write(const char *what) { diary_.append(title() + QLatin1Char(' ') + QLatin1String(what)); }
    QStringList &diary_;
};

/// A window and a diary of its screens.
class ScreensTest : public testing::Test
{
protected:
    std::unique_ptr<Screen> screen(const char *name)
    {
        return std::make_unique<Screen>(QString::fromLatin1(name), diary);
    }
    /// What was written since the last call, after the event loop had its chance to destroy.
    std::string events()
    {
        settle();
        return std::exchange(diary, {}).join(QStringLiteral(", ")).toStdString();
    }
    static void settle() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
    /// A stack in the window; the diary begins after.
    NavigationController *stackInWindow(const char *name)
    {
        auto made = std::make_unique<NavigationController>(screen(name));
        NavigationController *stack = made.get();
        window().setRootViewController(std::move(made));
        events();
        return stack;
    }
    static Window &window() { return Window::sharedWindow(); }

    QStringList diary; // outlives the screens
    TestPlatform platform;
};

} // namespace kesto::test
