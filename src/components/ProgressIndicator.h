#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

namespace kesto
{

class Platform;

/// Covers the window while something takes its time.
class ProgressIndicator : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool visible READ isVisible NOTIFY changed)
    Q_PROPERTY(QString text READ text NOTIFY changed)
public:
    static ProgressIndicator &sharedIndicator();
    explicit ProgressIndicator(Platform &platform);

    [[nodiscard]] bool isVisible() const { return !texts_.isEmpty(); }
    /// Of the last that was shown and not hidden.
    [[nodiscard]] QString text() const { return texts_.value(texts_.size() - 1); }

    /// Each show() wants one hide(); a hide() too many does nothing.
    void show(const QString &text = {});
    void hide();

Q_SIGNALS:
    void changed();

private:
    QStringList texts_;
};

} // namespace kesto
