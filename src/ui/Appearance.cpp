#include "Appearance.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QQmlEngine>

#include <algorithm>

namespace kesto
{

namespace
{

constexpr const char *given = "kestoAppearance";

QString preferredFamily()
{
    const QStringList installed = QFontDatabase::families();
    for (const auto &family : {QStringLiteral("Helvetica Neue"), QStringLiteral("Inter")}) {
        if (installed.contains(family))
            return family;
    }
    return QGuiApplication::font().family();
}

} // namespace

Appearance::Appearance(QObject *parent)
    : QObject(parent)
    , fontFamily_(preferredFamily())
{
}

Appearance *Appearance::create(QQmlEngine *engine, QJSEngine *)
{
    if (auto *own = engine->property(given).value<Appearance *>())
        return own;
    return new Appearance(nullptr);
}

void Appearance::giveTo(QQmlEngine &engine)
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
    engine.setProperty(given, QVariant::fromValue(this));
}

void Appearance::setTextScale(qreal scale)
{
    scale = std::clamp(scale, 1.0, 2.0);
    if (scale == textScale_)
        return;
    textScale_ = scale;
    Q_EMIT textScaleChanged();
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
