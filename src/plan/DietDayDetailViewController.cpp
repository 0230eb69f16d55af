#include "plan/DietDayDetailViewController.h"

#include "components/NavigationController.h"
#include "components/Window.h"
#include "model/DietDay.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/DishesCategory.h"
#include "plan/CalculatorViewController.h"
#include "plan/DayDishes.h"
#include "plan/DayKinds.h"
#include "plan/DayTexts.h"
#include "plan/PlanContext.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "recipes/QuickDish.h"
#include "store/CoreDataManager.h"

#include <algorithm>
#include <array>

namespace kesto
{

namespace
{

constexpr std::array addTitles{u"Добавить блюдо", u"Добавить блюдо из избраного", u"Добавить быстрое блюдо"};
constexpr std::array addImages{u"add_dish.png", u"favorite_dish.png", u"my_dish.png", u"autofilling_day_icon.png"};
constexpr std::array fillTitles{u"Автонаполнение Атаки", u"Автонаполнение Круиза"}; // by phase

constexpr int attack = 0;
constexpr int cruise = 1;
constexpr int kindsBeforeStart = 2;

template <size_t N>
QString text(const std::array<const char16_t *, N> &texts, int index)
{
    return QString::fromUtf16(texts.at(static_cast<size_t>(index)));
}

} // namespace

DietDayDetailViewController::DietDayDetailViewController(DietDayDetailViewControllerDelegate *delegate)
    : delegate_(delegate)
{
    // The user may have deleted planned dishes in the popover.
    connect(this, &ViewController::popoverChanged, this, [this] {
        if (popover() == nullptr)
            refresh();
    });
}

DietDayDetailViewController::DietDayDetailViewController(const QDateTime &date, int dietPeriod,
                                                         DietDayDetailViewControllerDelegate *delegate)
    : DietDayDetailViewController(delegate)
{
    setDate(date, dietPeriod);
}

void DietDayDetailViewController::viewDidLoad()
{
    if (qobject_cast<NavigationController *>(parentViewController()) != nullptr)
        setRightBarButtonItem(editDishesButtonItem());
}

// Another screen may have changed the day, its dishes or the units.
void DietDayDetailViewController::viewWillAppear() { refresh(); }

void DietDayDetailViewController::viewWillDisappear()
{
    TableViewControllerWithEcternalPicker::viewWillDisappear();
    setEditing(false);
    savePlan();
}

void DietDayDetailViewController::setDate(const QDateTime &date, int period)
{
    if (date != date_ || period != dietPeriod_)
        closePicker(); // wheels that are still turning set the weight of the day they were opened for
    if (date != date_) {
        setEditing(false);
        if (day_ != nullptr)
            savePlan(); // the user leaves this day
    }
    date_ = date;
    dietPeriod_ = period;
    day_ = nullptr;
    if (!disbledDay_)
        refresh();
}

void DietDayDetailViewController::reloadDay()
{
    if (disbledDay_ || !date_.isValid())
        return;
    day_ = DietDay::dayWithoutCreation(date_, planContext());
    showDay();
}

void DietDayDetailViewController::setDisbledDay(bool disabled)
{
    if (disabled == disbledDay_)
        return;
    closePicker();
    setEditing(false);
    disbledDay_ = disabled;
    day_ = nullptr;
    refresh();
}

DietDay *DietDayDetailViewController::day()
{
    if ((day_ == nullptr || day_->isDeleted()) && date_.isValid() && !disbledDay_)
        day_ = DietDay::dietDatWithDate(date_, planContext()).value_or(nullptr);
    return day_;
}

void DietDayDetailViewController::refresh()
{
    (void)day(); // loading a day creates its record
    showDay();
}

void DietDayDetailViewController::showDay()
{
    const CoreDataManager &manager = CoreDataManager::sharedManager();
    kgString_ = manager.kgString();
    metrickSystem_ = manager.isMetrickSystem();
    setTitle(disbledDay_ || !date_.isValid() ? QString() : dayTitle(date_));
    createContent();
    reloadData();
}

void DietDayDetailViewController::createContent()
{
    content_.clear();
    if (day_ != nullptr && !day_->isDeleted())
        content_ = dishesOfDay(*day_);
    if (content_.empty())
        setEditing(false);
    Q_EMIT contentChanged();
}

int DietDayDetailViewController::kindCount() const
{
    return dietPeriod_ < 0 ? kindsBeforeStart : DayKinds::offeredIn(dietPeriod_);
}

int DietDayDetailViewController::numberOfSections() const
{
    if (disbledDay_ || !date_.isValid())
        return 0;
    return isEditing() ? AddSection : AddSection + 1;
}

int DietDayDetailViewController::numberOfRowsInSection(int section) const
{
    switch (section) {
    case DaySection:
        return 1 + kindCount();
    case DishesSection:
        return static_cast<int>(content_.size());
    default:
        return dietPeriod_ == attack || dietPeriod_ == cruise ? AutoFillRow + 1 : AutoFillRow;
    }
}

QString DietDayDetailViewController::titleForHeaderInSection(int section) const
{
    const bool inBar = qobject_cast<NavigationController *>(parentViewController()) != nullptr;
    return section == DaySection && !inBar ? title() : QString();
}

TableRow DietDayDetailViewController::cellForRow(const IndexPath &path) const
{
    switch (path.section) {
    case DaySection:
        return dayRow(path.row);
    case DishesSection:
        return dishRow(*content_[static_cast<size_t>(path.row)]);
    default:
        return addRow(path.row);
    }
}

TableRow DietDayDetailViewController::dayRow(int row) const
{
    if (row == weightRow)
        return {.id = weightRow,
                .kind = TableRow::Kind::Value,
                .title = localized(QStringLiteral("Вес")),
                .detail = weightText(day_ != nullptr ? day_->weight() : std::nullopt, metrickSystem_, kgString_),
                .image = QStringLiteral("weight.png")};
    const int kind = row - 1;
    const QString &key = DayKinds::keys().at(static_cast<size_t>(kind));
    const bool selected = day_ != nullptr && day_->valueForKey(key).toBool();
    return {.id = key,
            .title = DayKinds::title(kind),
            .image = DayKinds::image(kind),
            .accessory = selected ? TableRow::Accessory::Checkmark : TableRow::Accessory::None,
            .selected = selected};
}

TableRow DietDayDetailViewController::dishRow(const DishInDietDay &planned) const
{
    const bool opens = planned.dish() != nullptr;
    return {.id = QString::number(planned.objectID()),
            .title = planned.displayName(),
            .accessory = opens ? TableRow::Accessory::Disclosure : TableRow::Accessory::None,
            .selectable = opens,
            .canDelete = true,
            .canMove = true};
}

TableRow DietDayDetailViewController::addRow(int row) const
{
    return {.id = row,
            .kind = TableRow::Kind::Button,
            .title = localized(row == AutoFillRow ? text(fillTitles, dietPeriod_) : text(addTitles, row)),
            .image = text(addImages, row)};
}

void DietDayDetailViewController::setEditing(bool editing)
{
    if (editing == isEditing() || (editing && numberOfSections() == 0))
        return;
    TableViewControllerWithEcternalPicker::setEditing(editing);
    if (editing)
        deleteSection(AddSection);
    else if (numberOfSections() > AddSection)
        insertSection(AddSection);
}

std::unique_ptr<BarButtonItem> DietDayDetailViewController::editDishesButtonItem()
{
    std::unique_ptr<BarButtonItem> item = editButtonItem();
    const auto show = [this, button = item.get()] {
        button->setVisible(numberOfSections() > 0 && (isEditing() || !content_.empty()));
    };
    show();
    connect(this, &DietDayDetailViewController::contentChanged, item.get(), show);
    connect(this, &TableViewController::editingChanged, item.get(), show);
    return item;
}

void DietDayDetailViewController::didSelectRow(const IndexPath &path, const RowId &id)
{
    if (day() == nullptr)
        return;
    if (path.section == DaySection) {
        if (id == weightRow)
            displayPickerForIndexPath(path);
        else
            toggleKind(id.text());
    } else if (path.section == DishesSection) {
        if (Dish *dish = content_[static_cast<size_t>(path.row)]->dish())
            openDish(*dish);
    } else {
        switch (id.as<AddRow>()) {
        case AddDishRow:
            openCatalogue();
            break;
        case AddFavoriteRow:
            openFavorites();
            break;
        case AddQuickDishRow:
            askForQuickDish(this, [this](Dish &dish) { addDish(dish); });
            break;
        case AutoFillRow:
            autoFillDay();
        }
    }
}

// Without a weight the wheels start at the last earlier weight, else at the calculator's.
float DietDayDetailViewController::shownOnWheels() const
{
    if (day_ != nullptr && day_->weight())
        return *day_->weight();
    FetchRequest request;
    request.predicate = attribute("date") < date_ && attribute("weight") > 0.0;
    request.sortDescriptors = {{"date", false}};
    request.fetchLimit = 1;
    const std::vector<DietDay *> weighed = planContext().fetchOrLog<DietDay>(request);
    if (!weighed.empty())
        return weighed.front()->weight().value_or(0);
    const int weightInput = static_cast<int>(CalculatorInput::Weight);
    const float entered = Platform::current().userDefaults().floatForKey(
        CalculatorViewController::keys()[CalculatorViewController::InputsSection][weightInput]);
    return entered > 0 ? entered : CalculatorViewController::defaultValueForIndex(weightInput).toFloat();
}

int DietDayDetailViewController::selectedRowInComponent(int component) const
{
    return wheels().row(shownOnWheels(), component);
}

void DietDayDetailViewController::pickerDidSelectRow(int, int)
{
    QList<int> rows;
    for (int component = 0; component < wheels().numberOfComponents(); ++component)
        rows.append(picker()->selectedRow(component));
    day()->setWeight(wheels().value(rows));
    savePlan();
    reloadRow({DaySection, weightRow});
    Q_EMIT weightChanged();
}

void DietDayDetailViewController::toggleKind(const QString &kind)
{
    DietDay &shown = *day();
    const bool selected = !shown.valueForKey(kind).toBool();
    for (const QString &key : DayKinds::keys())
        shown.setValueForKey(key == kind && selected, key);
    savePlan();
    reloadSection(DaySection);
    if (delegate_ != nullptr && Window::sharedWindow().isTablet())
        delegate_->dietDayDetailViewControllerDidUpdateDay();
}

void DietDayDetailViewController::commitDelete(const IndexPath &path, const RowId &)
{
    DishInDietDay &planned = *content_[static_cast<size_t>(path.row)];
    Dish *dish = planned.dish();
    day()->removeDishes(planned);
    planContext().deleteObject(planned);
    if (dish != nullptr && dish->dishCategory() == nullptr)
        CoreDataManager::sharedManager().deleteDish(*dish);
    createContent(); // deleting a quick dish deletes all its entries
    renumber(content_);
    savePlan();
    reloadSection(DishesSection);
}

void DietDayDetailViewController::moveRow(const IndexPath &from, const IndexPath &to)
{
    const auto first = content_.begin() + std::min(from.row, to.row);
    const auto last = content_.begin() + std::max(from.row, to.row) + 1;
    std::rotate(first, from.row < to.row ? first + 1 : last - 1, last);
    renumber(content_);
    savePlan();
}

} // namespace kesto
