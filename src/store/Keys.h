#pragma once

#include <QString>

namespace kesto
{

/// Keys of the user defaults that more than one screen reads. Their spelling is stored data.
namespace Keys
{

inline const QString kStartDietDateKey = QStringLiteral("kStartDietDateKey"); ///< date: the first day of the diet
inline const QString kPeriod1Key = QStringLiteral("kPeriod1Key");             ///< integer: days of Attack
inline const QString kPeriod2Key = QStringLiteral("kPeriod2Key");             ///< integer: days of Cruise
inline const QString kPeriod3Key = QStringLiteral("kPeriod3Key");             ///< integer: days of Consolidation
inline const QString kIdealWidth = QStringLiteral("kIdealWidth");             ///< number: the ideal weight, kilograms
inline const QString kSystemKey = QStringLiteral("kSystemKey");               ///< integer: 0 metric, else imperial
inline const QString kLangluageKey = QStringLiteral("kLangluageKey");         ///< integer: 0 Russian, 1 English
inline const QString kLangluageCodeKey = QStringLiteral("kLangluageCodeKey"); ///< text: "ru" or "en"
inline const QString kUseICloudKey = QStringLiteral("kUseICloudKey");         ///< flag
inline const QString kDisableiCloud = QStringLiteral("kDisableiCloud");       ///< flag: move back from the cloud
inline const QString kOldDataMerged = QStringLiteral("old data merged"); ///< flag: the local data are in the cloud file
inline const QString kFavoriteDishesKey = QStringLiteral("kFavoriteDishesKey"); ///< array of Russian dish names
inline const QString kAppVersionKey = QStringLiteral("kAppVersionKey");         ///< text: version of the last import
inline const QString kImportFailedKey = QStringLiteral("kImportFailedKey");     ///< flag: the last import was not saved
inline const QString kPasscodeKey =
    QStringLiteral("kPasscodeKey");                           ///< text: the passcode; the lock is on while it is set
inline const QString kTimerKey = QStringLiteral("kTimerKey"); ///< date: when the countdown ends
inline const QString kWaterWalskey = QStringLiteral("kWaterWalskey");   ///< dictionary: portions of drink
inline const QString kDishSendedKey = QStringLiteral("kDishSendedKey"); ///< flag: the thank-you for a recipe was shown
inline const QString kGraphTrendKey = QStringLiteral("kGraphTrendKey"); ///< flag: the graph shows a trend line

} // namespace Keys

} // namespace kesto
