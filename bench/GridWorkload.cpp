#include "BaselineDatabase.h"
#include "GridScene.h"
#include "Workloads.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace kesto::bench
{

namespace
{

constexpr int kFrames = 1000;
constexpr int kLeastDishes = 300;
constexpr int kFoods = 40;
constexpr int kRowsOfDay = 60;

/// Down to the last tile and back to the first, as fast as a finger throws the grid.
class Scroll final : public Trial
{
public:
    Scroll(GridScene::Content content, int leastTiles, const QSize &size, std::vector<double> &samples)
        : scene_(content, size)
        , samples_(samples)
    {
        if (scene_.count() < leastTiles)
            fail(QStringLiteral("the grid has too few tiles"));
        before_ = scene_.checksum();
    }
    void run() override
    {
        const double length = scene_.length();
        for (int frame = 1; frame <= kFrames; ++frame) {
            const double turn = 1.0 - std::abs(1.0 - 2.0 * frame / kFrames);
            const auto start = std::chrono::steady_clock::now();
            scene_.scrollTo(turn * length);
            scene_.drawFrame();
            const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
            samples_.push_back(taken.count());
            if (frame == kFrames / 2 && scene_.checksum() == before_)
                fail(QStringLiteral("the grid does not scroll"));
        }
    }
    quint64 checksum() override { return scene_.checksum(); }

private:
    GridScene scene_;
    std::vector<double> &samples_;
    quint64 before_ = 0;
};

Workload scroll(const char *name, const QSize &size, GridScene::Content content = GridScene::Content::Dishes,
                int leastTiles = kLeastDishes)
{
    auto samples = std::make_shared<std::vector<double>>();
    return {.name = name,
            .contenders = {{"ours", [=] { return std::make_unique<Scroll>(content, leastTiles, size, *samples); }}},
            .bars = {{Bar::Kind::Share99AtMost, 16.6e6}, {Bar::Kind::LongestAtMost, 50e6}},
            .items = kFrames,
            .mostRounds = 3,
            .samples = samples};
}

} // namespace

Workload scrollOnPhone()
{
    return scroll("grid scroll on a phone: 1,000 frames over the whole catalogue", QSize(390, 800));
}

Workload scrollOnTablet()
{
    return scroll("grid scroll on a tablet: 1,000 frames over the whole catalogue", QSize(820, 1136));
}

Workload scrollOfFoods()
{
    return scroll("scroll of the forty foods on a phone: 1,000 frames, each food eaten", QSize(390, 744),
                  GridScene::Content::Foods, kFoods);
}

Workload scrollOfTimeRows()
{
    return scroll("scroll of a day of sixty rows on a phone: 1,000 frames, each row with an item and a dish",
                  QSize(390, 744), GridScene::Content::TimeRows, kRowsOfDay);
}

} // namespace kesto::bench
