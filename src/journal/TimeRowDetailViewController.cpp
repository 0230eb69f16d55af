#include "journal/TimeRowDetailViewController.h"

#include "components/AlertCenter.h"
#include "components/NavigationController.h"
#include "journal/Reminders.h"
#include "journal/TimeDialog.h"
#include "journal/TimeObjectAdditions.h"
#include "journal/TimeOfDay.h"
#include "journal/TimeRowAdditions.h"
#include "journal/WaterPicker.h"
#include "model/DietDay.h"
#include "model/DishInDietDay.h"
#include "model/JornalDay.h"
#include "model/TimeObject.h"
#include "model/TimeRow.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "platform/objectgraph/ManagedObjectContext.h"
#include "util/TypedNumber.h"

#include <algorithm>
#include <limits>

namespace kesto
{

namespace
{

constexpr int waterType = static_cast<int>(TimeObjectType::Water);

ManagedObjectContext &contextOf(const TimeRow &row) { return row.managedObjectContext(); }

/// A whole number that the store takes.
int wholePart(float number)
{
    constexpr auto largest = static_cast<float>(std::numeric_limits<int>::max());
    return number >= largest ? std::numeric_limits<int>::max() : static_cast<int>(number);
}

template <class Number>
QString fieldText(const std::optional<Number> &value)
{
    return value ? stringWithFormat("%@", value) : QString();
}

} // namespace

TimeRowDetailViewController::TimeRowDetailViewController(TimeRow &timeRow)
    : waterPicker_(std::make_unique<WaterPicker>(WaterPicker::Mode::Selection))
{
    connect(waterPicker_.get(), &WaterPicker::valueChanged, this,
            [this] { waterValueChanged(waterPicker_->selected()); });
    setTimeRow(timeRow);
}

TimeRowDetailViewController::~TimeRowDetailViewController() = default;

void TimeRowDetailViewController::setTimeRow(TimeRow &timeRow)
{
    timeRow_ = &timeRow;
    setTitle(timeDescription(timeRow));
    timeObjects_.clear();
    for (TimeObject *item : timeRow.timeObjects()) {
        if (item->type())
            timeObjects_.insert(*item->type(), item);
    }
    const TimeObject *water = timeObjects_.value(waterType);
    waterPicker_->setSelected(water != nullptr ? water->waterType().value_or(0) : 0);
    reminderOn_ = timeRow.remind().value_or(false);
    valuesChanged_ = false;
    reloadData();
}

TimeRow *TimeRowDetailViewController::timeRow() const { return timeRow_->isDeleted() ? nullptr : timeRow_; }

void TimeRowDetailViewController::viewDidLoad()
{
    auto time = BarButtonItem::withImage(QStringLiteral("clock.png"), [this] { changeTime(); });
    time->setAccessibleName(localized(QStringLiteral("Изменить время")));
    setRightBarButtonItem(std::move(time));
}

// A dish may have been deleted, or the volumes of the portions changed, while another screen was in sight.
void TimeRowDetailViewController::viewWillAppear()
{
    if (timeRow() == nullptr)
        return;
    waterPicker_->reloadTitles();
    reloadData();
}

void TimeRowDetailViewController::viewWillDisappear()
{
    if (const Result<void> saved = contextOf(*timeRow_).save(); !saved)
        log("error whileSavingContext - %@", saved.error().message());
}

int TimeRowDetailViewController::numberOfRowsInSection(int) const { return timeRow() != nullptr ? rowCount : 0; }

TableRow TimeRowDetailViewController::cellForRow(const IndexPath &path) const
{
    switch (path.row) {
    case WaterRow:
        return {.id = WaterRow,
                .kind = TableRow::Kind::Custom,
                .title = timeObjectNameForType(waterType),
                .image = timeObjectImageForType(waterType),
                .selectable = false,
                .cell = QStringLiteral("WaterPickerCell"),
                .value = QVariant::fromValue<QObject *>(waterPicker_.get())};
    case OtherRow:
        return {.id = OtherRow,
                .kind = TableRow::Kind::Editable,
                .title = localized(QStringLiteral("Другое")),
                .image = QStringLiteral("ic_other.png"),
                .text = timeRow_->otherTimeObject()};
    case FirstDishRow:
    case SecondDishRow:
        return dishRow(path.row);
    case ReminderRow:
        return {.id = ReminderRow,
                .kind = TableRow::Kind::Switch,
                .title = localized(QStringLiteral("Напоминание")),
                .image = QStringLiteral("ic_reminder.png"),
                .on = reminderOn_};
    default:
        return itemRow(path.row);
    }
}

TableRow TimeRowDetailViewController::itemRow(int type) const
{
    const TimeObject *item = timeObjects_.value(type);
    const QString name = timeObjectNameForType(type);
    const auto field = [&](int tag, const QString &text, const QString &unit) {
        return QVariantMap{{QStringLiteral("tag"), tag},
                           {QStringLiteral("text"), text},
                           {QStringLiteral("unit"), unit},
                           {QStringLiteral("name"), QStringList{name, unit}.join(QStringLiteral(", "))}};
    };
    QVariantList fields{field(type, item != nullptr ? fieldText(item->value1()) : QString(), prefix1ForIndex(type))};
    if (const QString unit = prefix2ForIndex(type); !unit.isNull())
        fields.append(field(secondValueTag + type, item != nullptr ? fieldText(item->value2()) : QString(), unit));
    return {.id = type,
            .kind = TableRow::Kind::Editable,
            .title = name,
            .image = timeObjectImageForType(type),
            .accessory = TableRow::Accessory::InfoButton,
            .keyboard = Keyboard::Type::Decimal,
            .color = timeObjectColorForType(type),
            .cell = QStringLiteral("TimeObjectCell"),
            .value = fields};
}

TableRow TimeRowDetailViewController::dishRow(int row) const
{
    const DishInDietDay *planned = dishInSlot(row - FirstDishRow);
    return {.id = row,
            .kind = TableRow::Kind::Text,
            .title = planned != nullptr ? planned->displayName() : localized(QStringLiteral("Не выбранно")),
            .image = QStringLiteral("add_dish.png"),
            .accessory = TableRow::Accessory::Disclosure,
            .canDelete = planned != nullptr};
}

DishInDietDay *TimeRowDetailViewController::dishInSlot(int slot) const
{
    const std::vector<DishInDietDay *> dishes = timeRow_->dishesInDietDay();
    const auto found = std::find_if(dishes.begin(), dishes.end(),
                                    [slot](const DishInDietDay *planned) { return planned->displayOrder() == slot; });
    return found != dishes.end() ? *found : nullptr;
}

void TimeRowDetailViewController::changed()
{
    contextOf(*timeRow_).saveOrKeepChanges();
    Q_EMIT rowChanged();
}

TimeObject &TimeRowDetailViewController::itemOfType(int type)
{
    TimeObject *&item = timeObjects_[type];
    if (item == nullptr || item->isDeleted()) {
        item = &contextOf(*timeRow_).insert<TimeObject>();
        item->setType(type);
        timeRow_->addTimeObjects(*item);
    }
    return *item;
}

void TimeRowDetailViewController::removeItem(int type)
{
    TimeObject *item = timeObjects_.take(type);
    if (item == nullptr || item->isDeleted())
        return;
    timeRow_->removeTimeObjects(*item);
    contextOf(*timeRow_).deleteObject(*item);
}

void TimeRowDetailViewController::textFieldDidEndEditing(const IndexPath &, const RowId &, const QString &text)
{
    endEditing(otherTag, text);
}

void TimeRowDetailViewController::endEditing(int tag, const QString &text)
{
    if (timeRow() == nullptr)
        return;
    if (tag == otherTag) {
        timeRow_->setOtherTimeObject(text.isEmpty() ? QString() : text);
        reloadRow({0, OtherRow});
    } else {
        storeValue(tag, text);
    }
    changed();
}

void TimeRowDetailViewController::storeValue(int tag, const QString &text)
{
    const bool second = tag > secondValueTag;
    const int type = second ? tag - secondValueTag : tag;
    const float number = floatValue(text);
    if (number > 0) {
        TimeObject &item = itemOfType(type);
        if (second)
            item.setValue2(wholePart(number));
        else
            item.setValue1(number);
    } else {
        removeItem(type);
    }
    reloadRow({0, type});
}

void TimeRowDetailViewController::waterValueChanged(int portion)
{
    if (timeRow() == nullptr)
        return;
    if (portion > 0)
        itemOfType(waterType).setWaterType(portion);
    else
        removeItem(waterType);
    changed();
}

void TimeRowDetailViewController::changeTime()
{
    if (timeRow() == nullptr)
        return;
    askForTime(localized(QStringLiteral("Изменить время")), localized(QStringLiteral("Изменить")),
               clockTime(timeRow_->time().value_or(0)), this, [this](float time) { setTime(time); });
}

void TimeRowDetailViewController::setTime(float time)
{
    if (timeRow() == nullptr || jornalDay_ == nullptr || jornalDay_->isDeleted())
        return;
    if (const TimeRow *there = rowAtTime(*jornalDay_, time); there != nullptr && there != timeRow_) {
        refuseSameTime(this);
        return;
    }
    timeRow_->setTime(time);
    timeRow_->setUserCreated(true);
    changed();
    setTitle(timeDescription(*timeRow_));
}

void TimeRowDetailViewController::switchChanged(const IndexPath &, const RowId &, bool on) { switchReminding(on); }

void TimeRowDetailViewController::switchReminding(bool on)
{
    if (timeRow() == nullptr)
        return;
    if (on && isEmpty(*timeRow_)) {
        refuseReminder(localized(QStringLiteral("emty row error message")));
        return;
    }
    cancelReminder(*timeRow_);
    if (timeRow_->remind().value_or(false) || !on)
        cxAlertViewDidCanceled();
    else
        setReminder();
    valuesChanged_ = true;
}

void TimeRowDetailViewController::setReminder()
{
    const std::optional<QDateTime> fireDate = reminderFireDate(*timeRow_);
    if (!fireDate || *fireDate <= Platform::current().clock().now()) {
        refuseReminder(localized(QStringLiteral("past date error message")));
        return;
    }
    const QString identifier =
        Platform::current().notifications().scheduleLocalNotification(reminderNotification(*timeRow_, *fireDate));
    if (identifier.isNull()) {
        refuseReminder(localized(QStringLiteral("Reminder refused")));
        return;
    }
    timeRow_->setRemind(true);
    timeRow_->setReminderDate(fireDate);
    turnReminder(true);
    changed();
}

void TimeRowDetailViewController::refuseReminder(const QString &title)
{
    turnReminder(false);
    showAlert(title, {});
}

void TimeRowDetailViewController::cxAlertViewDidCanceled()
{
    if (timeRow() == nullptr)
        return;
    turnReminder(false);
    if (!timeRow_->remind() && !timeRow_->reminderDate())
        return;
    timeRow_->setRemind(std::nullopt);
    timeRow_->setReminderDate(std::nullopt);
    changed();
}

void TimeRowDetailViewController::turnReminder(bool on)
{
    reminderOn_ = on;
    reloadRow({0, ReminderRow});
}

void TimeRowDetailViewController::accessoryTouched(const IndexPath &path, const RowId &)
{
    showAlert({}, localized(stringWithFormat("shedule_info_%ld", path.row)));
}

void TimeRowDetailViewController::didSelectRow(const IndexPath &path, const RowId &)
{
    if (timeRow() == nullptr || (path.row != FirstDishRow && path.row != SecondDishRow))
        return;
    touchedSlot_ = path.row - FirstDishRow;
    const DishInDietDay *planned = dishInSlot(touchedSlot_);
    if (planned == nullptr)
        chooseDish();
    else if (planned->dish() != nullptr)
        openDish(*planned->dish());
}

void TimeRowDetailViewController::commitDelete(const IndexPath &path, const RowId &)
{
    DishInDietDay *planned = timeRow() != nullptr ? dishInSlot(path.row - FirstDishRow) : nullptr;
    if (planned == nullptr)
        return;
    timeRow_->removeDishesInDietDay(*planned);
    contextOf(*timeRow_).deleteObject(*planned);
    changed();
    reloadRow(path);
}

} // namespace kesto
