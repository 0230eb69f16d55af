#include "Measured.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

// The least that a program with a Quick window does: the same size as the program's, and nothing in it.
int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick\nWindow { visible: true; width: 390; height: 844 }");
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (window == nullptr)
        return 1;
    const kesto::bench::Measured measured(*window, [](const QByteArray &) {});
    return QGuiApplication::exec();
}
