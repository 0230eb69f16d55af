#include "journal/WaterVals.h"

#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "store/Keys.h"

#include <algorithm>
#include <limits>

namespace kesto
{

QVariantMap defultsWaterVals()
{
    QVariantMap portions;
    int key = 0;
    for (const int millilitres : {150, 300, 50, 250, 200, 300, 500, 1000})
        portions.insert(QString::number(++key), millilitres);
    return portions;
}

namespace
{

int volumeOf(const QVariant &stored)
{
    const double volume = stored.toDouble();
    // What is no number compares false.
    return volume > 0 ? static_cast<int>(std::min<double>(volume, std::numeric_limits<int>::max())) : 0;
}

} // namespace

QVariantMap waterValsDict()
{
    const QVariant stored = Platform::current().userDefaults().valueForKey(Keys::kWaterWalskey);
    return stored.typeId() == QMetaType::QVariantMap ? stored.toMap() : defultsWaterVals();
}

QList<int> waterValsArray()
{
    QList<int> volumes;
    for (const QVariant &stored : waterValsDict())
        volumes.append(volumeOf(stored));
    return volumes;
}

int waterVolume(const QVariantMap &portions, int key) { return volumeOf(portions.value(QString::number(key))); }

} // namespace kesto
