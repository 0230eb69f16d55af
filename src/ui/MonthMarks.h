#pragma once

#include "plan/CalendarMonth.h"

#include <QColor>
#include <QFont>
#include <QHash>
#include <QImage>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

class QPainter;

namespace kesto
{

/// What the days of a month are marked with: the short label of a day's kind above its phase, and a smile in the corner
/// for a journal. One picture over all cells, which lie seven in a row: a label and a smile in each of them are so many
/// things that every frame would look at, and that a change would lay out anew. It says nothing to screen readers; the
/// days do.
class MonthMarks : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(kesto::CalendarMonth *month READ month WRITE setMonth NOTIFY monthChanged)
    Q_PROPERTY(qreal cellHeight MEMBER cellHeight_ NOTIFY lookChanged)
    Q_PROPERTY(QFont font MEMBER font_ NOTIFY lookChanged)
    Q_PROPERTY(QColor color MEMBER color_ NOTIFY lookChanged)
    Q_PROPERTY(qreal labelMargin MEMBER labelMargin_ NOTIFY lookChanged) ///< below the label
    Q_PROPERTY(int smileSize MEMBER smileSize_ NOTIFY lookChanged)
    Q_PROPERTY(qreal smileMargin MEMBER smileMargin_ NOTIFY lookChanged)
    Q_PROPERTY(qreal disabledOpacity MEMBER disabledOpacity_ NOTIFY lookChanged)
    Q_PROPERTY(qreal otherMonthOpacity MEMBER otherMonthOpacity_ NOTIFY lookChanged)

public:
    explicit MonthMarks(QQuickItem *parent = nullptr);

    [[nodiscard]] CalendarMonth *month() const { return month_; }
    void setMonth(CalendarMonth *month);

Q_SIGNALS:
    void monthChanged();
    void lookChanged();

protected:
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void updatePolish() override;
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *) override;

private:
    struct Mark
    {
        QString kind;
        bool smile = false;
        qreal opacity = 1; ///< of a day without marks always 1
        bool operator==(const Mark &) const = default;
    };

    void changeLook();
    [[nodiscard]] QList<Mark> marksOfMonth() const;
    [[nodiscard]] qreal cellWidth() const { return width() / CalendarMonth::daysPerWeek; }
    void draw();
    void drawPicture(QPainter &painter, QPointF at, const QImage &picture) const;
    [[nodiscard]] const QImage &label(const QString &kind);
    [[nodiscard]] const QImage &smile();
    [[nodiscard]] QImage emptyPicture(QSizeF size) const;

    QPointer<CalendarMonth> month_;
    qreal cellHeight_ = 0;
    QFont font_;
    QColor color_;
    qreal labelMargin_ = 0;
    int smileSize_ = 0;
    qreal smileMargin_ = 0;
    qreal disabledOpacity_ = 1;
    qreal otherMonthOpacity_ = 1;

    QList<Mark> marks_;
    QSizeF drawnSize_;
    bool newLook_ = true;
    qreal ratio_ = 1; ///< of the device's pixels
    QHash<QString, QImage> labels_;
    QImage smile_;
    QImage picture_; ///< null when no day has a mark
    bool newPicture_ = false;
};

} // namespace kesto
