#pragma once

#include <functional>

class QUrl;

namespace kesto
{

/// Hands an address to the program that the system has for it; false when there is none.
using UrlOpener = std::function<bool(const QUrl &)>;

} // namespace kesto
