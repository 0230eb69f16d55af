#pragma once

#include <QHash>
#include <QObject>

#include <QtQml/qqmlregistration.h>

namespace kesto
{

/// Finds the file that draws a view controller, <feature>/<viewName>.qml in this module, or a row of one feature,
/// <feature>/<cell>.qml. Their names end in "View" and "Cell".
class ViewLocator : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit ViewLocator(QObject *parent = nullptr);

    /// Empty when no file draws it.
    Q_INVOKABLE [[nodiscard]] QString file(const QString &name) const { return files_.value(name); }

private:
    QHash<QString, QString> files_;
};

} // namespace kesto
