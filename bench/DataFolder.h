#pragma once

#include <QString>
#include <QTemporaryDir>

#include <compare>

namespace kesto::bench
{

/// The program's data after its first start: the shipped catalogue is imported.
struct DataOptions
{
    bool started = false; ///< the diet began five years ago
    int daysBefore = 0;   ///< days with journals before today
    int daysAfter = 0;    ///< and from today on
    auto operator<=>(const DataOptions &) const = default;
};

/// A private copy of such a data folder, removed at the end. Each kind is made when it is first asked for.
class DataFolder
{
public:
    explicit DataFolder(const DataOptions &options);
    [[nodiscard]] QString path() const { return copy_.path(); }

private:
    QTemporaryDir copy_;
};

} // namespace kesto::bench
