#pragma once

#include "components/BKPasscodeViewController.h"

namespace kesto
{

/// The same with a look of its own, in the view of its name.
class BKCustomPasscodeViewController : public BKPasscodeViewController
{
    Q_OBJECT
public:
    using BKPasscodeViewController::BKPasscodeViewController;
};

} // namespace kesto
