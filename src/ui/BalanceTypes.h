#pragma once

#include "journal/FoodBalanceRootViewController.h"
#include "journal/TimerViewController.h"
#include "journal/WaterBalanceRootViewController.h"

#include <QtQml/qqmlregistration.h>

/// The classes of the journal's water, protein and timer as QML knows them. They are made in C++ only.
namespace kesto::qml
{

struct JornalButtonType
{
    Q_GADGET
    QML_FOREIGN(kesto::JornalButton)
    QML_NAMED_ELEMENT(JornalButton)
    QML_UNCREATABLE("made in C++")
};

struct WaterPickerType
{
    Q_GADGET
    QML_FOREIGN(kesto::WaterPicker)
    QML_NAMED_ELEMENT(WaterPicker)
    QML_UNCREATABLE("made in C++")
};

struct BalanceRootViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::BalanceRootViewController)
    QML_NAMED_ELEMENT(BalanceRootViewController)
    QML_UNCREATABLE("made in C++")
};

struct WaterBalanceRootViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::WaterBalanceRootViewController)
    QML_NAMED_ELEMENT(WaterBalanceRootViewController)
    QML_UNCREATABLE("made in C++")
};

struct WaterValuesTableViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::WaterValuesTableViewController)
    QML_NAMED_ELEMENT(WaterValuesTableViewController)
    QML_UNCREATABLE("made in C++")
};

struct FoodBalanceRootViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::FoodBalanceRootViewController)
    QML_NAMED_ELEMENT(FoodBalanceRootViewController)
    QML_UNCREATABLE("made in C++")
};

struct TimerViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::TimerViewController)
    QML_NAMED_ELEMENT(TimerViewController)
    QML_UNCREATABLE("made in C++")
};

struct JornalButtonListType
{
    Q_GADGET
    QML_FOREIGN(QList<kesto::JornalButton *>)
    QML_ANONYMOUS
    QML_SEQUENTIAL_CONTAINER(kesto::JornalButton *)
};

} // namespace kesto::qml
