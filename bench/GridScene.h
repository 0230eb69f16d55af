#pragma once

#include <QSize>

#include <memory>

namespace kesto::bench
{

/// The grid of a category that has every dish of the shipped catalogue, in a window without a screen that the software
/// renderer draws into an image. One at a time.
class GridScene
{
public:
    explicit GridScene(const QSize &size);
    ~GridScene();
    GridScene(const GridScene &) = delete;
    GridScene &operator=(const GridScene &) = delete;

    [[nodiscard]] int dishCount() const;
    /// How far the grid can be scrolled.
    [[nodiscard]] double length() const;
    void scrollTo(double position);
    /// The work for one frame: layout, scene graph, pixels.
    void drawFrame();
    /// Changes with what is seen.
    [[nodiscard]] quint64 checksum() const;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace kesto::bench
