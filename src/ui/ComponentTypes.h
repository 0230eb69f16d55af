#pragma once

#include "components/AlertCenter.h"
#include "components/BKPasscodeViewController.h"
#include "components/DatePicker.h"
#include "components/NavigationController.h"
#include "components/PopoverController.h"
#include "components/ProgressIndicator.h"
#include "components/SearchBarDietTableViewController.h"
#include "components/SideMenuContainer.h"
#include "components/SplitViewController.h"
#include "components/TabBarController.h"
#include "components/TableModel.h"
#include "components/TableViewController.h"
#include "components/TitleStepper.h"
#include "components/Window.h"

#include <QtQml/qqmlregistration.h>

/// The classes of components as QML knows them. They are made in C++ only.
namespace kesto::qml
{

struct ViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::ViewController)
    QML_NAMED_ELEMENT(ViewController)
    QML_UNCREATABLE("made in C++")
};

struct BarButtonItemType
{
    Q_GADGET
    QML_FOREIGN(kesto::BarButtonItem)
    QML_NAMED_ELEMENT(BarButtonItem)
    QML_UNCREATABLE("made in C++")
};

struct TitleStepperType
{
    Q_GADGET
    QML_FOREIGN(kesto::TitleStepper)
    QML_NAMED_ELEMENT(TitleStepper)
    QML_UNCREATABLE("made in C++")
};

struct NavigationControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::NavigationController)
    QML_NAMED_ELEMENT(NavigationController)
    QML_UNCREATABLE("made in C++")
};

struct TabBarControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::TabBarController)
    QML_NAMED_ELEMENT(TabBarController)
    QML_UNCREATABLE("made in C++")
};

struct SideMenuContainerType
{
    Q_GADGET
    QML_FOREIGN(kesto::SideMenuContainer)
    QML_NAMED_ELEMENT(SideMenuContainer)
    QML_UNCREATABLE("made in C++")
};

struct SplitViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::SplitViewController)
    QML_NAMED_ELEMENT(SplitViewController)
    QML_UNCREATABLE("made in C++")
};

struct PopoverControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::PopoverController)
    QML_NAMED_ELEMENT(PopoverController)
    QML_UNCREATABLE("made in C++")
};

/// Not "Window": Qt Quick has one.
struct AppWindowType
{
    Q_GADGET
    QML_FOREIGN(kesto::Window)
    QML_NAMED_ELEMENT(AppWindow)
    QML_UNCREATABLE("made in C++")
};

struct TableViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::TableViewController)
    QML_NAMED_ELEMENT(TableViewController)
    QML_UNCREATABLE("made in C++")
};

struct SearchBarDietTableViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::SearchBarDietTableViewController)
    QML_NAMED_ELEMENT(SearchBarDietTableViewController)
    QML_UNCREATABLE("made in C++")
};

struct TableModelType
{
    Q_GADGET
    QML_FOREIGN(kesto::TableModel)
    QML_NAMED_ELEMENT(TableModel)
    QML_UNCREATABLE("made in C++")
};

struct TableLineType
{
    Q_GADGET
    QML_FOREIGN(kesto::TableLine)
    QML_VALUE_TYPE(tableLine)
};

struct PickerType
{
    Q_GADGET
    QML_FOREIGN(kesto::Picker)
    QML_NAMED_ELEMENT(Picker)
    QML_UNCREATABLE("made in C++")
};

struct PickerComponentType
{
    Q_GADGET
    QML_FOREIGN(kesto::PickerComponent)
    QML_NAMED_ELEMENT(PickerComponent)
    QML_UNCREATABLE("made in C++")
};

struct DatePickerType
{
    Q_GADGET
    QML_FOREIGN(kesto::DatePicker)
    QML_NAMED_ELEMENT(DatePicker)
    QML_UNCREATABLE("made in C++")
};

struct AlertCenterType
{
    Q_GADGET
    QML_FOREIGN(kesto::AlertCenter)
    QML_NAMED_ELEMENT(AlertCenter)
    QML_UNCREATABLE("made in C++")
};

struct ShownAlertType
{
    Q_GADGET
    QML_FOREIGN(kesto::ShownAlert)
    QML_NAMED_ELEMENT(ShownAlert)
    QML_UNCREATABLE("made in C++")
};

struct ProgressIndicatorType
{
    Q_GADGET
    QML_FOREIGN(kesto::ProgressIndicator)
    QML_NAMED_ELEMENT(ProgressIndicator)
    QML_UNCREATABLE("made in C++")
};

struct BKPasscodeViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::BKPasscodeViewController)
    QML_NAMED_ELEMENT(BKPasscodeViewController)
    QML_UNCREATABLE("made in C++")
};

// Lists of them, as properties hold them.
struct ViewControllerListType
{
    Q_GADGET
    QML_FOREIGN(QList<kesto::ViewController *>)
    QML_ANONYMOUS
    QML_SEQUENTIAL_CONTAINER(kesto::ViewController *)
};

struct BarButtonItemListType
{
    Q_GADGET
    QML_FOREIGN(QList<kesto::BarButtonItem *>)
    QML_ANONYMOUS
    QML_SEQUENTIAL_CONTAINER(kesto::BarButtonItem *)
};

struct PickerComponentListType
{
    Q_GADGET
    QML_FOREIGN(QList<kesto::PickerComponent *>)
    QML_ANONYMOUS
    QML_SEQUENTIAL_CONTAINER(kesto::PickerComponent *)
};

struct PopoverControllerListType
{
    Q_GADGET
    QML_FOREIGN(QList<kesto::PopoverController *>)
    QML_ANONYMOUS
    QML_SEQUENTIAL_CONTAINER(kesto::PopoverController *)
};

// The enumerations of values: TableRow.Switch, Keyboard.Decimal, Alert.ActionSheet.
namespace TableRowValues
{
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(kesto::TableRow)
QML_NAMED_ELEMENT(TableRow)
} // namespace TableRowValues

namespace KeyboardValues
{
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(kesto::Keyboard)
QML_NAMED_ELEMENT(Keyboard)
} // namespace KeyboardValues

namespace AlertValues
{
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(kesto::Alert)
QML_NAMED_ELEMENT(Alert)
} // namespace AlertValues

} // namespace kesto::qml
