#include "recipes/ImageViewController.h"

#include "platform/Platform.h"

#include <QFileInfo>

namespace kesto
{

ImageViewController::ImageViewController(const QString &imageName, const QString &title)
    : picture_(photoOf(imageName))
{
    if (picture_.isNull())
        picture_ = imageName;
    setTitle(title);
}

QString ImageViewController::photoOf(const QString &imageName)
{
    // A name comes from a catalogue file and is never a path.
    if (imageName.isEmpty() || imageName.contains(u'/') || imageName.startsWith(u'.') || imageName.contains(QChar(0)))
        return {};
    const QString file = imageName + QStringLiteral(".jpg");
    return QFileInfo(Platform::current().resourcesFolder() + QStringLiteral("/images/") + file).isFile() ? file
                                                                                                         : QString();
}

} // namespace kesto
