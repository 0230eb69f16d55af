#pragma once

#include "platform/Platform.h"
#include "style/Styllesheet.h"

#include <QQmlEngine>
#include <QtQml/qqmlregistration.h>

namespace kesto::qml
{

/// The look's constants: the platform's own sheet.
struct StyllesheetType
{
    Q_GADGET
    QML_FOREIGN(kesto::Styllesheet)
    QML_NAMED_ELEMENT(Styllesheet)
    QML_SINGLETON

public:
    static Styllesheet *create(QQmlEngine *, QJSEngine *)
    {
        auto &sheet = Platform::current().shared<Styllesheet>();
        QQmlEngine::setObjectOwnership(&sheet, QQmlEngine::CppOwnership);
        return &sheet;
    }
};

} // namespace kesto::qml
