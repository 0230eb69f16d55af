#pragma once

#include <QObject>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace kesto
{

/// Finds the thing of a view that a popover or an action sheet points at.
class Anchors : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// The visible item below root whose objectName is name; the one that is drawn last of several. Rows of two tables
    /// have the same names, so the view of the screen (what has it as its "controller") is searched first. Null when
    /// there is none.
    Q_INVOKABLE [[nodiscard]] QQuickItem *find(QQuickItem *root, const QString &name, QObject *screen) const;
};

} // namespace kesto
