#pragma once

#include "PlanFixture.h"

#include "components/NavigationController.h"
#include "components/PopoverController.h"
#include "components/Window.h"
#include "model/Dish.h"
#include "model/DishInDietDay.h"
#include "model/DishesCategory.h"
#include "plan/CalendarContainerViewController.h"
#include "plan/DietDayDetailViewController.h"

namespace kesto::test
{

using Screen = DietDayDetailViewController;
inline constexpr int attack = 0;
inline constexpr int cruise = 1;
inline constexpr int consolidation = 2;

struct Delegate : DietDayDetailViewControllerDelegate
{
    void dietDayDetailViewControllerDidUpdateDay() override { ++updates; }
    int updates = 0;
};

/// The screen of 7 March in the navigation of a phone or a tablet.
class DietDayScreenTest : public testing::Test
{
protected:
    explicit DietDayScreenTest(TestPlatform::Options options = {}, bool metric = true)
        : program(std::move(options), metric)
    {
    }
    ~DietDayScreenTest() override { close(); }

    [[nodiscard]] static Window &window() { return Window::sharedWindow(); }
    [[nodiscard]] QDateTime march(int day) const { return program.dayStart(2024, 3, day); }
    [[nodiscard]] DietDay *record(int day = 7) { return DietDay::dayWithoutCreation(march(day), program.context()); }

    void open(int period = attack, const QSizeF &size = {390, 844})
    {
        close();
        window().setSize(size);
        auto made = std::make_unique<Screen>(march(7), period, &delegate);
        screen = made.get();
        auto navigation = std::make_unique<NavigationController>(std::move(made));
        stack = navigation.get();
        window().setRootViewController(std::move(navigation));
    }
    void openOnTablet(int period = attack) { open(period, {1180, 820}); }
    /// On a tablet beside the calendar of a plan from 5 March on.
    CalendarViewController &openBesideTheMonth()
    {
        close();
        program.storePlan(march(5), 3, 10, 10);
        window().setSize({1180, 820});
        auto made = std::make_unique<CalendarViewController>();
        CalendarViewController &calendar = *made;
        auto day = std::make_unique<Screen>(made.get());
        screen = day.get();
        window().setRootViewController(std::make_unique<NavigationController>(
            std::make_unique<CalendarContainerViewController>(std::move(made), std::move(day))));
        return calendar;
    }
    void close()
    {
        window().setRootViewController(nullptr);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        screen = nullptr;
    }
    /// Ends the program in the ordinary way and starts it again.
    void reopen(int period = attack)
    {
        close();
        program.restart();
        open(period);
    }

    [[nodiscard]] const TableRow &shown(int section, int row) const { return screen->table()->rowAt({section, row}); }
    [[nodiscard]] QStringList titles(int section) const
    {
        QStringList texts;
        for (const TableRow &row : screen->table()->section(section).rows)
            texts.append(row.title);
        return texts;
    }
    [[nodiscard]] std::string dishes() const { return titles(Screen::DishesSection).join(u' ').toStdString(); }
    /// Names and places of what is stored for the day.
    [[nodiscard]] std::string stored()
    {
        FetchRequest request;
        request.predicate = attribute("dietDays") == record();
        request.sortDescriptors = {{"displayOrder"}};
        QStringList texts;
        for (const DishInDietDay *planned : program.context().fetchOrLog<DishInDietDay>(request))
            texts.append(QString::number(planned->displayOrder().value_or(-1)) +
                         (planned->dish() != nullptr ? planned->dish()->nameRU() : QString()));
        return texts.join(u' ').toStdString();
    }
    /// The kinds of the day: + YES, - NO, . absent.
    [[nodiscard]] std::string kinds()
    {
        if (record() == nullptr)
            return "no record";
        std::string text;
        for (const std::optional<bool> &kind : {record()->chB(), record()->bO(), record()->feast()})
            text += !kind ? '.' : *kind ? '+' : '-';
        return text;
    }
    /// The rows of kinds as shown: 1 chosen, 0 not.
    [[nodiscard]] std::string shownKinds() const
    {
        std::string text;
        for (const TableRow &row : screen->table()->section(Screen::DaySection).rows) {
            if (row.kind == TableRow::Kind::Text)
                text += row.accessory == TableRow::Accessory::Checkmark ? '1' : '0';
        }
        return text;
    }
    Dish &catalogueDish(const char *name)
    {
        auto &dish = program.context().insert<Dish>();
        dish.setNameRU(QString::fromUtf8(name));
        dish.setNameENG(QString::fromUtf8(name) + QStringLiteral(" (en)"));
        dish.setDietPeriod(QStringLiteral("0123"));
        dish.setDishCategory(
            DishesCategory::dishCategoryWirhRusName(QStringLiteral("Салаты"), {}, program.context()).value());
        return dish;
    }
    void plan(const QList<const char *> &names)
    {
        for (const char *name : names)
            screen->addDish(catalogueDish(name));
    }
    /// Two dishes of Attack in each category that is proposed from, and the random numbers of a proposal.
    void offerProposals()
    {
        for (const quint32 order : {1, 2, 3, 5, 7}) {
            auto &each = program.context().insert<DishesCategory>();
            each.setDisplayOrder(order);
            for (const char *letter : {"a", "b"}) {
                auto &dish = program.context().insert<Dish>();
                dish.setNameRU(QString::number(order) + QLatin1String(letter));
                dish.setDietPeriod(QStringLiteral("0"));
                each.addDishes(dish);
            }
        }
        program.platform.random().set({0, 1, 1, 0, 1, 0});
    }
    void answerQuickDish(int button, const QString &name)
    {
        screen->selectRow(Screen::AddSection, Screen::AddQuickDishRow);
        ShownAlert *alert = AlertCenter::sharedCenter().current();
        ASSERT_NE(alert, nullptr);
        alert->setText(name);
        alert->answer(button);
    }
    [[nodiscard]] int dishCount() { return static_cast<int>(program.context().fetchOrLog<Dish>().size()); }

    PlanFixture program;
    Delegate delegate;
    Screen *screen = nullptr;
    NavigationController *stack = nullptr;
};

} // namespace kesto::test
