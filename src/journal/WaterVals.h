#pragma once

#include <QVariantMap>

namespace kesto
{

/// The portions of drink that apply until the user changes them: millilitres by the keys "1" to "8".
[[nodiscard]] QVariantMap defultsWaterVals();

} // namespace kesto
