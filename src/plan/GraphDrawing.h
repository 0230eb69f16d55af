#pragma once

#include "plan/GraphContent.h"

#include <QColor>
#include <QFont>
#include <QPolygonF>

class QPainter;

namespace kesto
{

/// Colours and type of a graph. The phases' colours are the program's own.
struct GraphLook
{
    QColor line{};
    QColor trend{};
    QColor ideal{};
    QColor grid{};
    QColor label{};
    QColor background{}; ///< of the points, and of a saved picture
    QFont font{};        ///< of the labels
    bool operator==(const GraphLook &) const = default;
};

/// Draws a graph: grid, labels of both axes, bands of the phases, ideal weight, trend, line and points. Cheap to make.
class GraphDrawing
{
public:
    /// The rectangle is in the painter's coordinates. The content outlives the drawing.
    GraphDrawing(const GraphContent &content, const GraphLook &look, const QRectF &rect);

    [[nodiscard]] const GraphScale &scale() const { return scale_; }
    [[nodiscard]] QPointF position(qsizetype index) const;
    [[nodiscard]] QPolygonF line() const { return curve(content_.points); }

    void paint(QPainter &painter) const;
    /// The same on the way from another line: `progress` 0 shows the points at the heights that the other line has
    /// there, 1 at their own.
    void paint(QPainter &painter, const QPolygonF &from, qreal progress) const;

private:
    [[nodiscard]] QRectF plotArea(const QRectF &rect) const;
    [[nodiscard]] QString valueLabel(double value) const;
    void paintBands(QPainter &painter) const;
    void paintGrid(QPainter &painter) const;
    void paintDates(QPainter &painter) const;
    void paintIdeal(QPainter &painter) const;
    [[nodiscard]] QPolygonF curve(const QList<GraphPoint> &points) const;

    const GraphContent &content_;
    const GraphLook &look_;
    GraphGrid grid_;
    GraphScale scale_;
};

} // namespace kesto
