#include "qt/canvas/marks.h"

#include "qt/drawing/boxes.h"
#include "qt/drawing/mixing.h"
#include "qt/painters/painters.h"
#include "widgets/canvas.h"

#include <QFontMetrics>
#include <QPainter>

#include <cmath>

namespace quor {

namespace {

constexpr QColor markColor(0x1D, 0x66, 0xE0);
constexpr qreal frameOpacity = 0.55;
constexpr qreal ghostOpacity = 0.45;
constexpr qreal fillOpacity = 0.07;
constexpr qreal tipOpacity = 0.92;
constexpr qreal tipRadius = 3;

// The nearest pixel; the middle at half a pixel rounds down.
qreal NearestDown(qreal value)
{
    return std::ceil(value - 0.5);
}

QRectF HandlePixels(const GrabHandle& handle)
{
    const QRectF area = PixelsOf({handle.left, handle.top, Canvas::handleSize, Canvas::handleSize});
    return {NearestDown(area.left()), NearestDown(area.top()), area.width(), area.height()};
}

void DrawDashed(QPainter& painter, const QRectF& area, const QColor& color, const QList<qreal>& pattern)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    const qreal width = HairWidth(painter);
    QPen pen(color, width);
    pen.setDashPattern(pattern);
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(Snapped(painter, area).adjusted(width / 2, width / 2, -width / 2, -width / 2));
    painter.restore();
}

} // namespace

QRectF SelectionFrame(const Canvas& canvas)
{
    const GrabHandle& first = canvas.Handles().front();
    const GrabHandle& last = canvas.Handles().back();
    if (!first.visible || !last.visible) {
        return {};
    }
    const QRectF upperLeft = HandlePixels(first);
    const QRectF lowerRight = HandlePixels(last);
    return QRectF(upperLeft.bottomRight(), lowerRight.topLeft()).adjusted(-1, -1, 1, 1);
}

void DrawSelection(QPainter& painter, const Canvas& canvas)
{
    const QRectF frame = SelectionFrame(canvas);
    if (!frame.isNull()) {
        DrawBox(painter, frame, 0, {}, WithAlpha(markColor, frameOpacity));
    }
    for (const GrabHandle& handle : canvas.Handles()) {
        if (handle.visible) {
            DrawBox(painter, HandlePixels(handle), 0, Qt::white, markColor);
        }
    }
}

void DrawGhost(QPainter& painter, const QRectF& area)
{
    DrawDashed(painter, area, WithAlpha(markColor, ghostOpacity), {3, 3});
}

void DrawOutline(QPainter& painter, const QRectF& area, bool isNew)
{
    painter.fillRect(Snapped(painter, area), WithAlpha(markColor, fillOpacity));
    if (isNew) {
        DrawDashed(painter, area, markColor, {4, 3});
    } else {
        DrawBox(painter, area, 0, {}, markColor);
    }
}

PointerTip::PointerTip(const QString& text, const QFont& font, const QPoint& pointer, const QSize& view) : m_text(text)
{
    const QFontMetrics metrics(font);
    const QSize size(metrics.horizontalAdvance(text) + 12, metrics.height() + 4);
    QPoint place = pointer + QPoint(14, 18);
    if (place.x() + size.width() > view.width()) {
        place.setX(pointer.x() - 6 - size.width());
    }
    if (place.y() + size.height() > view.height()) {
        place.setY(pointer.y() - 6 - size.height());
    }
    m_place = QRect(place, size);
}

void PointerTip::Draw(QPainter& painter, const QFont& font) const
{
    DrawBox(painter, m_place, tipRadius, WithAlpha(QColor(0x1B, 0x22, 0x2A), tipOpacity));
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(m_place, Qt::AlignCenter | Qt::TextSingleLine, m_text);
}

} // namespace quor
