#pragma once

namespace kesto
{

/// The place of a row in the content of a screen.
struct IndexPath
{
    int section = 0;
    int row = 0;

    bool operator==(const IndexPath &) const = default;
};

/// The place of a row as a table shows it. It differs from the place in the content below an open picker.
struct ShownPath
{
    int section = 0;
    int row = 0;

    bool operator==(const ShownPath &) const = default;
};

} // namespace kesto
