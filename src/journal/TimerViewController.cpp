#include "journal/TimerViewController.h"

#include "journal/JornalTableViewController.h"

namespace kesto
{

TimerViewController::TimerViewController() { setLeftBarButtonItem(jornalCloseButton(*this)); }

} // namespace kesto
