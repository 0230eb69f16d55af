#include "app/Person.h"

#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

namespace kesto::test
{

namespace
{

QAccessibleInterface *searchBelow(QAccessibleInterface *parent, const QRect &area,
                                  const std::function<bool(QAccessibleInterface &)> &wanted)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        QAccessibleInterface *child = parent->child(i);
        if (child == nullptr || child->state().invisible)
            continue;
        if (area.contains(child->rect().center()) && wanted(*child))
            return child;
        if (QAccessibleInterface *found = searchBelow(child, area, wanted))
            return found;
    }
    return nullptr;
}

QString nameWithin(QQuickItem &item)
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(static_cast<QObject *>(&item));
    QString name;
    if (accessible != nullptr && !accessible->state().invisible)
        name = accessible->text(QAccessible::Name);
    const QList<QQuickItem *> children = item.childItems();
    for (auto child = children.begin(); name.isEmpty() && child != children.end(); ++child)
        name = nameWithin(**child);
    return name;
}

} // namespace

QAccessibleInterface *Person::search(const std::function<bool(QAccessibleInterface &)> &wanted) const
{
    QAccessibleInterface *root = QAccessible::queryAccessibleInterface(&window_);
    return root != nullptr ? searchBelow(root, root->rect(), wanted) : nullptr;
}

QAccessibleInterface *Person::find(QAccessible::Role role, const QString &name) const
{
    return search([&](QAccessibleInterface &one) { return one.role() == role && one.text(QAccessible::Name) == name; });
}

bool Person::waitFor(const std::function<bool()> &condition) { return QTest::qWaitFor(condition, 10'000); }

bool Person::waitsToSee(QAccessible::Role role, const QString &name) const
{
    return waitFor([&] { return sees(role, name); });
}

bool Person::waitsUntilGone(QAccessible::Role role, const QString &name) const
{
    return waitFor([&] { return !sees(role, name); });
}

bool Person::touches(QAccessible::Role role, const QString &name) const
{
    QRect before;
    const bool rests = waitFor([&] {
        QTest::qWait(50);
        QAccessibleInterface *found = find(role, name);
        const QRect now = found != nullptr ? found->rect() : QRect();
        return now.isValid() && std::exchange(before, now) == now;
    });
    if (rests)
        QTest::mouseClick(&window_, Qt::LeftButton, {}, window_.mapFromGlobal(before.center()));
    return rests;
}

void Person::presses(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(&window_, key, modifiers);
    QCoreApplication::processEvents();
}

QString Person::focus() const
{
    QQuickItem *focused = window_.activeFocusItem();
    return focused != nullptr ? nameWithin(*focused) : QString();
}

std::string Person::view() const
{
    std::string lines = "what can be seen:\n";
    search([&](QAccessibleInterface &one) {
        lines += std::to_string(one.role()) + ": " + one.text(QAccessible::Name).toStdString() + '\n';
        return false;
    });
    return lines;
}

} // namespace kesto::test
