#include "journal/WaterValuesTableViewController.h"

#include "journal/WaterVals.h"
#include "platform/Platform.h"
#include "platform/StringFormat.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "store/Keys.h"

#include <algorithm>
#include <cmath>

namespace kesto
{

namespace
{

constexpr int longestOfLast = 1000; // millilitres
constexpr int longestOfOthers = 500;

} // namespace

WaterValuesTableViewController::WaterValuesTableViewController(WaterValuesDelegate &delegate)
    : delegate_(delegate)
    , portions_(waterValsDict())
{
    setTitle(localized(QStringLiteral("Изменения Обьема")));
    setLeftBarButtonItem(BarButtonItem::withImage(QStringLiteral("Plus.png"), [this] { close(); }));
}

int WaterValuesTableViewController::longest(int row)
{
    return row + 1 == waterPortionCount ? longestOfLast : longestOfOthers;
}

int WaterValuesTableViewController::numberOfRowsInSection(int) const { return waterPortionCount; }

TableRow WaterValuesTableViewController::cellForRow(const IndexPath &path) const
{
    const int key = path.row + 1;
    const int volume = waterVolume(portions_, key);
    return {.kind = TableRow::Kind::Custom,
            .title = stringWithFormat("%0.0f %@", static_cast<double>(volume), localized(QStringLiteral("мл."))),
            .subtitle = waterPortionName(key),
            .image = waterPortionImage(key),
            .selectable = false,
            .cell = QStringLiteral("WaterVolumeCell"),
            .value = QVariantList{volume, longest(path.row), step}};
}

void WaterValuesTableViewController::sliderValueChanged(double value, const IndexPath &forIndexPath)
{
    if (forIndexPath.row < 0 || forIndexPath.row >= waterPortionCount || !std::isfinite(value))
        return;
    const double inRange = std::clamp(value, 0.0, static_cast<double>(longest(forIndexPath.row)));
    portions_.insert(QString::number(forIndexPath.row + 1), static_cast<int>(std::lround(inRange / step)) * step);
    haveChanges_ = true;
    reloadRow(forIndexPath);
}

void WaterValuesTableViewController::close()
{
    if (haveChanges_) {
        Platform::current().userDefaults().setValue(portions_, Keys::kWaterWalskey);
        haveChanges_ = false;
        delegate_.waterValsChanged();
    }
    TableViewController::close();
}

} // namespace kesto
