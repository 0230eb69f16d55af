#include "journal/BalanceRootViewController.h"

#include "platform/StringFormat.h"
#include "platform/StringTables.h"
#include "store/CoreDataManager.h"

#include <utility>

namespace kesto
{

BalanceRootViewController::BalanceRootViewController(DietDay &dietDay, QString unit)
    : JornalTableViewController(dietDay)
    , unit_(std::move(unit))
{
}

QString BalanceRootViewController::progressText() const
{
    if (normalValue_ < 1)
        return {};
    const QString unit = localized(unit_);
    return stringWithFormat("%ld %@/%ld %@", currentValue_, unit, normalValue_, unit);
}

QString BalanceRootViewController::currentText() const { return progressText().section(u'/', 0, 0); }

QString BalanceRootViewController::normalText() const { return progressText().mid(currentText().size()); }

double BalanceRootViewController::progress() const
{
    return normalValue_ < 1 ? 0 : static_cast<double>(currentValue_) / normalValue_;
}

void BalanceRootViewController::setJornalDay(JornalDay *day)
{
    JornalTableViewController::setJornalDay(day);
    reloadData();
}

void BalanceRootViewController::reloadData()
{
    readIntake();
    readNorm();
    updateProgressViews();
    JornalTableViewController::reloadData();
    Q_EMIT rowsChanged();
}

void BalanceRootViewController::viewWillAppear()
{
    JornalTableViewController::viewWillAppear();
    reloadData();
}

void BalanceRootViewController::updateProgressViews()
{
    const bool sameCurrent = std::exchange(shownCurrentValue_, currentValue_) == currentValue_;
    const bool sameNormal = std::exchange(shownNormalValue_, normalValue_) == normalValue_;
    if (!sameCurrent || !sameNormal)
        Q_EMIT valuesChanged();
}

void BalanceRootViewController::saveAndReload()
{
    CoreDataManager::sharedManager().managedObjectContext()->saveOrKeepChanges();
    reloadData();
}

} // namespace kesto
