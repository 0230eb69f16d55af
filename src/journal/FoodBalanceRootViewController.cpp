#include "journal/FoodBalanceRootViewController.h"

#include "journal/FoodBalance.h"
#include "journal/JornalHelper.h"
#include "model/FoodObject.h"
#include "model/JornalDay.h"
#include "platform/Platform.h"
#include "platform/StringFormat.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"

#include <algorithm>
#include <array>
#include <limits>
#include <map>

namespace kesto
{

namespace
{

constexpr int man = 0;
constexpr int gramsOfPortion = 100;

const std::array<QString, activityCount> &activityImages()
{
    static const std::array<QString, activityCount> images{
        QStringLiteral("button_activity_easily"), QStringLiteral("button_activity_medium"),
        QStringLiteral("button_activity_hard"), QStringLiteral("button_activity_extra_hard")};
    return images;
}

/// The look of a level's button, which is another picture when the level is chosen.
JornalButton::Look activityLook(int level, bool chosen)
{
    const QString &image = activityImages()[static_cast<size_t>(level - 1)];
    return {.image = chosen ? image : image + QStringLiteral("_un"),
            .name = localized(image),
            .choosable = true,
            .selected = chosen};
}

/// The colours that the categories of dishes have.
int shadeOf(Food::Kind kind)
{
    static constexpr std::array shades{0, 1, 3, 4, 5, 7, 8}; // by kind
    return shades[static_cast<size_t>(kind)];
}

ManagedObjectContext &context() { return *CoreDataManager::sharedManager().managedObjectContext(); }

} // namespace

FoodBalanceRootViewController::FoodBalanceRootViewController(DietDay &dietDay)
    : BalanceRootViewController(dietDay, QStringLiteral("г"))
{
    setTitle(localized(QStringLiteral("Белок")));
    initWtihDietDay();
}

void FoodBalanceRootViewController::initWtihDietDay()
{
    for (int type = 1; type <= foodCount; ++type) {
        meatButtons_.add(type, {.image = foodImage(type),
                                .title = foodProteinText(type),
                                .name = foodName(type),
                                .shade = shadeOf(foodOfType(type)->kind)});
    }
    for (int level = 1; level <= activityCount; ++level)
        activityButtons_.add(level, activityLook(level, level == activity()));
    BalanceRootViewController::reloadData();
}

QString FoodBalanceRootViewController::footnote() const
{
    return localized(QStringLiteral("* Содержание белка на 100г продукта."));
}

void FoodBalanceRootViewController::setJornalDay(JornalDay *day)
{
    BalanceRootViewController::setJornalDay(day);
    updateActivityButtons();
}

void FoodBalanceRootViewController::viewWillAppear()
{
    BalanceRootViewController::viewWillAppear();
    updateActivityButtons();
}

void FoodBalanceRootViewController::meatButtonTouched(int type)
{
    JornalDay *day = jornalDay();
    if (day == nullptr || foodOfType(type) == nullptr)
        return;
    const auto known = std::find_if(content_.begin(), content_.end(),
                                    [type](const FoodObject *record) { return record->type() == type; });
    if (known != content_.end()) {
        const int portions = foodPortions(**known);
        (*known)->setCount(portions < std::numeric_limits<int>::max() ? portions + 1 : portions);
    } else {
        auto &record = context().insert<FoodObject>();
        record.setType(type);
        record.setCount(1);
        record.setTime(JornalHelper::currentTime());
        record.setJornalDayMeat(day);
    }
    saveAndReload();
}

void FoodBalanceRootViewController::actionButtonTouched(int level)
{
    JornalDay *day = jornalDay();
    if (day == nullptr || level < 1 || level > activityCount)
        return;
    if (level == activity())
        day->setMeatSportActivity(std::nullopt);
    else
        day->setMeatSportActivity(level);
    context().saveOrKeepChanges();
    updateActivityButtons();
    recalculateNormalValue();
    updateProgressViews();
}

int FoodBalanceRootViewController::activity() const
{
    const JornalDay *day = jornalDay();
    return day != nullptr ? day->meatSportActivity().value_or(0) : 0;
}

void FoodBalanceRootViewController::updateActivityButtons()
{
    const int chosen = activity();
    for (JornalButton *button : activityButtons_.all())
        button->setLook(activityLook(button->tag(), button->tag() == chosen));
}

void FoodBalanceRootViewController::updateMeatButtons()
{
    std::map<int, qint64> portions;
    for (const FoodObject *record : content_)
        portions[record->type().value_or(0)] += foodPortions(*record);
    for (JornalButton *button : meatButtons_.all()) {
        const auto eaten = portions.find(button->tag());
        JornalButton::Look look = button->look();
        look.badge = eaten != portions.end() && eaten->second > 0 ? QString::number(eaten->second) : QString();
        button->setLook(look);
    }
}

void FoodBalanceRootViewController::recalculateNormalValue()
{
    const UserDefaults &defaults = Platform::current().userDefaults();
    setNormalValue(proteinNorm(defaults.integerForKey(QStringLiteral("Пол")) == man,
                               defaults.integerForKey(QStringLiteral("Возраст")), activity()));
}

void FoodBalanceRootViewController::readIntake()
{
    const JornalDay *day = jornalDay();
    content_ = day != nullptr ? day->meatObjects() : std::vector<FoodObject *>();
    std::stable_sort(content_.begin(), content_.end(),
                     [](const FoodObject *left, const FoodObject *right) { return left->type() < right->type(); });
    setCurrentValue(proteinEaten(content_));
    updateMeatButtons();
}

int FoodBalanceRootViewController::numberOfRowsInSection(int) const { return static_cast<int>(content_.size()); }

TableRow FoodBalanceRootViewController::cellForRow(const IndexPath &path) const
{
    const FoodObject &record = *content_.at(static_cast<size_t>(path.row));
    const qint64 grams = static_cast<qint64>(foodPortions(record)) * gramsOfPortion;
    return {.id = QString::number(record.objectID()),
            .title = foodOfType(record.type()) != nullptr ? foodName(record.type()) : title(),
            .subtitle = foodProteinText(record.type()),
            .detail = stringWithFormat("%ld %@", grams, localized(QStringLiteral("г."))),
            .image = foodImage(record.type()),
            .selectable = false,
            .canDelete = true};
}

void FoodBalanceRootViewController::commitDelete(const IndexPath &path, const RowId &)
{
    FoodObject &record = *content_.at(static_cast<size_t>(path.row));
    record.setJornalDayMeat(nullptr);
    context().deleteObject(record);
    saveAndReload();
}

} // namespace kesto
