#pragma once

#include <QList>
#include <QVariantMap>

namespace kesto
{

/// The portions of drink that apply until the user changes them: millilitres by the keys "1" to "8".
[[nodiscard]] QVariantMap defultsWaterVals();

/// The portions as the user set them, in the same shape; what stands under a key may be anything. The defaults where no
/// dictionary is stored.
[[nodiscard]] QVariantMap waterValsDict();

/// The volumes of the portions in the order of their keys as plain texts: "10" stands before "2".
[[nodiscard]] QList<int> waterValsArray();

/// The volume of a portion, in whole millilitres; 0 when there is none of that key, or it is no volume.
[[nodiscard]] int waterVolume(const QVariantMap &portions, int key);

} // namespace kesto
