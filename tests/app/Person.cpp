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

testing::AssertionResult Person::waitsToSee(QAccessible::Role role, const QString &name) const
{
    return told(waitFor([&] { return find(role, name) != nullptr; }), name);
}

testing::AssertionResult Person::waitsUntilGone(QAccessible::Role role, const QString &name) const
{
    return told(waitFor([&] { return find(role, name) == nullptr; }), name);
}

QRect Person::placeAtRest(QAccessible::Role role, const QString &name) const
{
    QRect before;
    const bool rests = waitFor([&] {
        QTest::qWait(50);
        QAccessibleInterface *found = find(role, name);
        const QRect now = found != nullptr ? found->rect() : QRect();
        return now.isValid() && std::exchange(before, now) == now;
    });
    return rests ? QRect(window_.mapFromGlobal(before.topLeft()), before.size()) : QRect();
}

testing::AssertionResult Person::touches(QAccessible::Role role, const QString &name) const
{
    const QRect place = placeAtRest(role, name);
    if (place.isValid())
        QTest::mouseClick(&window_, Qt::LeftButton, {}, place.center());
    return told(place.isValid(), name);
}

testing::AssertionResult Person::draws(QAccessible::Role role, const QString &name, const QPoint &along) const
{
    const QRect place = placeAtRest(role, name);
    if (!place.isValid())
        return told(false, name);
    constexpr int steps = 10;
    QTest::mousePress(&window_, Qt::LeftButton, {}, place.center());
    for (int step = 1; step <= steps; ++step)
        QTest::mouseMove(&window_, place.center() + along * step / steps, 10);
    QTest::mouseRelease(&window_, Qt::LeftButton, {}, place.center() + along, 10);
    QCoreApplication::processEvents();
    return testing::AssertionSuccess();
}

testing::AssertionResult Person::drags(QAccessible::Role role, const QString &name, QAccessible::Role toRole,
                                       const QString &toName) const
{
    const QRect from = placeAtRest(role, name);
    const QRect to = placeAtRest(toRole, toName);
    if (!from.isValid() || !to.isValid())
        return told(false, name);
    return draws(role, name, QPoint(0, to.center().y() - from.center().y()));
}

testing::AssertionResult Person::scrollsTo(QAccessible::Role role, const QString &name, QPointF place) const
{
    constexpr auto interval = 20; // milliseconds
    static quint64 moment = 0;
    const QPointF at(window_.width() * place.x(), window_.height() * place.y());
    for (const int turn : {-120, 120}) {
        for (int i = 0; i < 60; ++i) {
            if (find(role, name) != nullptr)
                return testing::AssertionSuccess();
            QWheelEvent event(at, window_.mapToGlobal(at), {}, QPoint(0, turn), Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            event.setTimestamp(moment += interval);
            QCoreApplication::sendEvent(&window_, &event);
            QTest::qWait(interval);
        }
    }
    return told(false, name);
}

void Person::types(const QString &text) const
{
    for (const QChar letter : text) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, Qt::Key_unknown, Qt::NoModifier, QString(letter));
            QCoreApplication::sendEvent(&window_, &event);
        }
    }
    QCoreApplication::processEvents();
}

QList<QRect> Person::places(QAccessible::Role role) const
{
    QList<QRect> found;
    search([&](QAccessibleInterface &one) {
        if (one.role() == role)
            found.append(QRect(window_.mapFromGlobal(one.rect().topLeft()), one.rect().size()));
        return false;
    });
    return found;
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

testing::AssertionResult Person::told(bool done, const QString &name) const
{
    if (done)
        return testing::AssertionSuccess();
    std::string lines = name.toStdString() + "; what can be seen:\n";
    search([&](QAccessibleInterface &one) {
        lines += std::to_string(one.role()) + ": " + one.text(QAccessible::Name).toStdString() + '\n';
        return false;
    });
    return testing::AssertionFailure() << lines;
}

} // namespace kesto::test
