#pragma once

#include <QSize>

#include <memory>

namespace kesto::bench
{

/// A grid in a window without a screen that the software renderer draws into an image. One at a time.
class GridScene
{
public:
    enum class Content {
        Dishes,  ///< of a category that has every dish of the shipped catalogue
        Foods,   ///< those that protein is counted of, each eaten once, and the list of what was eaten
        TimeRows ///< of a day that has sixty, each with an item and a dish
    };

    GridScene(Content content, const QSize &size);
    ~GridScene();
    GridScene(const GridScene &) = delete;
    GridScene &operator=(const GridScene &) = delete;

    /// Its tiles.
    [[nodiscard]] int count() const { return count_; }
    /// How far the grid can be scrolled.
    [[nodiscard]] double length() const;
    void scrollTo(double position);
    /// The work for one frame: layout, scene graph, pixels.
    void drawFrame();
    /// Changes with what is seen.
    [[nodiscard]] quint64 checksum() const;

private:
    struct Parts;
    int count_ = 0;
    std::unique_ptr<Parts> parts_;
};

} // namespace kesto::bench
