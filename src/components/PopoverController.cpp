#include "components/PopoverController.h"

#include "components/ViewController.h"

namespace kesto
{

PopoverController::PopoverController(ViewController *content, ViewController *owner, const QString &anchor)
    : QObject(owner)
    , content_(content)
    , owner_(owner)
    , anchor_(anchor)
{
}

ViewController *PopoverController::content() const { return content_; }
ViewController *PopoverController::owner() const { return owner_; }

void PopoverController::setSizeHint(const QSizeF &size)
{
    if (sizeHint_ == size)
        return;
    sizeHint_ = size;
    Q_EMIT sizeHintChanged();
}

void PopoverController::dismiss()
{
    if (owner_ && owner_->popover() == this)
        owner_->dismissPopover();
}

} // namespace kesto
