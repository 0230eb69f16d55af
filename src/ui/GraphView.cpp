#include "ui/GraphView.h"

#include <QFontMetricsF>
#include <QPainter>

#include <utility>

namespace kesto
{

namespace
{

constexpr int pictureScale = 2;
constexpr qreal pictureMargin = 16;
constexpr int pageStep = 7;

} // namespace

GraphView::GraphView(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    setAcceptedMouseButtons(Qt::LeftButton);
    setKeepMouseGrab(true); // a drag along the line is not a scroll of the page
    setActiveFocusOnTab(true);
    animation_.setStartValue(0.0);
    animation_.setEndValue(1.0);
    animation_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&animation_, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(this, &GraphView::lookChanged, this, &GraphView::changeLook);
}

void GraphView::setController(GraphViewController *controller)
{
    if (controller == controller_)
        return;
    if (controller_ != nullptr)
        controller_->disconnect(this);
    controller_ = controller;
    if (controller_ != nullptr) {
        connect(controller_, &GraphViewController::reloaded, this, &GraphView::reloadGraph);
        connect(controller_, &GraphViewController::selectedPointChanged, this, &GraphView::flagMoved);
        connect(
            controller_, &GraphViewController::pictureRequested, this,
            [this](GraphViewController::Destination destination) { controller_->takePicture(picture(), destination); });
    }
    reloadGraph();
    Q_EMIT controllerChanged();
}

void GraphView::changeLook()
{
    look_ = {lineColor_, trendColor_, idealColor_, gridColor_, labelColor_, backgroundColor_, font_};
    update();
    Q_EMIT flagMoved();
}

void GraphView::reloadGraph()
{
    GraphContent content = controller_ != nullptr ? controller_->content() : GraphContent();
    if (content == content_)
        return;
    const bool lineChanges = content.points != content_.points;
    if (lineChanges) {
        lineBefore_ = content_.points.isEmpty() ? QPolygonF() : drawing().line();
        animation_.stop();
    }
    content_ = std::move(content);
    if (lineChanges && !lineBefore_.isEmpty() && !content_.points.isEmpty() && duration_ > 0 && isVisible()) {
        animation_.setDuration(duration_);
        animation_.start();
    }
    update();
    Q_EMIT flagMoved();
}

QPointF GraphView::flagPosition() const
{
    const int selected = controller_ != nullptr ? controller_->selectedPoint() : -1;
    return selected >= 0 && selected < content_.points.size() ? drawing().position(selected) : QPointF();
}

void GraphView::paint(QPainter *painter)
{
    const bool moving = animation_.state() == QAbstractAnimation::Running;
    drawing().paint(*painter, lineBefore_, moving ? animation_.currentValue().toReal() : 1);
}

QImage GraphView::picture() const
{
    if (controller_ == nullptr)
        return {};
    const QFontMetricsF metrics(look_.font);
    const qreal top = 2 * pictureMargin + metrics.height();
    const QSizeF size = this->size() + QSizeF(2 * pictureMargin, top + pictureMargin);
    QImage image((size * pictureScale).toSize(), QImage::Format_RGB32);
    if (image.isNull())
        return image;
    image.setDevicePixelRatio(pictureScale);
    image.fill(look_.background);
    QPainter painter(&image);
    painter.setFont(look_.font);
    painter.setPen(look_.label);
    painter.drawText(QPointF(pictureMargin, pictureMargin + metrics.ascent()), controller_->pictureTitle());
    painter.translate(pictureMargin, top);
    drawing().paint(painter);
    return image;
}

void GraphView::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() == oldGeometry.size())
        return;
    animation_.stop(); // its line has the old size
    update();
    Q_EMIT flagMoved();
}

void GraphView::pointAt(qreal x)
{
    if (controller_ != nullptr)
        controller_->setSelectedPoint(static_cast<int>(drawing().scale().nearestIndex(x)));
}

void GraphView::mousePressEvent(QMouseEvent *event)
{
    forceActiveFocus(Qt::MouseFocusReason);
    pointAt(event->position().x());
}

void GraphView::mouseMoveEvent(QMouseEvent *event) { pointAt(event->position().x()); }

void GraphView::keyPressEvent(QKeyEvent *event)
{
    const auto move = [this](int steps) {
        if (controller_ != nullptr)
            controller_->moveSelection(steps);
    };
    switch (event->key()) {
    case Qt::Key_Left:
        return move(-1);
    case Qt::Key_Right:
        return move(1);
    case Qt::Key_PageUp:
        return move(-pageStep);
    case Qt::Key_PageDown:
        return move(pageStep);
    case Qt::Key_Home:
    case Qt::Key_End:
        if (controller_ != nullptr && !content_.points.isEmpty()) {
            const auto last = static_cast<int>(content_.points.size()) - 1;
            controller_->setSelectedPoint(event->key() == Qt::Key_Home ? 0 : last);
        }
        return;
    case Qt::Key_Escape:
        if (controller_ != nullptr && controller_->selectedPoint() >= 0)
            return controller_->setSelectedPoint(-1);
        break;
    default:
        break;
    }
    QQuickPaintedItem::keyPressEvent(event);
}

} // namespace kesto
