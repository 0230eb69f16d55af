#include "journal/WaterBalanceRootViewController.h"

#include "components/NavigationController.h"
#include "journal/JornalHelper.h"
#include "journal/TimeOfDay.h"
#include "journal/WaterVals.h"
#include "model/DietDay.h"
#include "model/FoodObject.h"
#include "model/JornalDay.h"
#include "model/TimeRow.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"

namespace kesto
{

namespace
{

constexpr int moreOnHardDays = 480; // millilitres
constexpr int hotDayTag = 3;        // no button has it
constexpr int woman = 1;

ManagedObjectContext &context() { return *CoreDataManager::sharedManager().managedObjectContext(); }

} // namespace

WaterBalanceRootViewController::WaterBalanceRootViewController(DietDay &dietDay)
    : BalanceRootViewController(dietDay, QStringLiteral("мл"))
{
    setTitle(localized(QStringLiteral("Контроль за водой")));
    const auto addAction = [this](int tag, const QString &image) {
        actionButtons_.add(tag, {.image = image, .name = localized(image), .choosable = tag != VolumeAction});
    };
    addAction(VolumeAction, QStringLiteral("water_volume"));
    addAction(HeatAction, QStringLiteral("button_heat"));
    addAction(ActivityAction, QStringLiteral("button_activity"));
    connect(&picker_, &WaterPicker::valueChanged, this, [this] { waterButtonTouchedInPicker(picker_); });
    showDayFlags();
    BalanceRootViewController::reloadData();
}

void WaterBalanceRootViewController::setJornalDay(JornalDay *day)
{
    BalanceRootViewController::setJornalDay(day);
    showDayFlags();
}

void WaterBalanceRootViewController::showDayFlags()
{
    const JornalDay *day = jornalDay();
    actionButtons_.withTag(HeatAction)->setSelected(day != nullptr && day->hotDay().value_or(false));
    actionButtons_.withTag(ActivityAction)->setSelected(day != nullptr && day->sportDay().value_or(false));
}

void WaterBalanceRootViewController::waterButtonTouchedInPicker(const WaterPicker &picker)
{
    JornalDay *day = jornalDay();
    if (day == nullptr)
        return;
    auto &record = context().insert<FoodObject>();
    record.setType(picker.selected());
    record.setTime(JornalHelper::currentTime());
    record.setJornalDayWatter(day);
    saveAndReload();
}

void WaterBalanceRootViewController::actionButtonTouched(int tag)
{
    if (tag == VolumeAction) {
        presentViewController(
            std::make_unique<NavigationController>(std::make_unique<WaterValuesTableViewController>(*this)), true);
        return;
    }
    JornalButton *button = actionButtons_.withTag(tag);
    JornalDay *day = jornalDay();
    if (button == nullptr || day == nullptr)
        return;
    const bool selected = !button->isSelected();
    button->setSelected(selected);
    setNormalValue(normalValue() + (selected ? moreOnHardDays : -moreOnHardDays));
    if (tag == hotDayTag)
        day->setHotDay(selected);
    else
        day->setSportDay(selected);
    context().saveOrKeepChanges();
    updateProgressViews();
}

void WaterBalanceRootViewController::waterValsChanged()
{
    picker_.reloadTitles();
    reloadData();
}

void WaterBalanceRootViewController::readIntake()
{
    portions_ = waterValsDict();
    content_.clear();
    if (JornalDay *day = jornalDay()) {
        // One fetch, however many rows there are: walking from row to row would read the items of each by itself.
        FetchRequest done;
        done.predicate = attribute("joranlDay") == day && attribute("compleate") == true;
        done.sortDescriptors = {{"time"}};
        done.relationshipKeyPathsForPrefetching = {"timeObjects"};
        content_ = waterIntake(context().fetchOrLog<TimeRow>(done), day->waterObjects());
    }
    setCurrentValue(waterDrunk(content_, portions_));
}

std::optional<float> WaterBalanceRootViewController::weight() const
{
    const DietDay *day = dietDay();
    if (day != nullptr && day->weight())
        return day->weight();
    FetchRequest latest;
    latest.predicate = !attribute("weight").isAbsent();
    latest.sortDescriptors = {{"date", false}};
    latest.fetchLimit = 1;
    const std::vector<DietDay *> found = context().fetchOrLog<DietDay>(latest);
    return found.empty() ? std::nullopt : found.front()->weight();
}

void WaterBalanceRootViewController::calculateNormalValue()
{
    const qint64 sex = Platform::current().userDefaults().integerForKey(QStringLiteral("Пол"));
    setNormalValue(waterNorm(weight(), sex == woman));
}

int WaterBalanceRootViewController::numberOfRowsInSection(int) const { return static_cast<int>(content_.size()); }

TableRow WaterBalanceRootViewController::cellForRow(const IndexPath &path) const
{
    const WaterIntake &intake = content_.at(static_cast<size_t>(path.row));
    return {.id = intake.record != nullptr ? RowId(QString::number(intake.record->objectID())) : RowId(),
            .title = waterVolumeText(waterVolume(portions_, intake.portion)),
            .subtitle = intake.record != nullptr ? waterPortionName(intake.portion)
                                                 : localized(QStringLiteral("Расписание дня")),
            .detail = timeText(intake.time),
            .image = waterPortionImage(intake.portion),
            .selectable = false,
            .canDelete = intake.record != nullptr};
}

void WaterBalanceRootViewController::commitDelete(const IndexPath &path, const RowId &)
{
    FoodObject *record = content_.at(static_cast<size_t>(path.row)).record;
    if (record == nullptr)
        return;
    record->setJornalDayWatter(nullptr);
    context().deleteObject(*record);
    saveAndReload();
}

} // namespace kesto
