#include "recipes/ImageViewController.h"

#include "util/ImageFiles.h"

namespace kesto
{

ImageViewController::ImageViewController(const QString &imageName, const QString &title)
    : picture_(photoNamed(imageName))
{
    if (picture_.isNull())
        picture_ = imageName;
    setTitle(title);
}

} // namespace kesto
