#pragma once

#include "platform/Platform.h"

#include <memory>

namespace kesto
{

class ViewController;

/// The arrangement of the main screens, as the screens inside it see it.
class Shell
{
public:
    /// The one of the current platform; null before the program has arranged its screens.
    [[nodiscard]] static Shell *current() { return *Platform::current().shared<Slot>().shell; }

    Shell(const Shell &) = delete;
    Shell &operator=(const Shell &) = delete;

    /// Makes a screen the main content: on a tablet the detail beside the menu, on a phone the centre under it.
    virtual void openDetailViewController(std::unique_ptr<ViewController> controller) = 0;
    /// The same with the diet's calendar, as if it was chosen in the menu.
    virtual void openCalendar() = 0;
    /// The same with the screen that the program starts with.
    virtual void openHome() = 0;

protected:
    Shell()
        : current_(Platform::current().shared<Slot>().shell)
    {
        *current_ = this;
    }
    virtual ~Shell()
    {
        if (*current_ == this)
            *current_ = nullptr;
    }

private:
    struct Slot
    {
        explicit Slot(Platform &) {}
        std::shared_ptr<Shell *> shell = std::make_shared<Shell *>(nullptr);
    };
    std::shared_ptr<Shell *> current_; // a screen may end after the platform's slot
};

} // namespace kesto
