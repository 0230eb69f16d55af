#include "plan/WeightGraph.h"

#include <algorithm>
#include <cmath>

namespace kesto
{

namespace
{

constexpr qint64 secondsPerDay = 86400;
constexpr qsizetype wantedPoints = 60;
/// Days; exp(-1 / tau) = 0.9.
const double trendTau = -1 / std::log(0.9);

} // namespace

QList<GraphRange> graphRanges(bool tablet)
{
    const GraphRange week{u"Неделя", 7 * secondsPerDay};
    const GraphRange month{u"Месяц", 30 * secondsPerDay};
    const GraphRange year{u"Год", 365 * secondsPerDay};
    if (!tablet)
        return {week, month, year};
    return {week, month, {u"Квартал", 90 * secondsPerDay}, {u"Полугодие", 182 * secondsPerDay}, year};
}

qint64 graphSpan(int segment, bool tablet)
{
    const QList<GraphRange> ranges = graphRanges(tablet);
    return segment >= 0 && segment < ranges.size() ? ranges[segment].seconds : secondsPerDay;
}

QList<qsizetype> thinnedIndices(qsizetype count)
{
    const qsizetype step = count <= 2 * wantedPoints ? 1 : count / wantedPoints;
    const qsizetype first = step == 1 ? std::max<qsizetype>(0, count - wantedPoints) : 0;
    QList<qsizetype> indices;
    for (qsizetype i = first; i < count; i += step)
        indices.append(i);
    return indices;
}

QList<float> graphTrend(const QList<GraphPoint> &points)
{
    QList<float> trend;
    trend.reserve(points.size());
    double average = 0;
    for (qsizetype i = 0; i < points.size(); ++i) {
        if (i == 0) {
            average = points[i].value;
        } else {
            const double days =
                static_cast<double>(points[i - 1].date.msecsTo(points[i].date)) / (1000.0 * secondsPerDay);
            average += (1 - std::exp(-std::max(0.0, days) / trendTau)) * (points[i].value - average);
        }
        trend.append(static_cast<float>(average));
    }
    return trend;
}

GraphScale::GraphScale(const QRectF &area, qsizetype count, double minValue, double maxValue)
    : area_(area)
    , count_(count)
    , minValue_(minValue)
    , maxValue_(maxValue)
{
}

qreal GraphScale::x(qreal index) const
{
    if (count_ < 2)
        return area_.center().x();
    return area_.left() + index * area_.width() / static_cast<qreal>(count_ - 1);
}

qreal GraphScale::y(double value) const
{
    const double range = maxValue_ - minValue_;
    if (!(range > 0))
        return area_.center().y();
    const qreal height = area_.height() - verticalMargin;
    return area_.bottom() - verticalMargin / 2 - (value - minValue_) / range * height;
}

qsizetype GraphScale::nearestIndex(qreal x) const
{
    if (count_ < 1)
        return -1;
    if (count_ == 1 || area_.width() <= 0)
        return 0;
    const qreal index = (x - area_.left()) * static_cast<qreal>(count_ - 1) / area_.width();
    return static_cast<qsizetype>(std::clamp(std::round(index), 0.0, static_cast<qreal>(count_ - 1)));
}

GraphGrid graphGrid(double minValue, double maxValue, int lines)
{
    if (!std::isfinite(minValue) || !std::isfinite(maxValue))
        return {};
    const double range = maxValue - minValue;
    if (!(range > 0) || lines < 2)
        return {.values = {minValue}};
    const double rough = range / lines;
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    double step = 10 * power;
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= rough) {
            step = factor * power;
            break;
        }
    }
    GraphGrid grid{.decimals = std::max(0, -static_cast<int>(std::floor(std::log10(step) + 1e-9)))};
    const double slack = step * 1e-9; // of a bound that is itself a round number
    for (double line = std::ceil((minValue - slack) / step); line * step <= maxValue + slack; ++line)
        grid.values.append(line * step);
    return grid;
}

} // namespace kesto
