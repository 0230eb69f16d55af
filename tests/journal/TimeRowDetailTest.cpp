#include "journal/JornalFixture.h"

#include "journal/TimeRowAdditions.h"
#include "model/PurhaseIngredient.h"
#include "recipes/FavoritesManager.h"
#include "recipes/FavoritesViewController.h"

namespace kesto::test
{

namespace
{

using Editor = TimeRowDetailViewController;

class TimeRowDetail : public JornalFixture
{
protected:
    /// 18:00, seven and a half hours from now.
    Editor &editEvening() { return edit(4); }
    /// The texts of the fields of a type.
    static QStringList fields(const Editor &editor, int type)
    {
        QStringList shown;
        for (const QVariant &field : editor.cellForRow({0, type}).value.toList())
            shown.append(field.toMap().value(QStringLiteral("text")).toString());
        return shown;
    }
    [[nodiscard]] QList<LocalNotification> reminders()
    {
        return program.platform.notifications().scheduledLocalNotifications();
    }
    static bool isOn(const Editor &editor) { return editor.cellForRow({0, Editor::ReminderRow}).on; }
};

TEST_F(TimeRowDetail, StoresWhatIsTyped)
{
    open();
    Editor &editor = editEvening();
    EXPECT_EQ(editor.title(), QStringLiteral("18:00"));
    EXPECT_EQ(editor.numberOfRowsInSection(0), Editor::rowCount);
    struct Case
    {
        int tag;
        const char *typed;
        int type;
        QStringList shown;
    };
    const Case cases[] = {
        {4, "2,5", 4, {QStringLiteral("2.5")}},
        {3, "3", 3, texts({"3", ""})},
        {103, "30", 3, texts({"3", "30"})},
        {103, "2.9", 3, texts({"3", "2"})},
        {3, "1e30", 3, texts({"1e+30", "2"})},
        {103, "1e30", 3, texts({"1e+30", "2147483647"})},
        {3, "0", 3, texts({"", ""})},
        {108, "45 мин", 8, texts({"", "45"})},
        {108, "", 8, texts({"", ""})},
        {1, "nan", 1, {QString()}},
        {1, "-5", 1, {QString()}},
        {2, " 0.5", 2, texts({"0.5", ""})},
    };
    for (const Case &each : cases) {
        editor.endEditing(each.tag, QString::fromUtf8(each.typed));
        QStringList shown = fields(editor, each.type);
        shown.replaceInStrings(QRegularExpression(QStringLiteral("^$")), QStringLiteral(""));
        EXPECT_EQ(shown.join(u'|'), each.shown.join(u'|')) << each.typed;
        EXPECT_FALSE(program.context().hasChanges());
    }
    editor.endEditingText(0, QString::number(Editor::OtherRow), QStringLiteral("погулять"));
    reopen();
    EXPECT_EQ(items(4), texts({"0.5 м.", "2.5 ст. лож."}));
    EXPECT_EQ(row(4).otherTimeObject(), QStringLiteral("погулять"));
    editEvening().endEditing(Editor::otherTag, QString());
    EXPECT_TRUE(row(4).otherTimeObject().isNull());
}

TEST_F(TimeRowDetail, AnInfoButtonTellsAboutTheType)
{
    open();
    editEvening().touchAccessory(0, 8);
    EXPECT_TRUE(dismissAlert().startsWith(QStringLiteral("Велосипед развивает")));
}

TEST_F(TimeRowDetail, APortionOfWaterIsSelectedOrNone)
{
    open();
    Editor &editor = editEvening();
    editor.waterValueChanged(3);
    editor.waterValueChanged(4);
    EXPECT_EQ(row(4).timeObjects().size(), 1U);
    reopen();
    EXPECT_EQ(items(4), texts({"250 мл."}));
    editEvening().waterValueChanged(0);
    EXPECT_TRUE(isEmpty(row(4)));
}

TEST_F(TimeRowDetail, ChangesTheTimeUnlessAnotherRowHasIt)
{
    open();
    Editor &editor = editEvening();
    editor.endEditing(1, QStringLiteral("20"));
    editor.switchReminding(true);
    editor.rightBarButtonItems().constFirst()->trigger();
    EXPECT_EQ(program.platform.calendar().timeOf(alert()->datePicker()->date()), QTime(18, 0));
    EXPECT_EQ(alert()->buttonTitles(), texts({"Отменить", "Изменить"}));
    pick(20, 0);
    EXPECT_EQ(row(4).time(), 18.0F);
    QTest::qWait(600);
    EXPECT_EQ(dismissAlert(), QStringLiteral("На это время уже есть запись. Выберите другое время."));

    editor.changeTime();
    pick(7, 5);
    EXPECT_EQ(editor.title(), QStringLiteral("7:05"));
    EXPECT_EQ(editor.timeRow()->userCreated(), true);
    ASSERT_EQ(reminders().size(), 1);
    EXPECT_EQ(reminders().constFirst().fireDate, program.platform.date(2024, 3, 7, 18));

    // The reminder that was set for the old time goes with the switch all the same.
    editor.switchReminding(false);
    EXPECT_TRUE(reminders().isEmpty());
    reopen();
    EXPECT_EQ(times(), QStringLiteral("7:05 9:00 11:00 12:00 14:00 18:00 20:00"));
}

TEST_F(TimeRowDetail, AReminderIsSetOnceAndCleared)
{
    open();
    Editor &editor = editEvening();
    editor.endEditing(3, QStringLiteral("5"));
    editor.waterValueChanged(1);
    editor.turnSwitch(0, Editor::ReminderRow, true);
    EXPECT_TRUE(isOn(editor) && editor.valuesChanged());
    ASSERT_EQ(reminders().size(), 1);
    const LocalNotification set = reminders().constFirst();
    EXPECT_EQ(set.fireDate, program.platform.date(2024, 3, 7, 18));
    EXPECT_EQ(set.alertBody, QStringLiteral("Пора выпить воды, Пора на пробежку"));
    EXPECT_EQ(set.userInfo, (QVariantMap{{QStringLiteral("id"), QStringLiteral("2024-03-06 23:00:00 +0000 - 18")}}));
    EXPECT_EQ(set.timeZone, QStringLiteral("Europe/Berlin"));
    EXPECT_TRUE(set.defaultSound);

    // The process died before the switch was saved: the next one replaces the notification.
    row(4).setRemind({});
    editor.switchReminding(true);
    EXPECT_EQ(reminders().size(), 1);

    reopen();
    EXPECT_EQ(row(4).reminderDate(), program.platform.date(2024, 3, 7, 18));
    Editor &again = editEvening();
    EXPECT_TRUE(isOn(again));
    again.turnSwitch(0, Editor::ReminderRow, false);
    EXPECT_TRUE(reminders().isEmpty());
    EXPECT_EQ(row(4).remind(), std::nullopt);
    EXPECT_EQ(row(4).reminderDate(), std::nullopt);
}

TEST_F(TimeRowDetail, AReminderThatCanNotBeIsRefused)
{
    open();
    Editor &empty = editEvening();
    empty.turnSwitch(0, Editor::ReminderRow, true);
    EXPECT_FALSE(isOn(empty));
    EXPECT_TRUE(dismissAlert().startsWith(QStringLiteral("Сначала добавьте")));

    empty.endEditing(1, QStringLiteral("20"));
    program.platform.notifications().refuse();
    empty.turnSwitch(0, Editor::ReminderRow, true);
    EXPECT_FALSE(isOn(empty));
    EXPECT_TRUE(dismissAlert().startsWith(QStringLiteral("Устройство не принимает")));
    program.platform.notifications().refuse(false);
    empty.turnSwitch(0, Editor::ReminderRow, true);
    stack->popViewController(false);

    Editor &past = edit(0);
    past.endEditing(1, QStringLiteral("20"));
    past.turnSwitch(0, Editor::ReminderRow, true);
    EXPECT_FALSE(isOn(past));
    EXPECT_TRUE(dismissAlert().startsWith(QStringLiteral("Это время уже прошло")));
    EXPECT_EQ(row(0).remind(), std::nullopt);
    stack->popViewController(false);

    // A row that was emptied meanwhile goes with its reminder when the day is left.
    ASSERT_EQ(reminders().size(), 1);
    editEvening().endEditing(1, QString());
    EXPECT_EQ(reminders().size(), 1);
    leave();
    EXPECT_TRUE(reminders().isEmpty());
}

TEST_F(TimeRowDetail, TakesTwoDishes)
{
    auto &soup = program.context().insert<Dish>();
    soup.setNameRU(QStringLiteral("Суп"));
    soup.setDietPeriod(QStringLiteral("3"));
    open();
    Editor &editor = editEvening();
    const auto dish = [&](int slot) { return editor.cellForRow({0, Editor::FirstDishRow + slot}); };
    EXPECT_EQ(dish(0).title, QStringLiteral("Не выбрано"));
    EXPECT_FALSE(dish(0).canDelete);

    editor.selectRow(0, Editor::SecondDishRow);
    EXPECT_EQ(alert()->buttonTitles(), texts({"Добавить блюдо из избранного", "Добавить быстрое блюдо", "Отменить"}));
    alert()->answer(0);
    EXPECT_EQ(dismissAlert(), QStringLiteral("У вас нет избранных рецептов"));

    // Without a diet there is no phase to suit: every favourite is offered.
    FavoritesManager::sharedManager().addDishToFavorite(soup);
    editor.selectRow(0, Editor::SecondDishRow);
    alert()->answer(0);
    auto *favorites = qobject_cast<FavoritesViewController *>(stack->topViewController());
    ASSERT_NE(favorites, nullptr);
    favorites->touchAccessory(0, 0);
    EXPECT_EQ(stack->topViewController(), &editor);
    EXPECT_EQ(dish(1).title, QStringLiteral("Суп"));
    EXPECT_EQ(dish(0).title, QStringLiteral("Не выбрано"));
    editor.addDish(soup);
    EXPECT_EQ(editor.timeRow()->dishesInDietDay().size(), 1U);

    for (const int button : {0, 2}) {
        editor.selectRow(0, Editor::FirstDishRow);
        alert()->answer(1);
        alert()->setText(button == 0 ? QStringLiteral("Чай") : QStringLiteral("Кефир"));
        alert()->answer(button);
    }
    EXPECT_EQ(dish(0).title, QStringLiteral("Кефир"));
    EXPECT_EQ(program.manager().purhaseIngredients().size(), 1U);
    reopen();
    EXPECT_EQ(dishesOf(4), QStringLiteral("·Кефир\n·Суп"));
    Editor &again = editEvening();
    again.deleteRowByUser(0, Editor::FirstDishRow);
    EXPECT_EQ(dishesOf(4), QStringLiteral("·Суп"));
    EXPECT_EQ(again.cellForRow({0, Editor::FirstDishRow}).title, QStringLiteral("Не выбрано"));
}

TEST_F(TimeRowDetail, ARowThatIsDeletedMeanwhileIsNotChanged)
{
    open();
    Editor &editor = editEvening();
    program.context().deleteObject(row(4));
    editor.endEditing(3, QStringLiteral("5"));
    editor.endEditing(Editor::otherTag, QStringLiteral("tea"));
    editor.waterValueChanged(1);
    editor.switchReminding(true);
    editor.changeTime();
    editor.selectRow(0, Editor::FirstDishRow);
    EXPECT_EQ(alert(), nullptr);
    EXPECT_TRUE(reminders().isEmpty());
    EXPECT_TRUE(program.context().fetchOrLog<TimeObject>().empty());
}

} // namespace

} // namespace kesto::test
