#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;
class QQuickWindow;

namespace kesto
{

/// Tells views what may wait at the start: what the window's first frame does not show is made after it. Both are true
/// where no start is waited for, so that views that come later are made at once. One for each QML engine.
class FirstFrame : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// The first frame is being made: what is in front is known and to be shown.
    Q_PROPERTY(bool begun READ hasBegun NOTIFY begunChanged)
    /// It went out.
    Q_PROPERTY(bool over READ isOver NOTIFY overChanged)

public:
    explicit FirstFrame(QObject *parent); // no default: QML would make its own instead of asking create()
    /// The one that the engine was given, otherwise a new one.
    static FirstFrame *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    [[nodiscard]] bool hasBegun() const { return begun_; }
    [[nodiscard]] bool isOver() const { return over_; }

    /// To be called before the window is made.
    void await();
    /// The window that was waited for.
    void follow(QQuickWindow &window);

Q_SIGNALS:
    void begunChanged();
    void overChanged();

private:
    void begin();
    void end();

    bool begun_ = true;
    bool over_ = true;
};

} // namespace kesto
