#include "journal/JornalSheduleRootViewController.h"

#include "components/AlertCenter.h"
#include "journal/FoodBalanceRootViewController.h"
#include "journal/JornalTabBarController.h"
#include "journal/Reminders.h"
#include "journal/TimeDialog.h"
#include "journal/TimeObjectAdditions.h"
#include "journal/TimeOfDay.h"
#include "journal/TimeRowAdditions.h"
#include "journal/TimeRowCell.h"
#include "journal/WaterBalanceRootViewController.h"
#include "model/DietDay.h"
#include "model/DishInDietDay.h"
#include "model/JornalDay.h"
#include "model/TimeObject.h"
#include "model/TimeRow.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "store/CoreDataManager.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

namespace kesto
{

namespace
{

constexpr std::array defaultHours{9, 11, 12, 14, 18, 20};
constexpr std::array filledHours{9, 11, 12, 18, 20};
constexpr int branHour = 12;
constexpr int runHour = 18;
constexpr int runMinutes = 30;
constexpr float branOfAttack = 1.5F; // tablespoons
constexpr float branLater = 2.0F;

constexpr int attack = 0;
constexpr std::array fillTitles{u"Автонаполнение Атаки", u"Автонаполнение Круиза"}; // by phase

constexpr std::chrono::minutes nextRowInterval(1);

void save(const TimeRow &row) { row.managedObjectContext().saveOrKeepChanges(); }

bool hasItem(const TimeRow &row, TimeObjectType type)
{
    const std::vector<TimeObject *> items = row.timeObjects();
    return std::any_of(items.begin(), items.end(),
                       [type](const TimeObject *item) { return item->type() == static_cast<int>(type); });
}

/// The new item, or null when the row has one of this type.
TimeObject *addItem(TimeRow &row, TimeObjectType type)
{
    if (hasItem(row, type))
        return nullptr;
    auto &item = row.managedObjectContext().insert<TimeObject>();
    item.setType(static_cast<int>(type));
    row.addTimeObjects(item);
    return &item;
}

void setOnlyDish(TimeRow &row, Dish *dish)
{
    ManagedObjectContext &context = row.managedObjectContext();
    for (DishInDietDay *planned : row.dishesInDietDay()) {
        row.removeDishesInDietDay(*planned);
        context.deleteObject(*planned);
    }
    auto &planned = context.insert<DishInDietDay>();
    planned.setDisplayOrder(0);
    planned.setDish(dish);
    row.addDishesInDietDay(planned);
}

} // namespace

JornalSheduleRootViewController::JornalSheduleRootViewController(DietDay &dietDay)
    : JornalTableViewController(dietDay)
{
    auto add = BarButtonItem::withImage(QStringLiteral("add.png"), [this] { addTimeRow(); });
    add->setAccessibleName(localized(QStringLiteral("Добавить время")));
    setRightBarButtonItem(std::move(add));
    minute_.setInterval(nextRowInterval);
    connect(&minute_, &QTimer::timeout, this, &JornalSheduleRootViewController::updateNextRow);
    JornalSheduleRootViewController::setDietDay(&dietDay);
}

void JornalSheduleRootViewController::setBalances(WaterBalanceRootViewController *water,
                                                  FoodBalanceRootViewController *protein)
{
    waterTab_ = water;
    proteinTab_ = protein;
    connect(this, &JornalSheduleRootViewController::rowsChanged, water,
            &WaterBalanceRootViewController::reloadData); // it counts the water of rows that are done
    connect(water, &WaterBalanceRootViewController::valuesChanged, this,
            &JornalSheduleRootViewController::updateHeaderLabels);
    connect(protein, &FoodBalanceRootViewController::valuesChanged, this,
            &JornalSheduleRootViewController::updateHeaderLabels);
    updateHeaderLabels();
}

void JornalSheduleRootViewController::setDietDay(DietDay *day)
{
    JornalTableViewController::setDietDay(day);
    JornalTableViewController::setJornalDay(day != nullptr ? day->jornalDay() : nullptr);
    dietPeriod_ = day != nullptr ? CoreDataManager::dietPeriodForCalendar(Platform::current().calendar(),
                                                                          day->date().value_or(QDateTime()))
                                 : -1;
    createDefaultRows();
    reloadData();
    Q_EMIT headerChanged();
}

void JornalSheduleRootViewController::setJornalDay(JornalDay *day)
{
    if (day == jornalDay())
        return;
    JornalTableViewController::setJornalDay(day);
    reloadData();
}

void JornalSheduleRootViewController::createDefaultRows()
{
    JornalDay *jornal = jornalDay();
    if (jornal == nullptr)
        return;
    ManagedObjectContext &context = jornal->managedObjectContext();
    // Everything that the rows show, with as many statements for sixty rows as for six.
    FetchRequest request;
    request.predicate = attribute("day") == dietDay();
    request.relationshipKeyPathsForPrefetching = {"timeRows.timeObjects", "timeRows.dishesInDietDay.dish"};
    if (context.fetchOrLog<JornalDay>(request).empty())
        return; // rows that cannot be read must not be made a second time
    bool created = false;
    for (const int hour : defaultHours) {
        if (rowAtTime(*jornal, static_cast<float>(hour)) != nullptr)
            continue;
        auto &row = context.insert<TimeRow>();
        row.setTime(static_cast<float>(hour));
        jornal->addTimeRows(row);
        created = true;
    }
    if (created)
        context.saveOrKeepChanges();
}

void JornalSheduleRootViewController::readContent()
{
    content_.clear();
    if (const JornalDay *jornal = jornalDay())
        content_ = jornal->timeRows();
    std::stable_sort(content_.begin(), content_.end(),
                     [](const TimeRow *one, const TimeRow *other) { return one->time() < other->time(); });
    nextRow_ = findNextRow();
}

void JornalSheduleRootViewController::reloadData()
{
    readContent();
    JornalTableViewController::reloadData();
}

void JornalSheduleRootViewController::refresh()
{
    reloadData();
    Q_EMIT rowsChanged();
    updateHeaderLabels();
}

// The editor, the recipes or another tab may have changed what the rows hold.
void JornalSheduleRootViewController::viewWillAppear()
{
    refresh();
    minute_.start();
}

void JornalSheduleRootViewController::viewWillDisappear() { minute_.stop(); }

int JornalSheduleRootViewController::numberOfRowsInSection(int) const { return static_cast<int>(content_.size()); }

TableRow JornalSheduleRootViewController::cellForRow(const IndexPath &path) const
{
    const TimeRow &row = *content_[static_cast<size_t>(path.row)];
    return timeRowCell(row, path.row == nextRow_, &row == editedRow_);
}

void JornalSheduleRootViewController::setEditedRow(const TimeRow *row)
{
    editedRow_ = row;
    reloadSection(0);
}

QString JornalSheduleRootViewController::dishesStringForTimeRow(const TimeRow &row)
{
    QStringList lines;
    for (const DishInDietDay *planned : sortedDishes(row))
        lines.append(stringWithFormat("·%@", planned->displayName()));
    return lines.join(u'\n');
}

int JornalSheduleRootViewController::findNextRow() const
{
    const DietDay *day = dietDay();
    const Platform &platform = Platform::current();
    const QDateTime now = platform.clock().now();
    if (day == nullptr || !day->date() || platform.calendar().dayOf(*day->date()) != platform.calendar().dayOf(now))
        return -1;
    const float time = JornalHelper::currentTime();
    const auto next = std::find_if(content_.begin(), content_.end(), [time](const TimeRow *row) {
        return row->time() >= time && !row->compleate().value_or(false);
    });
    return next != content_.end() ? static_cast<int>(next - content_.begin()) : -1;
}

void JornalSheduleRootViewController::updateNextRow()
{
    const int before = std::exchange(nextRow_, findNextRow());
    if (before == nextRow_)
        return;
    for (const int row : {before, nextRow_}) {
        if (row >= 0 && row < numberOfRowsInSection(0))
            reloadRow({0, row});
    }
}

void JornalSheduleRootViewController::addTimeRow()
{
    if (jornalDay() == nullptr)
        return;
    askForTime(localized(QStringLiteral("Добавить время")), localized(QStringLiteral("Добавить")),
               clockTime(JornalHelper::currentTime()), this, [this](float time) { addRowAt(time); });
}

void JornalSheduleRootViewController::addRowAt(float time)
{
    JornalDay *jornal = jornalDay();
    if (jornal == nullptr)
        return;
    if (rowAtTime(*jornal, time) != nullptr) {
        showErrorAlert();
        return;
    }
    auto &row = jornal->managedObjectContext().insert<TimeRow>();
    row.setTime(time);
    row.setUserCreated(true);
    jornal->addTimeRows(row);
    save(row);
    refresh();
}

void JornalSheduleRootViewController::showErrorAlert() { refuseSameTime(this); }

void JornalSheduleRootViewController::commitDelete(const IndexPath &path, const RowId &)
{
    TimeRow &row = *content_[static_cast<size_t>(path.row)];
    JornalDay *jornal = jornalDay();
    if (row.isDeleted() || jornal == nullptr)
        return;
    cancelReminder(row);
    ManagedObjectContext &context = row.managedObjectContext();
    for (TimeObject *item : row.timeObjects()) {
        row.removeTimeObjects(*item);
        context.deleteObject(*item);
    }
    jornal->removeTimeRows(row);
    context.deleteObject(row);
    refresh();
    context.saveOrKeepChanges();
}

void JornalSheduleRootViewController::didSelectRow(const IndexPath &path, const RowId &)
{
    TimeRow &row = *content_[static_cast<size_t>(path.row)];
    if (auto *jornal = enclosing<JornalTabBarController>(); jornal != nullptr && !row.isDeleted())
        jornal->openRow(row);
}

void JornalSheduleRootViewController::compleateButtonTouchedInRow(int row)
{
    if (row < 0 || row >= numberOfRowsInSection(0))
        return;
    TimeRow &touched = *content_[static_cast<size_t>(row)];
    touched.setCompleate(!touched.compleate().value_or(false));
    save(touched);
    reloadRow({0, row});
    updateNextRow();
    Q_EMIT rowsChanged();
    updateHeaderLabels();
}

JornalSheduleRootViewController::Summary JornalSheduleRootViewController::summaryOf(const QString &name,
                                                                                    int currentValue, int normalValue)
{
    const auto shown = [](int value) { return value < 1 ? QStringLiteral("--") : stringWithFormat("%ld", value); };
    return {.text = stringWithFormat("%@: %@\n%@: %@", name, shown(currentValue), localized(QStringLiteral("Норма")),
                                     shown(normalValue)),
            .fraction = normalValue < 1 ? 0 : std::clamp(static_cast<double>(currentValue) / normalValue, 0.0, 1.0)};
}

void JornalSheduleRootViewController::updateHeaderLabels()
{
    if (waterTab_ == nullptr || proteinTab_ == nullptr)
        return;
    Summary water = summaryOf(localized(QStringLiteral("Вода")), waterTab_->currentValue(), waterTab_->normalValue());
    Summary protein =
        summaryOf(localized(QStringLiteral("Белок")), proteinTab_->currentValue(), proteinTab_->normalValue());
    if (water == water_ && protein == protein_)
        return;
    water_ = std::move(water);
    protein_ = std::move(protein);
    Q_EMIT headerChanged();
}

QString JornalSheduleRootViewController::autoFillTitle() const
{
    const auto phase = static_cast<size_t>(dietPeriod_); // before the start it is out of range, too
    return phase < fillTitles.size() ? localized(QString::fromUtf16(fillTitles.at(phase))) : QString();
}

void JornalSheduleRootViewController::openWater()
{
    if (auto *jornal = enclosing<JornalTabBarController>())
        jornal->showTab(JornalTabBarController::WaterTab);
}

void JornalSheduleRootViewController::openProtein()
{
    if (auto *jornal = enclosing<JornalTabBarController>())
        jornal->showTab(JornalTabBarController::ProteinTab);
}

void JornalSheduleRootViewController::moveDay(int by)
{
    if (JornalHelper *journal = helper(); journal != nullptr && by < 0)
        journal->goToPrevisiousDay();
    else if (journal != nullptr)
        journal->goToNextDay();
}

TimeRow *JornalSheduleRootViewController::rowOfHour(int hour) const
{
    const auto last = std::find_if(content_.rbegin(), content_.rend(),
                                   [hour](const TimeRow *row) { return row->time() == static_cast<float>(hour); });
    return last != content_.rend() ? *last : nullptr;
}

void JornalSheduleRootViewController::autoFillDay()
{
    log(QStringLiteral("start autofilin"));
    JornalDay *jornal = jornalDay();
    if (jornal == nullptr)
        return;
    const std::vector<Dish *> dishes = CoreDataManager::sharedManager().autoFilledDishesForPeriod(dietPeriod_);
    size_t place = 0;
    for (const int hour : filledHours) {
        TimeRow *row = rowOfHour(hour);
        if (row == nullptr)
            continue;
        if (place == dishes.size())
            break; // the catalogue has fewer for this phase: the other rows keep what they have
        setOnlyDish(*row, dishes[place++]);
    }
    if (TimeRow *row = rowOfHour(branHour)) {
        if (TimeObject *bran = addItem(*row, TimeObjectType::Bran))
            bran->setValue1(dietPeriod_ == attack ? branOfAttack : branLater);
    }
    if (TimeRow *row = rowOfHour(runHour)) {
        if (TimeObject *run = addItem(*row, TimeObjectType::Running))
            run->setValue2(runMinutes);
    }
    jornal->managedObjectContext().saveOrKeepChanges();
    refresh();
    log(QStringLiteral("end autofilin"));
}

} // namespace kesto
