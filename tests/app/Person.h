#pragma once

#include <QAccessible>
#include <QList>
#include <QRect>
#include <QString>

#include <functional>

class QQuickWindow;

namespace kesto::test
{

/// Somebody before the window. Knows what is in it as a screen reader does, by roles and names, and touches and types.
/// What is looked for may take ten seconds to come.
class Person
{
public:
    explicit Person(QQuickWindow &window)
        : window_(window)
    {
    }

    [[nodiscard]] bool sees(QAccessible::Role role, const QString &name) const { return find(role, name) != nullptr; }
    [[nodiscard]] bool waitsToSee(QAccessible::Role role, const QString &name) const;
    [[nodiscard]] bool waitsUntilGone(QAccessible::Role role, const QString &name) const;
    /// Clicks into the middle of it when it has come to rest; false when it does not come.
    [[nodiscard]] bool touches(QAccessible::Role role, const QString &name) const;
    /// Puts a finger into the middle of it, when it has come to rest, and draws it along; false when it does not come.
    [[nodiscard]] bool draws(QAccessible::Role role, const QString &name, const QPoint &along) const;
    /// Takes one thing to the height of another.
    [[nodiscard]] bool drags(QAccessible::Role role, const QString &name, QAccessible::Role toRole,
                             const QString &toName) const;
    /// Turns the mouse wheel over the place, a fraction of the window's width and height, until the thing can be seen.
    [[nodiscard]] bool scrollsTo(QAccessible::Role role, const QString &name, QPointF place = {0.5, 0.6}) const;
    void types(const QString &text) const;
    /// Where everything of a role that can be seen stands, from the top of the window on.
    [[nodiscard]] QList<QRect> places(QAccessible::Role role) const;
    void presses(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// The name of what the keys go to, or of the first thing in it that has one.
    [[nodiscard]] QString focus() const;

    /// Everything that can be seen, one "role: name" a line, for messages.
    [[nodiscard]] std::string view() const;

private:
    [[nodiscard]] QAccessibleInterface *find(QAccessible::Role role, const QString &name) const;
    /// Its place when it has come to rest; invalid when it does not come.
    [[nodiscard]] QRect placeAtRest(QAccessible::Role role, const QString &name) const;
    [[nodiscard]] static bool waitFor(const std::function<bool()> &condition);
    /// Until it is true of one that can be seen.
    QAccessibleInterface *search(const std::function<bool(QAccessibleInterface &)> &wanted) const;

    QQuickWindow &window_;
};

} // namespace kesto::test
