#pragma once

#include "components/AlertCenter.h"
#include "components/BarButtonItem.h"
#include "components/NavigationController.h"
#include "components/Window.h"
#include "model/Ingredient.h"
#include "model/PurhaseIngredient.h"
#include "store/StoreFixture.h"

#include <QDir>

namespace kesto::test
{

inline QString utf8(const char *text) { return QString::fromUtf8(text); }

/// Resources of a test's own beside the shipped texts.
class ShopResources
{
public:
    ShopResources()
    {
        const QDir shipped(QStringLiteral(KESTO_RESOURCES_FOLDER));
        for (const QString &folder : {QStringLiteral("ru.lproj"), QStringLiteral("en.lproj")})
            EXPECT_TRUE(QFile::link(shipped.filePath(folder), folder_.filePath(folder)));
        EXPECT_TRUE(QDir(folder_.path()).mkpath(QStringLiteral("images")));
    }

    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(folder_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    [[nodiscard]] QString path() const { return folder_.path(); }

private:
    QTemporaryDir folder_;
};

/// A program in whose window screens of the recipes are.
class ShoppingFixture : public StoreFixture
{
public:
    explicit ShoppingFixture(TestPlatform::Options options = {})
        : StoreFixture(std::move(options))
    {
        window().setSize({390, 844});
    }
    ~ShoppingFixture() { window().setRootViewController(nullptr); }
    ShoppingFixture(const ShoppingFixture &) = delete;
    ShoppingFixture &operator=(const ShoppingFixture &) = delete;

    [[nodiscard]] static Window &window() { return Window::sharedWindow(); }
    static void turnEventLoop()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// On a stack over an empty screen, and visible.
    template <class Screen>
    Screen &show(std::unique_ptr<Screen> screen)
    {
        Screen &shown = *screen;
        auto stack = std::make_unique<NavigationController>(std::make_unique<ViewController>());
        navigation = stack.get();
        stack->pushViewController(std::move(screen), false);
        window().setRootViewController(std::move(stack));
        return shown;
    }

    [[nodiscard]] static ShownAlert *alert() { return AlertCenter::sharedCenter().current(); }
    /// What is asked: "title: button, button …"; the one that cancels in round brackets, the red one with an "!".
    [[nodiscard]] static QString question()
    {
        const ShownAlert *shown = alert();
        if (shown == nullptr)
            return {};
        QStringList buttons = shown->buttonTitles();
        if (const int cancel = shown->cancelButtonIndex(); cancel >= 0)
            buttons[cancel] = u'(' + buttons[cancel] + u')';
        if (const int red = shown->destructiveButtonIndex(); red >= 0)
            buttons[red] += u'!';
        return shown->title() + QStringLiteral(": ") + buttons.join(QStringLiteral(", "));
    }
    static void answer(const char *button)
    {
        ASSERT_NE(alert(), nullptr);
        const auto index = alert()->buttonTitles().indexOf(utf8(button));
        ASSERT_GE(index, 0) << button;
        alert()->answer(static_cast<int>(index));
    }

    /// The names on the shopping list, from the top.
    [[nodiscard]] QStringList cart()
    {
        QStringList names;
        for (const PurhaseIngredient *line : manager().purhaseIngredients())
            names.append(line->ingredient() != nullptr ? line->ingredient()->name() : QStringLiteral("?"));
        return names;
    }
    void addToCart(const QString &text)
    {
        platform.clock().advance(1);
        manager().addIngredientToCard(text);
    }

    NavigationController *navigation = nullptr;
};

inline QStringList images(const QList<BarButtonItem *> &items)
{
    QStringList names;
    for (const BarButtonItem *item : items)
        names.append(item->image().isEmpty() ? item->title() : item->image());
    return names;
}

} // namespace kesto::test
