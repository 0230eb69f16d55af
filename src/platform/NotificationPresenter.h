#pragma once

#include <QString>

namespace kesto
{

/// Puts a message before the user, outside of the program's own windows.
class NotificationPresenter
{
public:
    virtual ~NotificationPresenter() = default;
    /// Plain texts. Returns at once; a failure is logged.
    virtual void show(const QString &title, const QString &body, bool sound) = 0;
};

} // namespace kesto
