#pragma once

#include "plan/CalFooterView.h"
#include "plan/CalendarContainerViewController.h"
#include "plan/CalendarMonth.h"
#include "plan/CalendarViewController.h"
#include "plan/DietPeriodsSelector.h"
#include "plan/GraphViewController.h"

#include <QtQml/qqmlregistration.h>

/// The classes of the plan as QML knows them. They are made in C++ only.
namespace kesto::qml
{

struct CalendarViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::CalendarViewController)
    QML_NAMED_ELEMENT(CalendarViewController)
    QML_UNCREATABLE("made in C++")
};

struct CalendarContainerViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::CalendarContainerViewController)
    QML_NAMED_ELEMENT(CalendarContainerViewController)
    QML_UNCREATABLE("made in C++")
};

struct CalendarMonthType
{
    Q_GADGET
    QML_FOREIGN(kesto::CalendarMonth)
    QML_NAMED_ELEMENT(CalendarMonth)
    QML_UNCREATABLE("made in C++")
};

struct CalFooterViewType
{
    Q_GADGET
    QML_FOREIGN(kesto::CalFooterView)
    QML_NAMED_ELEMENT(CalFooterView)
    QML_UNCREATABLE("made in C++")
};

struct CalFooterFieldType
{
    Q_GADGET
    QML_FOREIGN(kesto::CalFooterField)
    QML_NAMED_ELEMENT(CalFooterField)
    QML_UNCREATABLE("made in C++")
};

struct CalKindButtonType
{
    Q_GADGET
    QML_FOREIGN(kesto::CalKindButton)
    QML_NAMED_ELEMENT(CalKindButton)
    QML_UNCREATABLE("made in C++")
};

struct DietPeriodsSelectorType
{
    Q_GADGET
    QML_FOREIGN(kesto::DietPeriodsSelector)
    QML_NAMED_ELEMENT(DietPeriodsSelector)
    QML_UNCREATABLE("made in C++")
};

struct CalFooterFieldListType
{
    Q_GADGET
    QML_FOREIGN(QList<kesto::CalFooterField *>)
    QML_ANONYMOUS
    QML_SEQUENTIAL_CONTAINER(kesto::CalFooterField *)
};

struct CalKindButtonListType
{
    Q_GADGET
    QML_FOREIGN(QList<kesto::CalKindButton *>)
    QML_ANONYMOUS
    QML_SEQUENTIAL_CONTAINER(kesto::CalKindButton *)
};

struct GraphViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::GraphViewController)
    QML_NAMED_ELEMENT(GraphViewController)
    QML_UNCREATABLE("made in C++")
};

} // namespace kesto::qml
