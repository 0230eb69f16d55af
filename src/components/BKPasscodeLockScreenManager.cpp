#include "components/BKPasscodeLockScreenManager.h"

#include "components/Window.h"
#include "platform/Platform.h"

namespace kesto
{

BKPasscodeLockScreenManager &BKPasscodeLockScreenManager::sharedManager()
{
    return Platform::current().shared<BKPasscodeLockScreenManager>();
}

BKPasscodeLockScreenManager::BKPasscodeLockScreenManager(Platform &) {}

void BKPasscodeLockScreenManager::showLockScreen(bool animated)
{
    if (isLockScreenShown() || !delegate_ || !delegate_->lockScreenManagerShouldShowLockScreen(*this))
        return;
    Window::sharedWindow().setLockScreen(delegate_->lockScreenManagerPasscodeViewController(*this), animated);
}

bool BKPasscodeLockScreenManager::isLockScreenShown() const { return Window::sharedWindow().lockScreen() != nullptr; }

} // namespace kesto
