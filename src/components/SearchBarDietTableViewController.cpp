#include "components/SearchBarDietTableViewController.h"

#include "components/PopoverController.h"
#include "platform/StringTables.h"

#include <utility>

namespace kesto
{

namespace
{

constexpr QSizeF selectorSize(280, 252); // its five rows

} // namespace

SearchBarDietTableViewController::SearchBarDietTableViewController(QObject *parent)
    : TableViewController(parent)
{
}

void SearchBarDietTableViewController::setPeriodsScopes(bool shows)
{
    if (std::exchange(periodsScopes_, shows) != shows)
        Q_EMIT periodsScopesChanged();
}

QStringList SearchBarDietTableViewController::scopeTitles() const
{
    return {localized(QStringLiteral("Все")), localized(QStringLiteral("Атака")), localized(QStringLiteral("Круиз")),
            localized(QStringLiteral("Конс.")), localized(QStringLiteral("Стаб."))};
}

void SearchBarDietTableViewController::updateToPeriod(int period)
{
    dismissPopover();
    currentPeriod_ = period;
    currentItems_ = period == 0 ? QVariantList() : filtedItemsForPeriod(period);
    search();
    refresh();
    Q_EMIT currentPeriodChanged();
}

QVariantList SearchBarDietTableViewController::filtedItemsForPeriod(int) const { return content_; }

void SearchBarDietTableViewController::showPeriodSelector(const QString &anchor)
{
    if (auto selector = makePeriodSelector(currentPeriod_))
        presentPopover(std::move(selector), anchor)->setSizeHint(selectorSize);
}

std::unique_ptr<ViewController> SearchBarDietTableViewController::makePeriodSelector(int) { return nullptr; }

void SearchBarDietTableViewController::setSearchText(const QString &text)
{
    if (searchText_ == text)
        return;
    searchText_ = text;
    search();
    Q_EMIT searchChanged();
    refresh();
}

void SearchBarDietTableViewController::setSearchScope(int scope)
{
    if (searchScope_ == scope)
        return;
    searchScope_ = scope;
    search();
    Q_EMIT searchChanged();
    if (isSearchActive())
        refresh();
}

void SearchBarDietTableViewController::search()
{
    searchResults_ = isSearchActive() ? searchWithString(searchText_, searchScope_) : QVariantList();
}

QVariantList SearchBarDietTableViewController::searchWithString(const QString &, int) const { return {}; }

const QVariantList &SearchBarDietTableViewController::items() const
{
    if (isSearchActive())
        return searchResults_;
    return currentPeriod_ == 0 ? content_ : currentItems_;
}

void SearchBarDietTableViewController::viewDidAppear()
{
    TableViewController::viewDidAppear();
    launched_ = true;
}

} // namespace kesto
