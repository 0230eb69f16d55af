#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

namespace kesto
{

class TimeObject;

/// What an item of a row is about; its number is stored.
enum class TimeObjectType { Water, Sleep, Pool, Running, Bran, Walking, Yoga, Fitness, Bicycle };
inline constexpr int timeObjectTypeCount = 9;

/// Operations on an item of a row of the journal. All texts are localised. An item without a known type has none, and
/// no colour.

/// The item in one line: the volume of its portion of water, or what of its two values it has with their units; empty
/// when it has none.
[[nodiscard]] QString description(const TimeObject &item);
/// What its reminder says.
[[nodiscard]] QString notificationDescription(const TimeObject &item);
/// The units of its values; the second is null where the type has none.
[[nodiscard]] QString prefix1(const TimeObject &item);
[[nodiscard]] QString prefix2(const TimeObject &item);
/// The name of its picture.
[[nodiscard]] QString image(const TimeObject &item);
[[nodiscard]] QColor color(const TimeObject &item);

// The same by the type's number; null and invalid outside of 0 to 8.
[[nodiscard]] QString timeObjectNameForType(int type);
[[nodiscard]] QString timeObjectImageForType(int type);
[[nodiscard]] QColor timeObjectColorForType(int type);
/// Units as keys of the string tables, by type.
[[nodiscard]] const QStringList &prefixs();
[[nodiscard]] QString prefix1ForIndex(int type);
[[nodiscard]] QString prefix2ForIndex(int type);

} // namespace kesto
