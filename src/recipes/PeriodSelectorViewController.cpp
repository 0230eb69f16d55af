#include "recipes/PeriodSelectorViewController.h"

#include "platform/StringTables.h"

namespace kesto
{

namespace
{

QStringList titles()
{
    return {QStringLiteral("Все"), QStringLiteral("Атака"), QStringLiteral("Круиз"), QStringLiteral("Консол."),
            QStringLiteral("Стаб.")};
}

} // namespace

PeriodSelectorViewController::PeriodSelectorViewController(int currentPeriod, PeriodSelectorDelegate *delegate)
    : currentPeriod_(currentPeriod)
    , delegate_(delegate)
{
    setTitle(localized(QStringLiteral("Phase")));
}

int PeriodSelectorViewController::numberOfRowsInSection(int) const { return static_cast<int>(titles().size()); }

TableRow PeriodSelectorViewController::cellForRow(const IndexPath &path) const
{
    return {.id = path.row,
            .kind = TableRow::Kind::Text,
            .title = localized(titles()[path.row]),
            .accessory = path.row == currentPeriod_ ? TableRow::Accessory::Checkmark : TableRow::Accessory::None};
}

void PeriodSelectorViewController::didSelectRow(const IndexPath &, const RowId &id)
{
    currentPeriod_ = id.number();
    reloadData();
    if (delegate_ != nullptr)
        delegate_->updateToPeriod(currentPeriod_);
}

} // namespace kesto
