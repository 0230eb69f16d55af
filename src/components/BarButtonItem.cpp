#include "components/BarButtonItem.h"

#include "platform/StringTables.h"

#include <utility>

namespace kesto
{

BarButtonItem::BarButtonItem(QObject *parent)
    : QObject(parent)
{
}

std::unique_ptr<BarButtonItem> BarButtonItem::withTitle(const QString &title, Action action)
{
    auto item = std::make_unique<BarButtonItem>();
    item->setTitle(title);
    item->setAction(std::move(action));
    return item;
}

std::unique_ptr<BarButtonItem> BarButtonItem::withImage(const QString &image, Action action)
{
    auto item = std::make_unique<BarButtonItem>();
    item->setImage(image);
    item->setAction(std::move(action));
    return item;
}

void BarButtonItem::setTitle(const QString &title)
{
    if (title_ == title)
        return;
    title_ = title;
    Q_EMIT titleChanged();
    Q_EMIT accessibleNameChanged();
}

void BarButtonItem::setImage(const QString &image)
{
    if (image_ == image)
        return;
    image_ = image;
    Q_EMIT imageChanged();
    Q_EMIT accessibleNameChanged();
}

void BarButtonItem::setHighlightedImage(const QString &image)
{
    if (highlightedImage_ == image)
        return;
    highlightedImage_ = image;
    Q_EMIT imageChanged();
}

QString BarButtonItem::accessibleName() const
{
    if (!accessibleName_.isEmpty())
        return accessibleName_;
    if (!title_.isEmpty() || image_.isEmpty())
        return title_;
    const auto point = image_.lastIndexOf(QLatin1Char('.'));
    return localized(point < 0 ? image_ : image_.left(point));
}

void BarButtonItem::setAccessibleName(const QString &name)
{
    if (accessibleName_ == name)
        return;
    accessibleName_ = name;
    Q_EMIT accessibleNameChanged();
}

void BarButtonItem::setEnabled(bool enabled)
{
    if (enabled_ == enabled)
        return;
    enabled_ = enabled;
    Q_EMIT enabledChanged();
}

void BarButtonItem::setVisible(bool visible)
{
    if (visible_ == visible)
        return;
    visible_ = visible;
    Q_EMIT visibleChanged();
}

void BarButtonItem::trigger()
{
    if (!enabled_ || !visible_ || !action_)
        return;
    const Action action = action_; // it may replace this button
    action();
}

} // namespace kesto
