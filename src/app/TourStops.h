#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace kesto
{

class TourGuide;

/// A place worth a picture. show() brings the program there from the main screens; the tour takes the picture under
/// this name and goes home.
struct TourStop
{
    QString name;
    std::function<void(TourGuide &)> show;
};

/// All of them, in order. Features add theirs here.
[[nodiscard]] QList<TourStop> tourStops();

} // namespace kesto
