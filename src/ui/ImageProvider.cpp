#include "ImageProvider.h"

#include "platform/Log.h"

#include <QUrl>
#include <QUrlQuery>

namespace kesto
{

ImageProvider::ImageProvider(const QString &imagesFolder)
    : QQuickImageProvider(QQuickImageProvider::Image)
    , pictures_(imagesFolder)
{
}

QImage ImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const qsizetype question = id.indexOf(u'?');
    const QString name = QUrl::fromPercentEncoding(id.left(question).toUtf8());
    QColor color;
    if (question >= 0) {
        const QString wanted = QUrlQuery(id.mid(question + 1)).queryItemValue(QStringLiteral("color"));
        if (!wanted.isEmpty())
            color = QColor(wanted.startsWith(u'#') ? wanted : u'#' + wanted);
    }
    QImage image = pictures_.image(name, requestedSize, color);
    if (image.isNull()) {
        if (!missing_.contains(name)) {
            missing_.insert(name);
            log("no picture \"%@\"", name);
        }
        image = QImage(requestedSize.isEmpty() ? QSize(1, 1) : requestedSize, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
    }
    if (size)
        *size = image.size();
    return image;
}

} // namespace kesto
