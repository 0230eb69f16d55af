#include "DropGauge.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kesto
{

namespace
{

// Shares of the item's size.
constexpr qreal waveHeight = 0.025;
constexpr qreal line = 0.022;
constexpr int waveSteps = 24;
constexpr qreal turnsOfTheWave = 6; // while the level goes from empty to full

QPainterPath dropIn(const QRectF &box)
{
    const auto at = [&](qreal x, qreal y) { return QPointF(box.x() + x * box.width(), box.y() + y * box.height()); };
    QPainterPath drop(at(0.5, 0));
    drop.cubicTo(at(0.6, 0.18), at(1, 0.42), at(1, 0.64));
    drop.cubicTo(at(1, 0.85), at(0.78, 1), at(0.5, 1));
    drop.cubicTo(at(0.22, 1), at(0, 0.85), at(0, 0.64));
    drop.cubicTo(at(0, 0.42), at(0.4, 0.18), at(0.5, 0));
    drop.closeSubpath();
    return drop;
}

/// What is below a surface that waves once over the width.
QPainterPath waterIn(const QRectF &box, qreal surface, qreal swing, qreal phase)
{
    QPainterPath water(box.bottomLeft());
    for (int step = 0; step <= waveSteps; ++step) {
        const qreal part = static_cast<qreal>(step) / waveSteps;
        const qreal angle = 2 * std::numbers::pi * (part + phase);
        water.lineTo(box.x() + part * box.width(), surface + swing * std::sin(angle));
    }
    water.lineTo(box.bottomRight());
    water.closeSubpath();
    return water;
}

} // namespace

DropGauge::DropGauge(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    connect(this, &DropGauge::lookChanged, this, [this] { update(); });
}

void DropGauge::paint(QPainter *painter)
{
    const qreal stroke = std::max(1.0, height() * line);
    const QRectF box = boundingRect().adjusted(stroke, stroke, -stroke, -stroke);
    if (box.isEmpty())
        return;
    const QPainterPath drop = dropIn(box);
    const qreal level = std::clamp(level_, 0.0, 1.0);
    painter->fillPath(drop, ground_);

    if (level > 0) {
        // No waves where the water ends at a point or stands at the brim.
        const qreal swing = box.height() * waveHeight * std::min(1.0, 8 * level * (1 - level));
        const qreal surface = box.bottom() - level * box.height();
        painter->save();
        painter->setClipPath(drop);
        QColor behind = water_;
        behind.setAlphaF(behind.alphaF() / 2);
        painter->fillPath(waterIn(box, surface - swing, swing, 0.5 - level * turnsOfTheWave), behind);
        painter->fillPath(waterIn(box, surface, swing, level * turnsOfTheWave), water_);
        painter->restore();
    }

    painter->setPen(QPen(water_, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(drop);
    // A reflection along the left side.
    painter->setPen(QPen(QColor(255, 255, 255, 150), 1.6 * stroke, Qt::SolidLine, Qt::RoundCap));
    const QRectF inner =
        box.adjusted(0.14 * box.width(), 0.32 * box.height(), -0.14 * box.width(), -0.1 * box.height());
    painter->drawArc(inner, 165 * 16, 50 * 16);
}

} // namespace kesto
