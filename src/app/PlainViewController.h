#pragma once

#include "components/ViewController.h"

#include <QString>

namespace kesto
{

/// A screen with nothing but a title, and a picture of what it is about.
class PlainViewController : public ViewController
{
    Q_OBJECT
    Q_PROPERTY(QString image READ image CONSTANT)
public:
    PlainViewController() = default;
    explicit PlainViewController(const QString &title, const QString &image = {})
        : image_(image)
    {
        setTitle(title);
    }

    /// The name of a picture; null for none.
    [[nodiscard]] QString image() const { return image_; }

private:
    QString image_;
};

} // namespace kesto
