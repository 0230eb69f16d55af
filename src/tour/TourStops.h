#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace kesto
{

class TourGuide;

/// A screen in a state that is worth a picture. show() gets there from the main screens; then the tour takes the
/// picture under this name and goes back.
struct TourStop
{
    QString name;
    std::function<void(TourGuide &)> show;
};

/// All of them, in order. Features add theirs here.
[[nodiscard]] QList<TourStop> tourStops();

} // namespace kesto
