#include "platform/SystemCalendar.h"

#include "platform/Log.h"

#include <QFileInfo>

#include <utility>

namespace kesto
{

SystemCalendar::SystemCalendar(QString zoneFile, QObject *parent)
    : QObject(parent)
    , zoneFile_(std::move(zoneFile))
{
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &SystemCalendar::refresh);
}

void SystemCalendar::follow()
{
    // The file is a link that is replaced whole, so its folder has to be watched.
    const QString folder = QFileInfo(zoneFile_).path();
    if (!watcher_.addPath(folder))
        log("%@ can't be watched for changes of the time zone", folder);
}

void SystemCalendar::refresh()
{
    const Calendar calendar;
    if (std::exchange(calendar_, calendar) != calendar)
        Q_EMIT changed(calendar);
}

} // namespace kesto
