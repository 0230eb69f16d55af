#include "plan/GraphDrawing.h"

#include "platform/Platform.h"
#include "platform/StringFormat.h"
#include "store/CoreDataManager.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace kesto
{

namespace
{

/// Beside the graph, for the labels of the values; wider where they need it.
constexpr qreal horizontalMargin = 30;
constexpr qreal labelGap = 6;
constexpr qreal lineWidth = 2.5;
constexpr qreal pointRadius = 3.5;
constexpr qreal trendWidth = 1.5;
constexpr qreal bandOpacity = 0.16;
/// Points that lie closer together than this are drawn as a line only.
constexpr qreal closestPoints = 9;
constexpr int lineHeightsPerGridLine = 3;

/// The height of a line at an abscissa; of its nearest end outside of it.
qreal heightOf(const QPolygonF &line, qreal x)
{
    const auto next =
        std::lower_bound(line.begin(), line.end(), x, [](const QPointF &point, qreal at) { return point.x() < at; });
    if (next == line.begin())
        return line.first().y();
    if (next == line.end())
        return line.last().y();
    const QPointF &left = *std::prev(next);
    const qreal width = next->x() - left.x();
    return width > 0 ? left.y() + (next->y() - left.y()) * (x - left.x()) / width : next->y();
}

} // namespace

GraphDrawing::GraphDrawing(const GraphContent &content, const GraphLook &look, const QRectF &rect)
    : content_(content)
    , look_(look)
    , grid_(graphGrid(
          content.minValue / content.unit, content.maxValue / content.unit,
          std::max(2, static_cast<int>(rect.height() / QFontMetricsF(look.font).height() / lineHeightsPerGridLine))))
    , scale_(plotArea(rect), content.points.size(), content.minValue, content.maxValue)
{
}

// A step below one needs decimals, or neighbouring lines would carry the same label.
QString GraphDrawing::valueLabel(double value) const
{
    if (grid_.decimals == 0)
        return stringWithFormat("%0.0f", value);
    return QString::number(value, 'f', grid_.decimals);
}

QRectF GraphDrawing::plotArea(const QRectF &rect) const
{
    const QFontMetricsF metrics(look_.font);
    qreal left = horizontalMargin;
    for (const double value : grid_.values)
        left = std::max(left, metrics.horizontalAdvance(valueLabel(value)) + labelGap);
    const qreal bottom = metrics.height() + labelGap;
    // Half of a date's label stands out at the right, and half of a value's at the top.
    const qreal right = std::max(pointRadius, metrics.horizontalAdvance(QStringLiteral("00.00")) / 2);
    return rect.adjusted(left, metrics.height() / 2, -right, -bottom);
}

QPointF GraphDrawing::position(qsizetype index) const
{
    return {scale_.x(static_cast<qreal>(index)), scale_.y(content_.points[index].value)};
}

QPolygonF GraphDrawing::curve(const QList<GraphPoint> &points) const
{
    QPolygonF line;
    line.reserve(points.size());
    for (qsizetype i = 0; i < points.size(); ++i)
        line.append({scale_.x(static_cast<qreal>(i)), scale_.y(points[i].value)});
    return line;
}

void GraphDrawing::paint(QPainter &painter) const { paint(painter, {}, 1); }

void GraphDrawing::paint(QPainter &painter, const QPolygonF &from, qreal progress) const
{
    if (content_.points.isEmpty() || scale_.area().isEmpty())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(look_.font);
    paintBands(painter);
    paintGrid(painter);
    paintDates(painter);
    paintIdeal(painter);

    QPolygonF line = curve(content_.points);
    if (progress < 1 && !from.isEmpty()) {
        for (QPointF &point : line)
            point.setY(heightOf(from, point.x()) * (1 - progress) + point.y() * progress);
    } else if (!content_.trend.isEmpty()) {
        QPolygonF trend;
        for (qsizetype i = 0; i < content_.trend.size(); ++i)
            trend.append({scale_.x(static_cast<qreal>(i)), scale_.y(content_.trend[i])});
        painter.setPen(QPen(look_.trend, trendWidth, Qt::DashLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(trend);
    }
    painter.setPen(QPen(look_.line, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(line);
    if (line.size() < 2 || line[1].x() - line[0].x() >= closestPoints) {
        painter.setBrush(look_.background);
        painter.setPen(QPen(look_.line, trendWidth));
        for (const QPointF &point : line)
            painter.drawEllipse(point, pointRadius, pointRadius);
        painter.setBrush(Qt::NoBrush);
    }
}

// A band ends half way between two points of different phases.
void GraphDrawing::paintBands(QPainter &painter) const
{
    const QRectF &area = scale_.area();
    const qsizetype count = content_.phases.size();
    for (qsizetype first = 0; first < count;) {
        qsizetype next = first;
        while (next < count && content_.phases[next] == content_.phases[first])
            ++next;
        if (auto color = CoreDataManager::colorForPeriod(content_.phases[first])) {
            const qreal left = first == 0 ? area.left() : scale_.x(static_cast<qreal>(first) - 0.5);
            const qreal right = next == count ? area.right() : scale_.x(static_cast<qreal>(next) - 0.5);
            color->setAlphaF(static_cast<float>(bandOpacity));
            painter.fillRect(QRectF(left, area.top(), right - left, area.height()), *color);
        }
        first = next;
    }
}

void GraphDrawing::paintGrid(QPainter &painter) const
{
    const QRectF &area = scale_.area();
    const QFontMetricsF metrics(look_.font);
    for (const double value : grid_.values) {
        const qreal y = scale_.y(value * content_.unit);
        painter.setPen(QPen(look_.grid, 1));
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
        painter.setPen(look_.label);
        painter.drawText(QRectF(0, y - metrics.height() / 2, area.left() - labelGap, metrics.height()),
                         Qt::AlignRight | Qt::AlignVCenter, valueLabel(value));
    }
}

// As many dates as there is room for, the first and the last among them.
void GraphDrawing::paintDates(QPainter &painter) const
{
    const QRectF &area = scale_.area();
    const QFontMetricsF metrics(look_.font);
    const qreal labelWidth = metrics.horizontalAdvance(QStringLiteral("00.00"));
    const qsizetype last = content_.points.size() - 1;
    const auto most = static_cast<qsizetype>(area.width() / (labelWidth * 1.5));
    const qsizetype labels = std::clamp<qsizetype>(std::min(last, most), 1, std::max<qsizetype>(1, last));
    const Calendar &calendar = Platform::current().calendar();
    for (qsizetype i = 0; i <= labels; ++i) {
        const qsizetype index = std::min(last, (i * last + labels / 2) / labels);
        const qreal x = scale_.x(static_cast<qreal>(index));
        painter.setPen(QPen(look_.grid, 1));
        painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
        painter.setPen(look_.label);
        painter.drawText(QRectF(x - labelWidth, area.bottom() + labelGap, 2 * labelWidth, metrics.height()),
                         Qt::AlignHCenter | Qt::AlignTop,
                         calendar.dayOf(content_.points[index].date).toString(QStringLiteral("dd.MM")));
    }
}

void GraphDrawing::paintIdeal(QPainter &painter) const
{
    if (!content_.ideal || *content_.ideal < content_.minValue || *content_.ideal > content_.maxValue)
        return;
    const qreal y = scale_.y(*content_.ideal);
    painter.setPen(QPen(look_.ideal, trendWidth, Qt::CustomDashLine));
    QPen pen = painter.pen();
    pen.setDashPattern({6, 4});
    painter.setPen(pen);
    painter.drawLine(QPointF(scale_.area().left(), y), QPointF(scale_.area().right(), y));
}

} // namespace kesto
