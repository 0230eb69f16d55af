#pragma once

#include "Pictures.h"

#include <QQuickImageProvider>

namespace kesto
{

/// "image://kesto/<name>?color=<rrggbb or aarrggbb>": the shipped pictures, drawn at the size that is asked for and
/// tinted. An unknown name gives a transparent picture and, once, a line in the log. Main thread: no asynchronous
/// images.
class ImageProvider : public QQuickImageProvider
{
    Q_OBJECT

public:
    /// imagesFolder holds the pictures.
    explicit ImageProvider(const QString &imagesFolder);

    [[nodiscard]] static QString scheme() { return QStringLiteral("kesto"); }

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

private:
    PictureFolder pictures_;
    QSet<QString> missing_;
};

} // namespace kesto
