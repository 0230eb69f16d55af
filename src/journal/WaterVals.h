#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

namespace kesto
{

/// The keys of the portions that the program shows: "1" to "8".
inline constexpr int waterPortionCount = 8;

/// The portions of drink that apply until the user changes them: millilitres by the keys "1" to "8".
[[nodiscard]] QVariantMap defultsWaterVals();

/// The portions as they are stored, whatever stands in them; the default ones when none are, or no dictionary.
[[nodiscard]] QVariantMap waterValsDict();

/// Their volumes in millilitres, in the order of the keys compared as texts: "10" stands between "1" and "2".
[[nodiscard]] QList<int> waterValsArray();

/// Millilitres of a portion, with fractions cut off; 0 for a key that is missing and for a value that is no volume: no
/// number, below 0 or above 100 litres.
[[nodiscard]] int waterVolume(const QVariantMap &portions, const QString &key);
[[nodiscard]] int waterVolume(const QVariantMap &portions, int key);

/// "150 мл." in the language of the interface.
[[nodiscard]] QString waterVolumeText(int millilitres);
/// The same, but whole litres read "1 л.".
[[nodiscard]] QString waterPortionTitle(int millilitres);

/// The picture of a portion; a drop when there is no portion of that key.
[[nodiscard]] QString waterPortionImage(int key);
/// What the vessel of a portion is called; null when there is no portion of that key.
[[nodiscard]] QString waterPortionName(int key);

} // namespace kesto
