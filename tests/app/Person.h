#pragma once

#include <QAccessible>
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
    void presses(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    /// The name of what the keys go to, or of the first thing in it that has one.
    [[nodiscard]] QString focus() const;

    /// Everything that can be seen, one "role: name" a line, for messages.
    [[nodiscard]] std::string view() const;

private:
    [[nodiscard]] QAccessibleInterface *find(QAccessible::Role role, const QString &name) const;
    [[nodiscard]] static bool waitFor(const std::function<bool()> &condition);
    /// Until it is true of one that can be seen.
    QAccessibleInterface *search(const std::function<bool(QAccessibleInterface &)> &wanted) const;

    QQuickWindow &window_;
};

} // namespace kesto::test
