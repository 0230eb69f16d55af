#include "Pictures.h"

#include "util/ImageFiles.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>

namespace kesto
{

namespace
{

constexpr int cachedKilobytes = 8 * 1024;

bool isPhoto(const QString &extension)
{
    return extension == QLatin1String("jpg") || extension == QLatin1String("jpeg");
}

} // namespace

PictureFolder::PictureFolder(QString folder)
    : folder_(std::move(folder))
    , drawn_(cachedKilobytes)
{
}

QString PictureFolder::file(const QString &name) const
{
    const QString extension = QFileInfo(name).suffix().toLower();
    if (isPhoto(extension))
        return fileInFolder(folder_, name);
    const bool hasExtension = extension == QLatin1String("png") || extension == QLatin1String("svg");
    const QString drawing = hasExtension ? name.chopped(extension.size() + 1) : name;
    return fileInFolder(folder_, drawing + QStringLiteral(".svg"));
}

bool PictureFolder::isColoured(const QString &name)
{
    return name.startsWith(QLatin1String("app_icon")) || name.startsWith(QLatin1String("AppIcon")) ||
           name.startsWith(QLatin1String("background")) || isPhoto(QFileInfo(name).suffix().toLower());
}

QImage PictureFolder::drawn(const QString &file, const QSize &size)
{
    const QString key = QStringLiteral("%1 %2x%3").arg(file).arg(size.width()).arg(size.height());
    if (const QImage *known = drawn_.object(key))
        return *known;

    QImage image;
    if (file.endsWith(QLatin1String(".svg"))) {
        QSvgRenderer renderer(file);
        if (!renderer.isValid())
            return {};
        QSize fitted = renderer.defaultSize();
        if (!size.isEmpty())
            fitted.scale(size, Qt::KeepAspectRatio);
        image = QImage(fitted, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        renderer.render(&painter, QRectF(QPointF(), QSizeF(fitted)));
    } else {
        QImageReader reader(file);
        reader.setAutoTransform(true);
        const QSize natural = reader.size();
        if (!size.isEmpty() && natural.isValid())
            reader.setScaledSize(natural.scaled(size, Qt::KeepAspectRatio));
        image = reader.read();
    }
    if (!image.isNull())
        drawn_.insert(key, new QImage(image), qMax(1, int(image.sizeInBytes() / 1024)));
    return image;
}

QImage PictureFolder::image(const QString &name, const QSize &size, const QColor &color)
{
    const QString path = file(name);
    if (path.isEmpty())
        return {};
    QImage image = drawn(path, size);
    if (!image.isNull() && color.isValid() && !isColoured(name)) {
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), color);
    }
    return image;
}

bool Pictures::exists(const QString &name) const { return !PictureFolder(imagesFolder()).file(name).isEmpty(); }

} // namespace kesto
