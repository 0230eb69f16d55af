#pragma once

#include <QDateTime>
#include <QList>
#include <QRectF>

#include <optional>

namespace kesto
{

/// A value that was recorded for a day: kilograms, or centimetres of a girth.
struct GraphPoint
{
    QDateTime date{}; ///< start of the day
    float value = 0;
    bool operator==(const GraphPoint &) const = default;
};

/// How far a segment of the range selector looks back from now.
struct GraphRange
{
    const char16_t *title; ///< key of the segment's label
    qint64 seconds;
};

/// The segments of a phone (three) or a tablet (five), in order.
[[nodiscard]] QList<GraphRange> graphRanges(bool tablet);
/// The span of a segment in seconds; one day for an index that the device does not have.
[[nodiscard]] qint64 graphSpan(int segment, bool tablet);

/// About 60 points out of many, by index: up to 60 all of them, up to 120 the latest 60, beyond that every
/// (count / 60)-th beginning with the oldest.
[[nodiscard]] QList<qsizetype> thinnedIndices(qsizetype count);

/// The trend of values recorded at irregular times, one number for each point. An exponentially weighted moving average
/// s(i) = s(i-1) + (1 - exp(-dt / tau)) * (x(i) - s(i-1)), dt being the days between two points (A. Eckner,
/// "Algorithms for Unevenly Spaced Time Series: Moving Averages and Other Rolling Operators", EMA with last-point
/// interpolation). tau is chosen so that a value one day after the last counts a tenth, and one a week later about
/// half. Points of one day have dt 0, and the later of them changes nothing. Oldest first.
[[nodiscard]] QList<float> graphTrend(const QList<GraphPoint> &points);

/// Where the points of a graph lie in a rectangle. Horizontally they are spaced evenly by index, whatever dates they
/// carry; vertically a value maps linearly between the smallest and the largest one.
class GraphScale
{
public:
    /// Of the distance between the grid's rectangle and the lowest and highest point together.
    static constexpr qreal verticalMargin = 30;

    GraphScale(const QRectF &area, qsizetype count, double minValue, double maxValue);

    [[nodiscard]] const QRectF &area() const { return area_; }
    /// One point alone lies in the middle.
    [[nodiscard]] qreal x(qreal index) const;
    /// The middle when all values are equal.
    [[nodiscard]] qreal y(double value) const;
    /// The index whose point is nearest to an abscissa; −1 without points.
    [[nodiscard]] qsizetype nearestIndex(qreal x) const;

private:
    QRectF area_;
    qsizetype count_;
    double minValue_;
    double maxValue_;
};

/// Values at which the grid has horizontal lines, from the lowest up: round numbers (1, 2 or 5 times a power of ten),
/// at most `lines` of them, within the two bounds. One value, the bound, when both are equal; none when a bound is not
/// finite.
struct GraphGrid
{
    QList<double> values{};
    int decimals = 0; ///< that tell neighbouring values apart
};
[[nodiscard]] GraphGrid graphGrid(double minValue, double maxValue, int lines);

} // namespace kesto
