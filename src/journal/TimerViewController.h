#pragma once

#include "components/ViewController.h"
#include "journal/JornalHelper.h"

namespace kesto
{

/// A countdown that outlives the program.
class TimerViewController : public ViewController
{
    Q_OBJECT
public:
    TimerViewController();

    void setHelper(JornalHelper *helper) { helper_ = helper; }

private:
    QPointer<JornalHelper> helper_;
};

} // namespace kesto
