#include "Anchors.h"

namespace kesto
{

QQuickItem *Anchors::find(QQuickItem *root, const QString &name) const
{
    if (!root || name.isEmpty() || !root->isVisible())
        return nullptr;
    if (root->objectName() == name)
        return root;
    const QList<QQuickItem *> children = root->childItems();
    for (auto child = children.crbegin(); child != children.crend(); ++child) {
        if (QQuickItem *found = find(*child, name))
            return found;
    }
    return nullptr;
}

} // namespace kesto
