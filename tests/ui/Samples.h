#pragma once

#include "SampleScreens.h"

#include "components/AlertCenter.h"
#include "components/BKPasscodeViewController.h"
#include "components/NavigationController.h"
#include "components/ProgressIndicator.h"
#include "components/SideMenuContainer.h"
#include "components/SplitViewController.h"
#include "components/Window.h"
#include "plan/CalendarViewController.h"

#include <QtQml/qqmlregistration.h>

namespace kesto::test
{

/// What the QML tests can't make themselves: the services of the platform, and screens in the window.
class Samples : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(kesto::Window *appWindow READ appWindow CONSTANT)
    Q_PROPERTY(kesto::AlertCenter *alertCenter READ alertCenter CONSTANT)
    Q_PROPERTY(kesto::ProgressIndicator *progress READ progress CONSTANT)
    Q_PROPERTY(QStringList answers READ answers NOTIFY answersChanged)

public:
    using QObject::QObject;

    [[nodiscard]] Window *appWindow() const;
    [[nodiscard]] AlertCenter *alertCenter() const;
    [[nodiscard]] ProgressIndicator *progress() const;
    /// What the alerts of ask…() were answered, "<button>" or "<button>: <text>".
    [[nodiscard]] const QStringList &answers() const { return answers_; }

    /// A side menu around a stack with a table.
    Q_INVOKABLE kesto::test::SampleTable *openTable(bool longTexts = false);
    Q_INVOKABLE kesto::test::SampleList *openList();
    /// A list as the menu beside a table.
    Q_INVOKABLE kesto::SplitViewController *openSplit();
    /// On a stack over a table, in a plan that starts on 5 March 2024; a day opens as one more table.
    Q_INVOKABLE kesto::CalendarViewController *openCalendar();
    /// Gives a day that the open calendar shows or not a kind ("chB", "bO", "feast" or none) and a journal; one without
    /// either is kept no longer.
    Q_INVOKABLE void markDay(int year, int month, int day, const QString &kind, bool jornal);
    /// The stack in the centre.
    Q_INVOKABLE kesto::NavigationController *stack() const { return stack_; }
    Q_INVOKABLE kesto::SideMenuContainer *menu() const { return menu_; }
    Q_INVOKABLE kesto::test::SampleTable *push();
    /// On the menu's own stack.
    Q_INVOKABLE kesto::NavigationController *pushInMenu();
    Q_INVOKABLE kesto::test::SampleTable *present();
    Q_INVOKABLE void openPopover();
    Q_INVOKABLE kesto::BKPasscodeViewController *lock();
    Q_INVOKABLE void unlock(bool animated = false);
    Q_INVOKABLE void work(bool busy);
    Q_INVOKABLE void clear();

    Q_INVOKABLE void ask();                          ///< two buttons, the first cancels
    Q_INVOKABLE void askText(const QString &text);   ///< the same with a field
    Q_INVOKABLE void askSheet(const QString &title); ///< a sheet: cancel, keep, delete
    Q_INVOKABLE void askDate(const QDateTime &date);
    /// What a held key sends to a window again and again.
    Q_INVOKABLE void repeatKey(QObject *window, int key) const;
    /// As a screen reader presses it.
    Q_INVOKABLE void pressAccessibly(QObject *item) const;
    Q_INVOKABLE kesto::Picker *picker(const QList<QStringList> &titles, const QList<int> &selected);

Q_SIGNALS:
    void answersChanged();

private:
    void show(Alert alert);
    void arrange(std::unique_ptr<ViewController> centre);

    QStringList answers_;
    QPointer<NavigationController> stack_;
    QPointer<SideMenuContainer> menu_;
};

} // namespace kesto::test
