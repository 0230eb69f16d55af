#include "journal/WaterVals.h"

#include "platform/Platform.h"
#include "platform/StringFormat.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "store/Keys.h"

namespace kesto
{

namespace
{

constexpr double largestVolume = 100'000;
constexpr int millilitresPerLitre = 1000;

bool isShown(int key) { return key >= 1 && key <= waterPortionCount; }

} // namespace

QVariantMap defultsWaterVals()
{
    QVariantMap portions;
    int key = 0;
    for (const int millilitres : {150, 300, 50, 250, 200, 300, 500, 1000})
        portions.insert(QString::number(++key), millilitres);
    return portions;
}

QVariantMap waterValsDict()
{
    const QVariant stored = Platform::current().userDefaults().valueForKey(Keys::kWaterWalskey);
    return stored.typeId() == QMetaType::QVariantMap ? stored.toMap() : defultsWaterVals();
}

QList<int> waterValsArray()
{
    const QVariantMap portions = waterValsDict();
    QList<int> volumes;
    for (auto portion = portions.begin(); portion != portions.end(); ++portion)
        volumes.append(waterVolume(portions, portion.key()));
    return volumes;
}

int waterVolume(const QVariantMap &portions, const QString &key)
{
    bool isNumber = false;
    const double volume = portions.value(key).toDouble(&isNumber);
    return isNumber && volume >= 0 && volume <= largestVolume ? static_cast<int>(volume) : 0;
}

int waterVolume(const QVariantMap &portions, int key) { return waterVolume(portions, QString::number(key)); }

QString waterVolumeText(int millilitres)
{
    return stringWithFormat("%@ %@", millilitres, localized(QStringLiteral("мл.")));
}

QString waterPortionTitle(int millilitres)
{
    if (millilitres == 0 || millilitres % millilitresPerLitre != 0)
        return waterVolumeText(millilitres);
    return stringWithFormat(" %ld %@", millilitres / millilitresPerLitre, localized(QStringLiteral("л.")));
}

QString waterPortionImage(int key)
{
    return isShown(key) ? stringWithFormat("water_%ld", key) : QStringLiteral("button_water");
}

QString waterPortionName(int key) { return isShown(key) ? localized(waterPortionImage(key)) : QString(); }

} // namespace kesto
