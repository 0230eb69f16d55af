#include "Appearance.h"

#include "EngineObject.h"

#include <QEvent>
#include <QFont>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace kesto
{

namespace
{

// What a desktop begins with: 11 points at 96 dots an inch.
constexpr qreal usualPoints = 11;
constexpr qreal usualDots = 96;
constexpr qreal pointsPerInch = 72;

qreal withinBounds(qreal scale) { return std::clamp(scale, 1.0, 2.0); }

} // namespace

Appearance::Appearance(QObject *parent)
    : QObject(parent)
{
}

Appearance *Appearance::create(QQmlEngine *engine, QJSEngine *) { return objectOf<Appearance>(*engine); }

void Appearance::followSystem()
{
    const auto follow = [this] {
        setTextScale(textScaleOf(QGuiApplication::font(), QGuiApplication::primaryScreen()->logicalDotsPerInch()));
    };
    connect(QGuiApplication::primaryScreen(), &QScreen::logicalDotsPerInchChanged, this, follow);
    follow();
}

qreal Appearance::textScaleOf(const QFont &font, qreal dotsPerInch)
{
    const qreal pixels = font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() * dotsPerInch / pointsPerInch;
    return withinBounds(pixels / (usualPoints * usualDots / pointsPerInch));
}

void Appearance::setTextScale(qreal scale)
{
    scale = withinBounds(scale);
    if (scale == textScale_)
        return;
    textScale_ = scale;
    Q_EMIT textScaleChanged();
}

bool Appearance::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        setKeysInUse(true);
        break;
    case QEvent::MouseButtonPress:
    case QEvent::TabletPress:
    case QEvent::TouchBegin:
        setKeysInUse(false);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void Appearance::setKeysInUse(bool inUse)
{
    if (inUse == keysInUse_)
        return;
    keysInUse_ = inUse;
    Q_EMIT keysInUseChanged();
}

void Appearance::setMotion(bool motion)
{
    if (motion == motion_)
        return;
    motion_ = motion;
    Q_EMIT motionChanged();
}

void Appearance::setDark(bool dark)
{
    if (dark == dark_)
        return;
    dark_ = dark;
    Q_EMIT darkChanged();
}

} // namespace kesto
