#include "app/MainJob.h"

#include "app/MainJobJornal.h"
#include "app/Person.h"
#include "app/Program.h"
#include "model/DietDay.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/Ingredient.h"
#include "model/PurhaseIngredient.h"
#include "plan/CalculatorViewController.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "recipes/DishesViewController.h"
#include "recipes/FavoritesManager.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"
#include "support/FakeClock.h"
#include "support/SequenceRandomSource.h"

#include <QQuickWindow>

#include <algorithm>
#include <csignal>

namespace kesto::test
{

namespace
{

constexpr auto button = QAccessible::Button;
constexpr auto checkBox = QAccessible::CheckBox;
constexpr auto field = QAccessible::EditableText;
constexpr auto heading = QAccessible::Heading;
constexpr auto row = QAccessible::ListItem;
constexpr auto wheel = QAccessible::SpinBox;
constexpr auto alert = QAccessible::AlertMessage;

QString u(const char *utf8) { return QString::fromUtf8(utf8); }

/// Over the screen of the day: on a tablet it stands at the right.
constexpr QPointF overDay(0.85, 0.5);

class MainJobPerson
{
public:
    MainJobPerson(const MainJob &job, Program &program)
        : job_(job)
        , user_(program.view())
    {
    }

    void fillCalculator() const;
    void startDiet() const;
    void openToday() const;
    void weigh() const;
    void fillDay() const;
    void replaceFirstDish() const;
    void moveFirstDishToTheEnd() const;
    void likeFirstDishAndBuyIt() const;
    void shop() const;
    void openJournal() const;

private:
    void touches(QAccessible::Role role, const QString &name) const { ASSERT_TRUE(user_.touches(role, name)); }
    void waitsToSee(QAccessible::Role role, const QString &name) const { ASSERT_TRUE(user_.waitsToSee(role, name)); }
    void scrollsTo(QAccessible::Role role, const QString &name, QPointF place = overDay) const
    {
        ASSERT_TRUE(user_.scrollsTo(role, name, place));
    }
    void back(const char *title) const
    {
        user_.presses(Qt::Key_Escape);
        waitsToSee(heading, u(title));
    }

    const MainJob &job_;
    Person user_;
};

void MainJobPerson::fillCalculator() const
{
    waitsToSee(heading, u("Калькулятор веса по Кесто"));
    touches(row, u("Вес, 60.0 кг"));
    touches(wheel, u("60"));
    user_.types(u("92"));
    touches(row, u("Вес, 92.0 кг"));
    ASSERT_TRUE(user_.waitsUntilGone(wheel, u("92")));
}

void MainJobPerson::startDiet() const
{
    scrollsTo(button, u("Начать диету"), {0.6, 0.6});
    touches(button, u("Начать диету"));
    waitsToSee(alert, u("Начать диету с"));
    touches(button, u("Начать"));
    waitsToSee(heading, u("Календарь диеты"));
    waitsToSee(button, u("2 марта 2026, Атака, Ч/Б"));
    ASSERT_TRUE(user_.sees(button, u("8 марта 2026, Атака, Ч/Б")));
    ASSERT_TRUE(user_.sees(button, u("9 марта 2026, Круиз")));
}

void MainJobPerson::openToday() const
{
    if (job_.device == Device::Phone)
        touches(row, u("Атака, 02 марта, -"));
    waitsToSee(heading, u("02 марта"));
}

void MainJobPerson::weigh() const
{
    touches(row, u("Вес, -"));
    touches(wheel, u("92"));
    user_.types(u("91"));
    waitsToSee(row, u("Вес, 91.0 кг"));
    touches(row, u("Вес, 91.0 кг"));
    ASSERT_TRUE(user_.waitsUntilGone(wheel, u("91")));
}

void MainJobPerson::fillDay() const
{
    scrollsTo(button, u("Автонаполнение Атаки"));
    touches(button, u("Автонаполнение Атаки"));
    const QStringList dishes = plannedDishes();
    ASSERT_EQ(dishes.size(), 6);
    for (const QString &dish : dishes)
        scrollsTo(row, dish);
}

void MainJobPerson::replaceFirstDish() const
{
    const QString gone = plannedDishes().constFirst();
    scrollsTo(row, gone);
    ASSERT_TRUE(user_.draws(row, gone, QPoint(-150, 0)));
    touches(button, u("Удалить"));
    ASSERT_TRUE(user_.waitsUntilGone(row, gone));

    scrollsTo(button, u("Добавить блюдо"));
    touches(button, u("Добавить блюдо"));
    touches(row, u("Первые блюда"));
    DishesViewController same(2, nullptr, 0); // what the grid shows
    const QString soup = same.tiles()->tiles().constFirst().title;
    touches(button, u("Добавить в план дня: ") + soup);
    back("Добавить блюдо");
    touches(button, u("Закрыть"));
    ASSERT_TRUE(user_.waitsUntilGone(heading, u("Добавить блюдо")));
    scrollsTo(row, soup);
    ASSERT_EQ(plannedDishes().constLast(), soup);
    ASSERT_EQ(plannedDishes().size(), 6);
}

void MainJobPerson::moveFirstDishToTheEnd() const
{
    QStringList dishes = plannedDishes();
    touches(button, u("Изменить"));
    waitsToSee(button, u("Готово"));
    ASSERT_TRUE(
        user_.drags(button, u("Переместить ") + dishes.constFirst(), button, u("Переместить ") + dishes.constLast()));
    touches(button, u("Готово"));
    waitsToSee(button, u("Изменить"));
    dishes.append(dishes.takeFirst());
    ASSERT_EQ(plannedDishes(), dishes);
}

void MainJobPerson::likeFirstDishAndBuyIt() const
{
    const QString dish = plannedDishes().constFirst();
    scrollsTo(row, dish);
    touches(row, dish);
    touches(button, u("Добавить в избранное"));
    waitsToSee(button, u("Убрать из избранного"));
    touches(button, u("Добавить ингредиенты в корзину"));
    waitsToSee(alert, u("Блюдо было успешно добавлено в корзину"));
    touches(button, u("ОК"));
    ASSERT_TRUE(user_.waitsUntilGone(alert, u("Блюдо было успешно добавлено в корзину")));
    user_.presses(Qt::Key_Escape);
    waitsToSee(row, dish);
    ASSERT_GT(shoppingList().size(), 2);
}

void MainJobPerson::shop() const
{
    if (job_.device == Device::Phone) {
        back("Календарь диеты");
        touches(button, u("Меню"));
    }
    touches(row, u("Список покупок"));
    waitsToSee(heading, u("Список покупок"));
    const QStringList before = shoppingList();
    touches(checkBox, before[0]);
    ASSERT_EQ(shoppingList().constFirst(), before[0] + u'*');
    touches(checkBox, before[2]);
    ASSERT_EQ(shoppingList()[2], before[2] + u'*');
    touches(field, u("Количество: ") + before[0]);
    user_.types(u("2 пачки"));
    user_.presses(Qt::Key_Return);
    ASSERT_EQ(shoppingList().constFirst(), before[0] + u("=2 пачки*"));

    scrollsTo(button, u("Добавить свой продукт"), {0.6, 0.5});
    touches(button, u("Добавить свой продукт"));
    waitsToSee(alert, u("Добавить свой продукт"));
    user_.types(u("Чай зелёный"));
    touches(button, u("Добавить"));
    waitsToSee(checkBox, u("Чай зелёный"));

    ASSERT_TRUE(user_.draws(checkBox, before[1], QPoint(-150, 0)));
    touches(button, u("Удалить"));
    ASSERT_TRUE(user_.waitsUntilGone(checkBox, before[1]));
    ASSERT_EQ(shoppingList().size(), before.size());
}

void MainJobPerson::openJournal() const
{
    if (job_.device == Device::Phone)
        touches(button, u("Меню"));
    touches(row, u("Дневник диеты"));
    keepJournal(user_);
}

} // namespace

QStringList plannedDishes()
{
    const QDateTime today = Platform::current().calendar().startOfDay(QDate(2026, 3, 2));
    const DietDay *day = DietDay::dayWithoutCreation(today, *CoreDataManager::sharedManager().managedObjectContext());
    std::vector<DishInDietDay *> placed = day != nullptr ? day->dishes() : std::vector<DishInDietDay *>();
    std::sort(placed.begin(), placed.end(), [](const DishInDietDay *left, const DishInDietDay *right) {
        return left->displayOrder() < right->displayOrder();
    });
    QStringList names;
    for (const DishInDietDay *each : placed)
        names.append(each->dish()->nameRU());
    return names;
}

QStringList shoppingList()
{
    QStringList lines;
    for (const PurhaseIngredient *line : CoreDataManager::sharedManager().purhaseIngredients())
        lines.append(line->ingredient()->name() + (line->count().isNull() ? QString() : u'=' + line->count()) +
                     (line->purchased().value_or(false) ? QStringLiteral("*") : QString()));
    return lines;
}

QStringList figures()
{
    CalculatorViewController calculator;
    calculator.loadViewIfNeeded();
    QStringList found;
    for (const int section : {CalculatorViewController::InputsSection, CalculatorViewController::ResultsSection,
                              CalculatorViewController::PhasesSection}) {
        for (int i = 0; i < calculator.numberOfRowsInSection(section); ++i) {
            const TableRow row = calculator.cellForRow({section, i});
            found.append(row.title + u'=' + row.detail + row.text);
        }
    }
    for (const QString &key : {Keys::kPeriod1Key, Keys::kPeriod2Key, Keys::kPeriod3Key})
        found.append(QString::number(Platform::current().userDefaults().integerForKey(key)));
    return found;
}

void liveThroughMainJob(const MainJob &job, const QString &dataFolder)
{
    FakeClock clock(mainJobNow());
    SequenceRandomSource random;
    random.set({3, 1, 4, 1, 5, 9, 2, 6});
    QString error;
    const std::unique_ptr<Program> program = Program::start({.dataFolder = dataFolder,
                                                             .resourcesFolder = QStringLiteral(KESTO_SHARE),
                                                             .language = QStringLiteral("ru"),
                                                             .device = job.device,
                                                             .size = job.size,
                                                             .clock = &clock,
                                                             .random = &random},
                                                            &error);
    ASSERT_NE(program, nullptr) << error.toStdString();
    program->view().requestActivate();
    const MainJobPerson person(job, *program);
    person.fillCalculator();
    person.startDiet();
    person.openToday();
    person.weigh();
    person.fillDay();
    person.replaceFirstDish();
    person.moveFirstDishToTheEnd();
    person.likeFirstDishAndBuyIt();
    person.shop();
    person.openJournal();
    // What the next start must find, for the test that reads this output.
    std::cout << "PLAN " << plannedDishes().join(u'|').toStdString() << std::endl;
    std::cout << "FIGURES " << figures().join(u'|').toStdString() << std::endl;
    std::cout << "LIST " << shoppingList().join(u'|').toStdString() << std::endl;
    std::cout << "LIKED " << FavoritesManager::sharedManager().dishesIDS().join(u'|').toStdString() << std::endl;
    std::cout << "JOURNAL " << journalOfToday().join(u'|').toStdString() << std::endl;
    QCoreApplication::processEvents(); // the user defaults are written when the event loop turns
    std::raise(SIGKILL);
}

} // namespace kesto::test
