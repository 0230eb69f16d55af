#include "components/SplitViewController.h"

#include "components/Window.h"

#include <utility>

namespace kesto
{

SplitViewController::SplitViewController(std::unique_ptr<ViewController> master, std::unique_ptr<ViewController> detail)
    : master_(adopt(std::move(master)))
    , detail_(adopt(std::move(detail)))
    , masterHidden_(Window::sharedWindow().isPortrait())
{
    displayModeButtonItem_.setAction([this] { setMenuPopoverOpen(!menuPopoverOpen_); });
    connect(&Window::sharedWindow(), &Window::isPortraitChanged, this, &SplitViewController::followWindow);
}

void SplitViewController::setDelegate(SplitViewControllerDelegate *delegate)
{
    delegate_ = delegate;
    if (delegate_ && masterHidden_)
        delegate_->splitViewControllerWillHideMaster(*this, displayModeButtonItem_);
}

void SplitViewController::setDetail(std::unique_ptr<ViewController> controller)
{
    ViewController *removed = std::exchange(detail_, adopt(std::move(controller)));
    Q_EMIT detailChanged();
    updateAppearance();
    retire(removed);
}

void SplitViewController::followWindow()
{
    const bool hidden = Window::sharedWindow().isPortrait();
    if (masterHidden_ == hidden)
        return;
    setMenuPopoverOpen(false);
    masterHidden_ = hidden;
    if (delegate_ && hidden)
        delegate_->splitViewControllerWillHideMaster(*this, displayModeButtonItem_);
    else if (delegate_)
        delegate_->splitViewControllerWillShowMaster(*this, displayModeButtonItem_);
    Q_EMIT masterHiddenChanged();
}

void SplitViewController::setMenuPopoverOpen(bool open)
{
    if (menuPopoverOpen_ == open || (open && !masterHidden_))
        return;
    menuPopoverOpen_ = open;
    Q_EMIT menuPopoverOpenChanged();
}

QList<ViewController *> SplitViewController::visibleChildren() const { return {master_, detail_}; }

bool SplitViewController::goBack()
{
    if (!menuPopoverOpen_)
        return goBackIn(detail_) || (!masterHidden_ && goBackIn(master_));
    if (!goBackIn(master_))
        setMenuPopoverOpen(false);
    return true;
}

} // namespace kesto
