#include "plan/DietPeriodsSelector.h"

#include "platform/StringFormat.h"
#include "store/CoreDataManager.h"

namespace kesto
{

void DietPeriodsSelector::buttonTouched(int tag)
{
    if (tag < 0 || tag >= stabilization)
        return;
    bool &selected = selected_[static_cast<size_t>(tag)];
    selected = !selected;
    Q_EMIT dataChanged(index(tag), index(tag), {ImageRole, SelectedRole});
    Q_EMIT selectedPeriodsChanged();
}

QString DietPeriodsSelector::selectedPeriods() const
{
    QString periods;
    int tag = 0;
    for (const bool selected : selected_) {
        if (selected)
            periods += stringWithFormat("%ld, ", tag);
        ++tag;
    }
    periods.chop(2);
    return periods;
}

int DietPeriodsSelector::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(selected_.size());
}

QVariant DietPeriodsSelector::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const int tag = index.row();
    const bool selected = selected_[static_cast<size_t>(tag)];
    switch (role) {
    case TagRole:
        return tag;
    case TitleRole:
        return CoreDataManager::periodNameForDietPeriod(tag);
    case ImageRole:
        return selected ? stringWithFormat("period_%ld_s.png", tag) : stringWithFormat("period_%ld.png", tag);
    case PressedImageRole:
        return stringWithFormat("period_%ld_s.png", tag);
    case ColorRole:
        return CoreDataManager::colorForPeriod(tag).value_or(QColor());
    case SelectedRole:
        return selected;
    case EnabledRole:
        return tag != stabilization;
    default:
        return {};
    }
}

QHash<int, QByteArray> DietPeriodsSelector::roleNames() const
{
    return {
        {TagRole, "tag"},     {TitleRole, "title"},       {ImageRole, "image"},    {PressedImageRole, "pressedImage"},
        {ColorRole, "color"}, {SelectedRole, "selected"}, {EnabledRole, "enabled"}};
}

} // namespace kesto
