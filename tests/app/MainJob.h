#pragma once

#include "app/CommandLine.h"

#include <QDateTime>
#include <QSize>
#include <QStringList>

#include <gtest/gtest.h>

namespace kesto::test
{

/// A device that somebody lives through the main job with.
struct MainJob
{
    const char *name;
    Device device;
    QSize size;
};

inline const MainJob mainJobs[] = {{"phone", Device::Phone, QSize(390, 844)},
                                   {"tablet", Device::Tablet, QSize(1180, 820)}};

/// The instant at which the clock of the job stands still.
inline QDateTime mainJobNow() { return {QDate(2026, 3, 2), QTime(9, 30), Qt::UTC}; }

/// From the first start in an empty folder to the shopping list and the journal, by pointer and keys. Ends by killing
/// this process, having printed what there was; when something is not as it should be, with a failed assertion instead.
void liveThroughMainJob(const MainJob &job, const QString &dataFolder);

/// What the store holds: the Russian names of today's dishes in their order, and the lines "name=count", "*" behind a
/// bought one.
[[nodiscard]] QStringList plannedDishes();
[[nodiscard]] QStringList shoppingList();
/// The calculator's "title=value" of every input, result and phase, and the lengths of the phases that the diet has.
[[nodiscard]] QStringList figures();

} // namespace kesto::test
