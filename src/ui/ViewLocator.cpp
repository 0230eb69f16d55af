#include "ViewLocator.h"

#include <QDirIterator>

namespace kesto
{

ViewLocator::ViewLocator(QObject *parent)
    : QObject(parent)
{
    QDirIterator files(QStringLiteral(":/qt/qml/Kesto"), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (path.endsWith(QLatin1String("View.qml")) || path.endsWith(QLatin1String("Cell.qml")))
            files_.insert(files.fileInfo().completeBaseName(), QStringLiteral("qrc") + path);
    }
}

} // namespace kesto
