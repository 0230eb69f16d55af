#pragma once

#include <QAccessible>
#include <QList>
#include <QRect>
#include <QString>

#include <gtest/gtest.h>

#include <functional>

class QQuickWindow;

namespace kesto::test
{

/// Somebody before the window. Knows what is in it as a screen reader does, by roles and names, and touches and types.
/// What is looked for may take ten seconds to come; what does not come is told with all that can be seen.
class Person
{
public:
    explicit Person(QQuickWindow &window)
        : window_(window)
    {
    }

    [[nodiscard]] testing::AssertionResult sees(QAccessible::Role role, const QString &name) const
    {
        return told(find(role, name) != nullptr, name);
    }
    [[nodiscard]] testing::AssertionResult waitsToSee(QAccessible::Role role, const QString &name) const;
    [[nodiscard]] testing::AssertionResult waitsUntilGone(QAccessible::Role role, const QString &name) const;
    /// Clicks into the middle of it when it has come to rest; false when it does not come.
    [[nodiscard]] testing::AssertionResult touches(QAccessible::Role role, const QString &name) const;
    /// Puts a finger into the middle of it, when it has come to rest, and draws it along; false when it does not come.
    [[nodiscard]] testing::AssertionResult draws(QAccessible::Role role, const QString &name,
                                                 const QPoint &along) const;
    /// Takes one thing to the height of another.
    [[nodiscard]] testing::AssertionResult drags(QAccessible::Role role, const QString &name, QAccessible::Role toRole,
                                                 const QString &toName) const;
    /// Turns the mouse wheel over the place, a fraction of the window's width and height, until the thing can be seen.
    [[nodiscard]] testing::AssertionResult scrollsTo(QAccessible::Role role, const QString &name,
                                                     QPointF place = {0.5, 0.6}) const;
    void types(const QString &text) const;
    /// Where everything of a role that can be seen stands, from the top of the window on.
    [[nodiscard]] QList<QRect> places(QAccessible::Role role) const;
    void presses(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// The name of what the keys go to, or of the first thing in it that has one.
    [[nodiscard]] QString focus() const;

private:
    /// A failure names what was looked for and everything that can be seen, one "role: name" a line.
    [[nodiscard]] testing::AssertionResult told(bool done, const QString &name) const;
    [[nodiscard]] QAccessibleInterface *find(QAccessible::Role role, const QString &name) const;
    /// Its place when it has come to rest; invalid when it does not come.
    [[nodiscard]] QRect placeAtRest(QAccessible::Role role, const QString &name) const;
    [[nodiscard]] static bool waitFor(const std::function<bool()> &condition);
    /// Until it is true of one that can be seen.
    QAccessibleInterface *search(const std::function<bool(QAccessibleInterface &)> &wanted) const;

    QQuickWindow &window_;
};

} // namespace kesto::test
