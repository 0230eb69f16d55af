#pragma once

#include "journal/JornalSheduleRootViewController.h"
#include "journal/JornalTabBarController.h"
#include "journal/TimeRowDetailViewController.h"

#include <QtQml/qqmlregistration.h>

/// The classes of the journal's container, schedule and row editor as QML knows them. They are made in C++ only.
namespace kesto::qml
{

struct JornalTabBarControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::JornalTabBarController)
    QML_NAMED_ELEMENT(JornalTabBarController)
    QML_UNCREATABLE("made in C++")
};

struct JornalHelperType
{
    Q_GADGET
    QML_FOREIGN(kesto::JornalHelper)
    QML_NAMED_ELEMENT(JornalHelper)
    QML_UNCREATABLE("made in C++")
};

struct JornalSheduleRootViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::JornalSheduleRootViewController)
    QML_NAMED_ELEMENT(JornalSheduleRootViewController)
    QML_UNCREATABLE("made in C++")
};

struct TimeRowDetailViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::TimeRowDetailViewController)
    QML_NAMED_ELEMENT(TimeRowDetailViewController)
    QML_UNCREATABLE("made in C++")
};

} // namespace kesto::qml
