#include "components/Picker.h"

#include <algorithm>

namespace kesto
{

void PickerComponent::setTitles(const QStringList &titles)
{
    if (titles_ == titles)
        return;
    titles_ = titles;
    Q_EMIT titlesChanged();
    setSelectedRow(selectedRow_);
}

void PickerComponent::setSelectedRow(int row)
{
    const int last = static_cast<int>(titles_.size()) - 1;
    const int nearest = last < 0 ? -1 : std::clamp(row, 0, last);
    if (selectedRow_ == nearest)
        return;
    selectedRow_ = nearest;
    Q_EMIT selectedRowChanged();
}

void PickerComponent::select(int row)
{
    if (row < 0 || row >= titles_.size())
        return;
    setSelectedRow(row);
    Q_EMIT selected(row);
}

Picker::Picker(QObject *parent)
    : QObject(parent)
{
}

Picker::~Picker() = default;

QList<PickerComponent *> Picker::components() const
{
    QList<PickerComponent *> result;
    for (const auto &component : components_)
        result.append(component.get());
    return result;
}

int Picker::selectedRow(int component) const { return components_.at(component)->selectedRow(); }

void Picker::setContent(const QList<QStringList> &titles, const QList<int> &selectedRows)
{
    Q_ASSERT(titles.size() == selectedRows.size());
    const auto count = static_cast<std::size_t>(titles.size());
    const bool otherCount = count != components_.size();
    while (components_.size() > count) {
        components_.back().release()->deleteLater(); // its user may be turning it
        components_.pop_back();
    }
    while (components_.size() < count) {
        auto component = std::make_unique<PickerComponent>();
        const int index = static_cast<int>(components_.size());
        connect(component.get(), &PickerComponent::selected, this,
                [this, index](int row) { Q_EMIT selected(row, index); });
        components_.push_back(std::move(component));
    }
    for (int index = 0; index < titles.size(); ++index) {
        components_[index]->setTitles(titles.at(index));
        components_[index]->setSelectedRow(selectedRows.at(index));
    }
    if (otherCount)
        Q_EMIT componentsChanged();
}

} // namespace kesto
