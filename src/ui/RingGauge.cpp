#include "RingGauge.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kesto
{

namespace
{

constexpr int marksAround = 12;
constexpr int degreesAround = 360;
constexpr int top = 90 * 16; // in the painter's sixteenths of a degree

} // namespace

RingGauge::RingGauge(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &RingGauge::lookChanged, this, [this] { update(); });
}

void RingGauge::paint(QPainter *painter)
{
    const qreal inset = thickness_ / 2;
    const qreal side = std::min(width(), height()) - 2 * inset;
    if (side <= 0)
        return;
    const QRectF ring((width() - side) / 2, (height() - side) / 2, side, side);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(ground_, thickness_));
    painter->drawEllipse(ring);

    const qreal level = std::clamp(level_, 0.0, 1.0);
    if (level > 0) {
        painter->setPen(QPen(color_, thickness_, Qt::SolidLine, Qt::RoundCap));
        painter->drawArc(ring, top, -static_cast<int>(std::lround(level * degreesAround * 16)));
    }

    painter->translate(ring.center());
    painter->setPen(QPen(marks_, 2, Qt::SolidLine, Qt::RoundCap));
    const qreal outer = side / 2 - 1.4 * thickness_;
    for (int mark = 0; mark < marksAround; ++mark) {
        painter->drawLine(QPointF(0, -outer), QPointF(0, -outer + thickness_ / 2));
        painter->rotate(static_cast<qreal>(degreesAround) / marksAround);
    }
}

} // namespace kesto
