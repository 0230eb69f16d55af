#pragma once

#include "plan/WeightGraph.h"

#include <QList>

#include <optional>

namespace kesto
{

/// What a graph draws. The lists run in parallel, oldest point first.
struct GraphContent
{
    QList<GraphPoint> points{};
    QList<int> phases{};          ///< of each point: −1 (before the diet) to 3
    QList<float> trend{};         ///< of each point; empty when no trend is drawn
    std::optional<float> ideal{}; ///< a line across, drawn when it lies between the two bounds
    float minValue = 0;
    float maxValue = 0;
    double unit = 1; ///< kilograms or centimetres in one unit of the axis's labels

    bool operator==(const GraphContent &) const = default;
};

} // namespace kesto
