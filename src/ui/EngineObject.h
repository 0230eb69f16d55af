#pragma once

#include <QQmlEngine>
#include <QVariant>

namespace kesto
{

/// An object that every QML engine has one of. Gives an engine its one before it loads anything; the object outlives
/// those of the engine.
template <typename T>
void giveTo(QQmlEngine &engine, T &object)
{
    QQmlEngine::setObjectOwnership(&object, QQmlEngine::CppOwnership);
    engine.setProperty(T::staticMetaObject.className(), QVariant::fromValue(&object));
}

/// The one that the engine was given, otherwise a new one, which becomes the caller's.
template <typename T>
[[nodiscard]] T *objectOf(const QQmlEngine &engine)
{
    T *own = engine.property(T::staticMetaObject.className()).template value<T *>();
    return own != nullptr ? own : new T(nullptr);
}

} // namespace kesto
