#include "journal/JornalTableViewController.h"

#include "journal/JornalHelper.h"
#include "model/DietDay.h"
#include "model/JornalDay.h"

namespace kesto
{

JornalTableViewController::JornalTableViewController(DietDay &dietDay)
    : dietDay_(&dietDay)
    , jornalDay_(dietDay.jornalDay())
{
    setLeftBarButtonItem(jornalCloseButton(*this));
}

DietDay *JornalTableViewController::dietDay() const
{
    return dietDay_ != nullptr && !dietDay_->isDeleted() ? dietDay_ : nullptr;
}

void JornalTableViewController::setDietDay(DietDay *day) { dietDay_ = day; }

JornalDay *JornalTableViewController::jornalDay() const
{
    return jornalDay_ != nullptr && !jornalDay_->isDeleted() ? jornalDay_ : nullptr;
}

void JornalTableViewController::setJornalDay(JornalDay *day) { jornalDay_ = day; }

JornalHelper *JornalTableViewController::helper() const { return helper_; }

void JornalTableViewController::setHelper(JornalHelper *helper) { helper_ = helper; }

void JornalTableViewController::close()
{
    if (helper_ != nullptr)
        helper_->deallocCurrentDay();
    TableViewController::close();
}

std::unique_ptr<BarButtonItem> jornalCloseButton(ViewController &tab)
{
    return BarButtonItem::withImage(QStringLiteral("Plus.png"), [&tab] { tab.close(); });
}

} // namespace kesto
