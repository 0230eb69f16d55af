#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace kesto
{

/// A drop that water fills to a level. Its surface waves while the level moves. It says nothing to screen readers; the
/// text beside it does.
class DropGauge : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// 0 (empty) to 1 (full); what is beyond counts as the nearest.
    Q_PROPERTY(qreal level MEMBER level_ NOTIFY lookChanged)
    Q_PROPERTY(QColor water MEMBER water_ NOTIFY lookChanged)
    Q_PROPERTY(QColor ground MEMBER ground_ NOTIFY lookChanged)

public:
    explicit DropGauge(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void lookChanged();

private:
    qreal level_ = 0;
    QColor water_;
    QColor ground_;
};

} // namespace kesto
