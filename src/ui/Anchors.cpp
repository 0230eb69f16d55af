#include "Anchors.h"

#include <functional>

namespace kesto
{

namespace
{

QQuickItem *lastVisible(QQuickItem *root, const std::function<bool(const QQuickItem &)> &wanted)
{
    if (!root->isVisible())
        return nullptr;
    if (wanted(*root))
        return root;
    const QList<QQuickItem *> children = root->childItems();
    for (auto child = children.crbegin(); child != children.crend(); ++child) {
        if (QQuickItem *found = lastVisible(*child, wanted))
            return found;
    }
    return nullptr;
}

} // namespace

QQuickItem *Anchors::find(QQuickItem *root, const QString &name, QObject *screen) const
{
    if (root == nullptr || name.isEmpty())
        return nullptr;
    const auto named = [&name](const QQuickItem &item) { return item.objectName() == name; };
    QQuickItem *view = screen == nullptr ? nullptr : lastVisible(root, [screen](const QQuickItem &item) {
        return item.property("controller").value<QObject *>() == screen;
    });
    if (QQuickItem *found = view != nullptr ? lastVisible(view, named) : nullptr)
        return found;
    return lastVisible(root, named); // a button of the bar above the view
}

} // namespace kesto
