#include "util/ImageFiles.h"

#include "platform/Platform.h"

#include <QFileInfo>

namespace kesto
{

namespace
{

bool isPlainName(const QString &name)
{
    return !name.isEmpty() && !name.contains(u'/') && !name.contains(u'\\') && !name.startsWith(u'.') &&
           !name.contains(QChar(0));
}

} // namespace

QString imagesFolder() { return Platform::current().resourcesFolder() + QStringLiteral("/images"); }

QString fileInFolder(const QString &folder, const QString &name)
{
    if (!isPlainName(name))
        return {};
    const QString path = folder + u'/' + name;
    return QFileInfo(path).isFile() ? path : QString();
}

QString photoNamed(const QString &name)
{
    const QString file = name + QStringLiteral(".jpg");
    return fileInFolder(imagesFolder(), file).isNull() ? QString() : file;
}

} // namespace kesto
