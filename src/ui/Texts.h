#pragma once

#include "platform/StringTables.h"

#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace kesto
{

/// The names of controls that belong to no screen ("Back", "Delete" …) in the language of the interface.
class Texts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    Q_INVOKABLE [[nodiscard]] QString localized(const QString &key) const { return kesto::localized(key); }

    /// The texts of a row's badges.
    Q_INVOKABLE [[nodiscard]] QString words(const QVariantList &badges) const
    {
        QStringList texts;
        for (const QVariant &badge : badges)
            texts.append(badge.toMap().value(QStringLiteral("text")).toString());
        return joined(texts);
    }

    /// The parts that are not empty, one after the other.
    Q_INVOKABLE [[nodiscard]] QString joined(const QStringList &parts, const QString &by = QStringLiteral(", ")) const
    {
        QStringList present = parts;
        present.removeAll(QString());
        return present.join(by);
    }
};

} // namespace kesto
