#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace kesto
{

/// How the interface is to look, as far as the person or the platform chooses it. One for each QML engine.
class Appearance : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// The size of texts against the normal one, 1 to 2.
    Q_PROPERTY(qreal textScale READ textScale WRITE setTextScale NOTIFY textScaleChanged)
    /// Whether things may move.
    Q_PROPERTY(bool motion READ motion WRITE setMotion NOTIFY motionChanged)
    Q_PROPERTY(bool dark READ isDark WRITE setDark NOTIFY darkChanged)
    Q_PROPERTY(QString fontFamily READ fontFamily CONSTANT)

public:
    explicit Appearance(QObject *parent); // no default: QML would make its own instead of asking create()
    /// The one that the engine was given, otherwise a new one.
    static Appearance *create(QQmlEngine *engine, QJSEngine *scriptEngine);
    /// Gives an engine its one before it loads anything; this outlives the engine's objects.
    void giveTo(QQmlEngine &engine);

    [[nodiscard]] qreal textScale() const { return textScale_; }
    void setTextScale(qreal scale);
    [[nodiscard]] bool motion() const { return motion_; }
    void setMotion(bool motion);
    [[nodiscard]] bool isDark() const { return dark_; }
    void setDark(bool dark);

    /// The first of the families that we like which is installed, else the system's.
    [[nodiscard]] QString fontFamily() const { return fontFamily_; }

Q_SIGNALS:
    void textScaleChanged();
    void motionChanged();
    void darkChanged();

private:
    qreal textScale_ = 1;
    bool motion_ = true;
    bool dark_ = false;
    QString fontFamily_;
};

} // namespace kesto
