#include "ViewLocator.h"

#include <QDirIterator>

namespace kesto
{

ViewLocator::ViewLocator(QObject *parent)
    : QObject(parent)
{
    QDirIterator files(QStringLiteral(":/qt/qml/Kesto"), {QStringLiteral("*View.qml"), QStringLiteral("*Cell.qml")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        files_.insert(files.fileInfo().completeBaseName(), QStringLiteral("qrc") + files.filePath());
    }
}

} // namespace kesto
