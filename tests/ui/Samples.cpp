#include "Samples.h"

#include "components/PopoverController.h"
#include "model/DietDay.h"
#include "model/JornalDay.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"
#include "store/CoreDataManager.h"
#include "store/Keys.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>

namespace kesto::test
{

namespace
{
const QString yes = QStringLiteral("Yes");
const QString no = QStringLiteral("No");
} // namespace

Window *Samples::appWindow() const { return &Window::sharedWindow(); }
AlertCenter *Samples::alertCenter() const { return &AlertCenter::sharedCenter(); }
ProgressIndicator *Samples::progress() const { return &ProgressIndicator::sharedIndicator(); }

void Samples::arrange(std::unique_ptr<ViewController> centre)
{
    centre->setShowsMenuIcon(true);
    auto stack = std::make_unique<NavigationController>(std::move(centre));
    stack_ = stack.get();
    auto menu = std::make_unique<SideMenuContainer>(
        std::move(stack), std::make_unique<NavigationController>(std::make_unique<SampleList>()));
    menu_ = menu.get();
    appWindow()->setRootViewController(std::move(menu));
}

SampleTable *Samples::openTable(bool longTexts)
{
    auto table = std::make_unique<SampleTable>(longTexts);
    SampleTable *made = table.get();
    arrange(std::move(table));
    return made;
}

SampleList *Samples::openList()
{
    auto list = std::make_unique<SampleList>();
    SampleList *made = list.get();
    arrange(std::move(list));
    return made;
}

SplitViewController *Samples::openSplit()
{
    auto split =
        std::make_unique<SplitViewController>(std::make_unique<NavigationController>(std::make_unique<SampleList>()),
                                              std::make_unique<NavigationController>(std::make_unique<SampleTable>()));
    SplitViewController *made = split.get();
    stack_ = qobject_cast<NavigationController *>(split->detail());
    appWindow()->setRootViewController(std::move(split));
    return made;
}

CalendarViewController *Samples::openCalendar()
{
    const QDateTime start = Platform::current().calendar().startOfDay(QDate(2024, 3, 5));
    UserDefaults &defaults = Platform::current().userDefaults();
    defaults.setValue(start, Keys::kStartDietDateKey);
    defaults.setInteger(3, Keys::kPeriod1Key);
    defaults.setInteger(10, Keys::kPeriod2Key);
    defaults.setInteger(10, Keys::kPeriod3Key);
    CoreDataManager::sharedManager().setStartDietDay(start);
    openTable();
    auto calendar = std::make_unique<CalendarViewController>(
        CalendarScreens{.jornal = {}, .day = [](const QDateTime &, int, DietDayDetailViewControllerDelegate *) {
                            return std::make_unique<SampleTable>();
                        }});
    CalendarViewController *made = calendar.get();
    stack_->pushViewController(std::move(calendar), true);
    return made;
}

void Samples::markDay(int year, int month, int day, const QString &kind, bool jornal)
{
    ManagedObjectContext &context = *CoreDataManager::sharedManager().managedObjectContext();
    const QDateTime date = Platform::current().calendar().startOfDay(QDate(year, month, day));
    if (DietDay *before = DietDay::dayWithoutCreation(date, context))
        context.deleteObject(*before);
    if (!kind.isEmpty() || jornal) {
        DietDay &made = *DietDay::dietDatWithDate(date, context).value();
        if (!kind.isEmpty())
            made.setValueForKey(true, kind);
        if (jornal)
            context.insert<JornalDay>().setDay(&made);
    }
    if (!context.save())
        qFatal("the day can't be saved");
    if (auto *calendar = qobject_cast<CalendarViewController *>(stack_->topViewController()))
        calendar->month()->refreshDate(date);
}

SampleTable *Samples::push()
{
    auto table = std::make_unique<SampleTable>();
    SampleTable *made = table.get();
    stack_->pushViewController(std::move(table), true);
    return made;
}

NavigationController *Samples::pushInMenu()
{
    ViewController *root = appWindow()->rootViewController();
    auto *side = qobject_cast<SideMenuContainer *>(root);
    auto *stack = qobject_cast<NavigationController *>(side ? side->leftMenuViewController()
                                                            : qobject_cast<SplitViewController *>(root)->master());
    stack->pushViewController(std::make_unique<SampleTable>(), false);
    return stack;
}

SampleTable *Samples::present()
{
    auto table = std::make_unique<SampleTable>();
    SampleTable *made = table.get();
    const QList<ViewController *> presented = appWindow()->presentedViewControllers();
    ViewController *top = presented.isEmpty() ? stack_ : presented.last();
    top->presentViewController(std::make_unique<NavigationController>(std::move(table)), true);
    return made;
}

void Samples::openPopover()
{
    stack_->topViewController()->presentPopover(std::make_unique<SampleTable>(), QStringLiteral("row/1/0"));
}

BKPasscodeViewController *Samples::lock()
{
    auto screen = std::make_unique<BKPasscodeViewController>(BKPasscodeViewController::Type::New);
    BKPasscodeViewController *made = screen.get();
    appWindow()->setLockScreen(std::make_unique<NavigationController>(std::move(screen)), false);
    return made;
}

void Samples::unlock(bool animated) { appWindow()->setLockScreen(nullptr, animated); }

void Samples::work(bool busy)
{
    if (busy)
        progress()->show(QStringLiteral("Working"));
    else
        progress()->hide();
}

void Samples::clear()
{
    while (ShownAlert *alert = alertCenter()->current())
        alert->answer(0);
    while (progress()->isVisible())
        progress()->hide();
    appWindow()->setRootViewController(nullptr);
    answers_.clear();
    Q_EMIT answersChanged();
}

void Samples::show(Alert alert)
{
    alert.context = this;
    alert.answered = [this](const AlertAnswer &answer) {
        answers_.append(answer.text.isEmpty() ? answer.buttonTitle
                                              : answer.buttonTitle + QStringLiteral(": ") + answer.text);
        if (answer.date.isValid())
            answers_.last() += QStringLiteral(" ") + answer.date.toString(Qt::ISODate);
        Q_EMIT answersChanged();
    };
    alertCenter()->show(std::move(alert));
}

void Samples::ask()
{
    show({.title = QStringLiteral("Sure?"),
          .message = QStringLiteral("Think."),
          .buttons = {{no, Alert::Role::Cancel}, {yes}}});
}

void Samples::askText(const QString &text)
{
    show({.title = QStringLiteral("Name"),
          .buttons = {{no, Alert::Role::Cancel}, {yes}},
          .textField = Alert::TextField{.placeholder = QStringLiteral("of it"), .text = text}});
}

void Samples::askSheet(const QString &title)
{
    show({.style = Alert::Style::ActionSheet,
          .title = title,
          .buttons = {{no, Alert::Role::Cancel},
                      {QStringLiteral("Keep")},
                      {QStringLiteral("Delete"), Alert::Role::Destructive}}});
}

void Samples::askDate(const QDateTime &date)
{
    show({.title = QStringLiteral("When"),
          .buttons = {{no, Alert::Role::Cancel}, {yes}},
          .dateField = Alert::DateField{.date = date}});
}

void Samples::pressAccessibly(QObject *item) const
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

void Samples::repeatKey(QObject *window, int key) const
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(window, &event);
}

Picker *Samples::picker(const QList<QStringList> &titles, const QList<int> &selected)
{
    auto *made = new Picker(this);
    made->setContent(titles, selected);
    return made;
}

} // namespace kesto::test
