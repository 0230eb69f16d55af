#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace kesto
{

/// The dial of a kitchen timer: a ring that is covered clockwise from the top. It says nothing to screen readers; the
/// text in it does.
class RingGauge : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// 0 (empty) to 1 (all around); what is beyond counts as the nearest.
    Q_PROPERTY(qreal level MEMBER level_ NOTIFY lookChanged)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY lookChanged)
    Q_PROPERTY(QColor ground MEMBER ground_ NOTIFY lookChanged)
    Q_PROPERTY(QColor marks MEMBER marks_ NOTIFY lookChanged)
    Q_PROPERTY(qreal thickness MEMBER thickness_ NOTIFY lookChanged)

public:
    explicit RingGauge(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void lookChanged();

private:
    qreal level_ = 0;
    QColor color_;
    QColor ground_;
    QColor marks_;
    qreal thickness_ = 1;
};

} // namespace kesto
