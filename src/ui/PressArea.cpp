#include "PressArea.h"

#include <QGuiApplication>
#include <QStyleHints>

#include <utility>

namespace kesto
{

PressArea::PressArea(QQuickItem *parent)
    : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true); // two thumbs press two keys at once
    setActiveFocusOnTab(true);
}

void PressArea::setFocusPolicy(Qt::FocusPolicy policy)
{
    if (policy == focusPolicy_)
        return;
    focusPolicy_ = policy;
    setActiveFocusOnTab((policy & Qt::TabFocus) != 0);
    Q_EMIT focusPolicyChanged();
}

void PressArea::passFocus(bool forward)
{
    nextItemInFocusChain(forward)->forceActiveFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

bool PressArea::take(Holder holder)
{
    if (holder_ != Holder::Nobody)
        return false;
    holder_ = holder;
    setDown(true);
    return true;
}

void PressArea::takeFocus(bool released)
{
    // Some platforms let a finger rest on a button without giving it the keys.
    if ((focusPolicy_ & Qt::ClickFocus) == 0 || QGuiApplication::styleHints()->setFocusOnTouchRelease() != released)
        return;
    setVisualFocus(false);
    forceActiveFocus(Qt::MouseFocusReason);
}

void PressArea::drop()
{
    holder_ = Holder::Nobody;
    setDown(false);
}

void PressArea::release()
{
    const bool click = down_;
    drop();
    if (click)
        Q_EMIT clicked();
}

void PressArea::setDown(bool down)
{
    if (std::exchange(down_, down) != down)
        Q_EMIT downChanged();
}

void PressArea::setVisualFocus(bool shown)
{
    if (std::exchange(visualFocus_, shown) != shown)
        Q_EMIT visualFocusChanged();
}

void PressArea::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (take(Holder::Mouse))
        takeFocus(false);
}

void PressArea::mouseMoveEvent(QMouseEvent *event)
{
    if (holder_ == Holder::Mouse)
        setDown(contains(event->position()));
}

void PressArea::mouseReleaseEvent(QMouseEvent *event)
{
    if (holder_ != Holder::Mouse)
        return;
    setDown(contains(event->position()));
    takeFocus(true);
    release();
}

// The second of two quick clicks is a click like the first.
void PressArea::mouseDoubleClickEvent(QMouseEvent *event) { event->accept(); }

void PressArea::mouseUngrabEvent()
{
    if (holder_ == Holder::Mouse)
        drop();
}

void PressArea::touchEvent(QTouchEvent *event)
{
    if (event->type() == QEvent::TouchCancel) {
        touchUngrabEvent();
        return;
    }
    for (const QEventPoint &point : event->points()) {
        if (point.state() == QEventPoint::Pressed) {
            if (take(Holder::Finger)) {
                finger_ = point.id();
                takeFocus(false);
            }
        } else if (holder_ == Holder::Finger && point.id() == finger_) {
            setDown(contains(point.position()));
            if (point.state() != QEventPoint::Released)
                continue;
            takeFocus(true);
            release();
            return;
        }
    }
}

void PressArea::touchUngrabEvent()
{
    if (holder_ == Holder::Finger)
        drop();
}

void PressArea::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
        if (!event->isAutoRepeat())
            take(Holder::Space);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            Q_EMIT clicked();
        break;
    default:
        QQuickItem::keyPressEvent(event);
    }
}

void PressArea::keyReleaseEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space)
        QQuickItem::keyReleaseEvent(event);
    else if (holder_ == Holder::Space && !event->isAutoRepeat())
        release();
}

void PressArea::focusInEvent(QFocusEvent *event)
{
    QQuickItem::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    setVisualFocus(reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                   reason == Qt::ShortcutFocusReason);
}

void PressArea::focusOutEvent(QFocusEvent *event)
{
    QQuickItem::focusOutEvent(event);
    setVisualFocus(false);
    // What a finger touches may take the keys elsewhere while the finger is down.
    if (holder_ != Holder::Finger)
        drop();
}

void PressArea::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if ((change == ItemEnabledHasChanged || change == ItemVisibleHasChanged) && !data.boolValue)
        drop();
}

} // namespace kesto
