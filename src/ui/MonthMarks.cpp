#include "ui/MonthMarks.h"

#include "ui/Pictures.h"
#include "util/ImageFiles.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace kesto
{

MonthMarks::MonthMarks(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &MonthMarks::lookChanged, this, &MonthMarks::changeLook);
}

void MonthMarks::setMonth(CalendarMonth *month)
{
    if (month == month_)
        return;
    if (month_ != nullptr)
        month_->disconnect(this);
    month_ = month;
    if (month_ != nullptr) {
        connect(month_, &CalendarMonth::dataChanged, this, &QQuickItem::polish);
        connect(month_, &CalendarMonth::rowsInserted, this, &QQuickItem::polish);
        connect(month_, &CalendarMonth::rowsRemoved, this, &QQuickItem::polish);
    }
    polish();
    Q_EMIT monthChanged();
}

void MonthMarks::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.width() != oldGeometry.width())
        changeLook();
    else if (newGeometry.height() != oldGeometry.height())
        polish(); // more or fewer weeks
}

void MonthMarks::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickItem::itemChange(change, value);
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged)
        changeLook();
}

void MonthMarks::changeLook()
{
    newLook_ = true;
    polish();
}

QList<MonthMarks::Mark> MonthMarks::marksOfMonth() const
{
    QList<Mark> marks;
    if (month_ == nullptr)
        return marks;
    marks.reserve(month_->cells().size());
    for (const CalendarCell &cell : month_->cells()) {
        Mark mark{.kind = cell.kind, .smile = cell.hasJornal};
        if (!mark.kind.isEmpty() || mark.smile)
            mark.opacity = !cell.enabled ? disabledOpacity_ : cell.otherMonth ? otherMonthOpacity_ : 1;
        marks.append(std::move(mark));
    }
    return marks;
}

void MonthMarks::updatePolish()
{
    QList<Mark> marks = marksOfMonth();
    if (!newLook_ && marks == marks_ && drawnSize_ == size())
        return;
    if (std::exchange(newLook_, false)) {
        ratio_ = window() != nullptr ? window()->effectiveDevicePixelRatio() : 1;
        labels_.clear();
        smile_ = QImage();
    }
    marks_ = std::move(marks);
    drawnSize_ = size();
    const bool empty = picture_.isNull();
    draw();
    if (empty && picture_.isNull())
        return;
    newPicture_ = true;
    update();
}

void MonthMarks::draw()
{
    if (size().isEmpty() ||
        std::all_of(marks_.begin(), marks_.end(), [](const Mark &mark) { return mark == Mark(); })) {
        picture_ = QImage();
        return;
    }
    picture_ = emptyPicture(size());
    QPainter painter(&picture_);
    for (qsizetype i = 0; i < marks_.size(); ++i) {
        const Mark &mark = marks_[i];
        const IndexPath at = CalendarMonth::indexPathOf(static_cast<int>(i));
        const qreal left = at.row * cellWidth();
        const qreal top = at.section * cellHeight_;
        painter.setOpacity(mark.opacity);
        if (!mark.kind.isEmpty()) {
            const QImage &picture = label(mark.kind);
            const qreal height = picture.deviceIndependentSize().height();
            drawPicture(painter, {left + 1, top + cellHeight_ - labelMargin_ - height}, picture);
        }
        if (mark.smile)
            drawPicture(painter, {left + cellWidth() - smileMargin_ - smileSize_, top + smileMargin_}, smile());
    }
}

// On whole pixels, so that nothing gets blurred.
void MonthMarks::drawPicture(QPainter &painter, QPointF at, const QImage &picture) const
{
    painter.drawImage(QPointF(std::round(at.x() * ratio_), std::round(at.y() * ratio_)) / ratio_, picture);
}

const QImage &MonthMarks::label(const QString &kind)
{
    QImage &picture = labels_[kind];
    if (picture.isNull()) {
        const qreal width = cellWidth() - 2;
        QTextLayout layout(QFontMetricsF(font_).elidedText(kind, Qt::ElideRight, width), font_);
        QTextOption option(Qt::AlignHCenter);
        option.setWrapMode(QTextOption::NoWrap);
        option.setUseDesignMetrics(true); // as the texts around
        layout.setTextOption(option);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(width);
        layout.endLayout();
        picture = emptyPicture({width, std::ceil(line.height())});
        QPainter painter(&picture);
        painter.setPen(color_);
        layout.draw(&painter, {});
    }
    return picture;
}

const QImage &MonthMarks::smile()
{
    if (smile_.isNull()) {
        smile_ = PictureFolder(imagesFolder())
                     .image(QStringLiteral("smile"), (QSizeF(smileSize_, smileSize_) * ratio_).toSize(), color_);
        smile_.setDevicePixelRatio(ratio_);
    }
    return smile_;
}

QImage MonthMarks::emptyPicture(QSizeF size) const
{
    const QSizeF pixels = size * ratio_;
    QImage picture(qMax(1, qCeil(pixels.width())), qMax(1, qCeil(pixels.height())),
                   QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(ratio_);
    picture.fill(Qt::transparent);
    return picture;
}

QSGNode *MonthMarks::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    auto *node = static_cast<QSGImageNode *>(old);
    if (picture_.isNull()) {
        delete node;
        return nullptr;
    }
    if (node == nullptr) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        newPicture_ = true;
    }
    if (std::exchange(newPicture_, false)) {
        node->setTexture(window()->createTextureFromImage(picture_, QQuickWindow::TextureHasAlphaChannel));
        node->setRect(QRectF(QPointF(), picture_.deviceIndependentSize()));
    }
    return node;
}

} // namespace kesto
