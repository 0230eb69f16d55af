#include "app/MainJobJornal.h"

#include "app/Person.h"
#include "journal/TimeRowAdditions.h"
#include "model/DietDay.h"
#include "model/DishInDietDay.h"
#include "model/FoodObject.h"
#include "model/JornalDay.h"
#include "model/TimeObject.h"
#include "model/TimeRow.h"
#include "platform/LocalNotifications.h"
#include "platform/Platform.h"
#include "platform/StringFormat.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"

#include <algorithm>

namespace kesto::test
{

namespace
{

constexpr auto button = QAccessible::Button;
constexpr auto checkBox = QAccessible::CheckBox;
constexpr auto heading = QAccessible::Heading;
constexpr auto row = QAccessible::ListItem;
constexpr auto tab = QAccessible::PageTab;

QString u(const char *utf8) { return QString::fromUtf8(utf8); }

const DietDay *today()
{
    return DietDay::dayWithoutCreation(Platform::current().calendar().startOfDay(QDate(2026, 3, 2)),
                                       *CoreDataManager::sharedManager().managedObjectContext());
}

std::vector<TimeRow *> rowsOfToday()
{
    const JornalDay *journal = today() != nullptr ? today()->jornalDay() : nullptr;
    std::vector<TimeRow *> rows = journal != nullptr ? journal->timeRows() : std::vector<TimeRow *>();
    std::sort(rows.begin(), rows.end(),
              [](const TimeRow *one, const TimeRow *other) { return one->time() < other->time(); });
    return rows;
}

QString dishAt(size_t place)
{
    const std::vector<TimeRow *> rows = rowsOfToday();
    return place < rows.size() && !rows[place]->dishesInDietDay().empty()
               ? rows[place]->dishesInDietDay().front()->displayName()
               : QString();
}

} // namespace

void keepJournal(const Person &user)
{
    ASSERT_TRUE(user.waitsToSee(heading, u("2 мар.")));
    ASSERT_TRUE(user.touches(button, u("Автонаполнение Атаки")));
    for (const char *time : {"9:00", "11:00"})
        ASSERT_TRUE(user.touches(button, u("Готово: ") + u(time)));

    // Running at 18:00, with a reminder.
    const QString evening = u("18:00, Бег 30 мин., ") + dishAt(4);
    ASSERT_TRUE(user.scrollsTo(row, evening, {0.45, 0.6}));
    ASSERT_TRUE(user.touches(row, evening));
    ASSERT_TRUE(user.waitsToSee(heading, u("18:00")));
    ASSERT_TRUE(user.scrollsTo(checkBox, u("Напоминание"), {0.75, 0.6}));
    ASSERT_TRUE(user.touches(checkBox, u("Напоминание")));
    user.presses(Qt::Key_Escape);
    ASSERT_TRUE(user.waitsToSee(row, evening + u(", Напоминание")));

    ASSERT_TRUE(user.touches(tab, u("Контроль за водой")));
    ASSERT_TRUE(user.touches(button, u("Кружка, 300 мл.")));
    ASSERT_TRUE(user.touches(tab, u("Белок")));
    for (const char *food : {"Цветная капуста, 2.5 г.", "Баранина, 16 г.", "Тунец в банке, 25 г."})
        ASSERT_TRUE(user.touches(button, u(food)));
    ASSERT_TRUE(user.touches(tab, u("Таймер")));
    ASSERT_TRUE(user.touches(button, u("Старт")));
    ASSERT_TRUE(user.waitsToSee(button, u("Пауза")));
}

QStringList journalOfToday()
{
    QStringList lines;
    for (const TimeRow *each : rowsOfToday()) {
        QStringList holds{timeDescription(*each)};
        if (each->compleate().value_or(false))
            holds.append(QStringLiteral("done"));
        if (each->remind().value_or(false))
            holds.append(stringWithFormat("reminds %@", each->reminderDate()));
        for (const DishInDietDay *planned : each->dishesInDietDay())
            holds.append(planned->displayName());
        for (const TimeObject *item : each->timeObjects())
            holds.append(stringWithFormat("%@=%@/%@", item->type(), item->value1(), item->value2()));
        lines.append(holds.join(u' '));
    }
    if (const JornalDay *journal = today() != nullptr ? today()->jornalDay() : nullptr) {
        for (const FoodObject *drink : journal->waterObjects())
            lines.append(stringWithFormat("drink %@", drink->type()));
        for (const FoodObject *food : journal->meatObjects())
            lines.append(stringWithFormat("food %@ x %@", food->type(), food->count()));
    }
    const Platform &platform = Platform::current();
    for (const LocalNotification &waiting : platform.notifications().scheduledLocalNotifications())
        lines.append(stringWithFormat("notification %@ %@", waiting.fireDate, waiting.alertBody));
    lines.append(stringWithFormat("timer %@", platform.userDefaults().dateForKey(Keys::kTimerKey)));
    return lines;
}

} // namespace kesto::test
