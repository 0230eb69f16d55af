#pragma once

#include "plan/GraphDrawing.h"
#include "plan/GraphViewController.h"

#include <QPointer>
#include <QQuickPaintedItem>
#include <QVariantAnimation>
#include <QtQml/qqmlregistration.h>

namespace kesto
{

/// Draws what a GraphViewController holds. A touch or a drag puts the flag at the nearest point.
class GraphView : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kesto::GraphViewController *controller READ controller WRITE setController NOTIFY controllerChanged)
    Q_PROPERTY(QColor lineColor MEMBER lineColor_ NOTIFY lookChanged)
    Q_PROPERTY(QColor trendColor MEMBER trendColor_ NOTIFY lookChanged)
    Q_PROPERTY(QColor idealColor MEMBER idealColor_ NOTIFY lookChanged)
    Q_PROPERTY(QColor gridColor MEMBER gridColor_ NOTIFY lookChanged)
    Q_PROPERTY(QColor labelColor MEMBER labelColor_ NOTIFY lookChanged)
    Q_PROPERTY(QColor backgroundColor MEMBER backgroundColor_ NOTIFY lookChanged)
    Q_PROPERTY(QFont font MEMBER font_ NOTIFY lookChanged)
    /// Milliseconds that a change of the range takes; 0: it shows at once.
    Q_PROPERTY(int duration MEMBER duration_ NOTIFY lookChanged)
    /// Where the flag points at, in this item.
    Q_PROPERTY(QPointF flagPosition READ flagPosition NOTIFY flagMoved)

public:
    explicit GraphView(QQuickItem *parent = nullptr);

    [[nodiscard]] GraphViewController *controller() const { return controller_; }
    void setController(GraphViewController *controller);

    [[nodiscard]] float minValue() const { return content_.minValue; }
    [[nodiscard]] float maxValue() const { return content_.maxValue; }
    [[nodiscard]] QPointF flagPosition() const;

    /// Takes the controller's points and draws them.
    void reloadGraph();
    void paint(QPainter *painter) override;
    /// The graph on its own background, at twice the size that it has on the screen.
    [[nodiscard]] QImage picture() const;

Q_SIGNALS:
    void controllerChanged();
    void lookChanged();
    void flagMoved();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void changeLook();
    void pointAt(qreal x);
    [[nodiscard]] GraphDrawing drawing() const { return {content_, look_, boundingRect()}; }

    QPointer<GraphViewController> controller_;
    GraphContent content_;
    GraphLook look_;
    QColor lineColor_;
    QColor trendColor_;
    QColor idealColor_;
    QColor gridColor_;
    QColor labelColor_;
    QColor backgroundColor_;
    QFont font_;
    int duration_ = 0;
    QPolygonF lineBefore_; // what the running animation began with
    QVariantAnimation animation_;
};

} // namespace kesto
