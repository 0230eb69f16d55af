#pragma once

#include "components/ViewController.h"

namespace kesto
{

/// One picture as large as there is room, to be looked at closely.
class ImageViewController : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QString picture READ picture CONSTANT)
public:
    /// The name of a photo without its extension, or of another picture.
    ImageViewController(const QString &imageName, const QString &title);

    [[nodiscard]] QString picture() const { return picture_; }

    /// The file name of a photo; null where the program has none of that name.
    [[nodiscard]] static QString photoOf(const QString &imageName);

private:
    QString picture_;
};

} // namespace kesto
