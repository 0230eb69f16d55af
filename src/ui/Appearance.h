#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

class QFont;
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
    /// Whether the person uses the keyboard just now, rather than a finger or the mouse.
    Q_PROPERTY(bool keysInUse READ keysInUse NOTIFY keysInUseChanged)

public:
    explicit Appearance(QObject *parent); // no default: QML would make its own instead of asking create()
    /// The one that the engine was given, otherwise a new one.
    static Appearance *create(QQmlEngine *engine, QJSEngine *scriptEngine);

    /// The text size that the person chose for the whole system, as its font tells it.
    void followSystem();
    /// What texts of that font, on a screen of so many dots an inch, are against the usual ones; within the bounds.
    [[nodiscard]] static qreal textScaleOf(const QFont &font, qreal dotsPerInch);

    [[nodiscard]] qreal textScale() const { return textScale_; }
    void setTextScale(qreal scale);
    [[nodiscard]] bool motion() const { return motion_; }
    void setMotion(bool motion);
    [[nodiscard]] bool isDark() const { return dark_; }
    void setDark(bool dark);
    [[nodiscard]] bool keysInUse() const { return keysInUse_; }

    /// Watches what comes to a window that this is an event filter of.
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void textScaleChanged();
    void motionChanged();
    void darkChanged();
    void keysInUseChanged();

private:
    void setKeysInUse(bool inUse);

    qreal textScale_ = 1;
    bool motion_ = true;
    bool dark_ = false;
    bool keysInUse_ = false;
};

} // namespace kesto
