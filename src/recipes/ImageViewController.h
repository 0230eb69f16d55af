#pragma once

#include "components/ViewController.h"

namespace kesto
{

/// One picture at the largest size that fits the screen.
class ImageViewController : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QString picture READ picture CONSTANT)
public:
    /// The name of a photo without its extension, or of another picture.
    ImageViewController(const QString &imageName, const QString &title);

    [[nodiscard]] QString picture() const { return picture_; }

private:
    QString picture_;
};

} // namespace kesto
