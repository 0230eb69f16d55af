#pragma once

#include <QCache>
#include <QColor>
#include <QImage>
#include <QObject>
#include <QSet>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace kesto
{

/// The pictures of a folder, by the names that the program uses: "menu", "0.png" and "Plus.PNG" mean menu.svg, 0.svg
/// and Plus.svg; a photo keeps its own extension ("12.jpg"). Main thread.
class PictureFolder
{
public:
    explicit PictureFolder(QString folder);

    /// The file of a picture; empty when there is none.
    [[nodiscard]] QString file(const QString &name) const;

    /// The picture to fit into size (its own size where size is empty), with the alpha of the drawing in one colour
    /// when the colour is valid and the picture is no coloured one. Null when there is no such picture.
    [[nodiscard]] QImage image(const QString &name, const QSize &size, const QColor &color);

    /// Whether a picture has colours of its own, which no tint replaces.
    [[nodiscard]] static bool isColoured(const QString &name);

private:
    [[nodiscard]] QImage drawn(const QString &file, const QSize &size);

    const QString folder_;
    QCache<QString, QImage> drawn_;
};

/// Asks for pictures without drawing them.
class Pictures : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// Whether the program has a picture of that name.
    Q_INVOKABLE [[nodiscard]] bool exists(const QString &name) const;
};

} // namespace kesto
