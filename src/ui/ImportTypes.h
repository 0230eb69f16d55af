#pragma once

#include "import/UpdatingDatabaseViewController.h"

#include <QtQml/qqmlregistration.h>

/// The classes of the import as QML knows them. They are made in C++ only.
namespace kesto::qml
{

struct UpdatingDatabaseViewControllerType
{
    Q_GADGET
    QML_FOREIGN(kesto::UpdatingDatabaseViewController)
    QML_NAMED_ELEMENT(UpdatingDatabaseViewController)
    QML_UNCREATABLE("made in C++")
};

} // namespace kesto::qml
