#pragma once

namespace kesto
{

/// The place of a row in a table.
struct IndexPath
{
    int section = 0;
    int row = 0;

    bool operator==(const IndexPath &) const = default;
};

} // namespace kesto
