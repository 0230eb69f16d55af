#pragma once

#include "platform/Calendar.h"

#include <QFileSystemWatcher>
#include <QObject>

namespace kesto
{

/// The time zone and the first weekday that the user chose for the whole system, and word of their changes.
class SystemCalendar final : public QObject
{
    Q_OBJECT
public:
    /// zoneFile names the zone wherever the variable TZ does not.
    explicit SystemCalendar(QString zoneFile = QStringLiteral("/etc/localtime"), QObject *parent = nullptr);

    /// Listens for changes from now on. A folder that can't be watched is logged; refresh() still finds the changes.
    void follow();
    /// Asks the system now.
    void refresh();

Q_SIGNALS:
    void changed(const kesto::Calendar &calendar);

private:
    const QString zoneFile_;
    Calendar calendar_;
    QFileSystemWatcher watcher_;
};

} // namespace kesto
