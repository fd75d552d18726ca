#include "qt/canvas/canvas_painting.h"

#include "qt/canvas/marks.h"
#include "qt/drawing/boxes.h"
#include "qt/drawing/device_space.h"
#include "qt/drawing/mixing.h"
#include "qt/painters/painters.h"
#include "qt/painters/picture_drawing.h"
#include "qt/ports/qt_text.h"
#include "widgets/canvas.h"

#include <QPainter>
#include <QRegion>

#include <algorithm>
#include <cmath>

namespace quor {

namespace {

constexpr qreal gridOpacity = 0.12;
constexpr qreal tenthLineOpacity = 0.26;
constexpr qreal movedOpacity = 0.45;

QPointF ScrolledOrigin(const Canvas& canvas)
{
    return {-canvas.ScrollOffsetX() / qreal{twipsPerPixelX}, -canvas.ScrollOffsetY() / qreal{twipsPerPixelY}};
}

void PaintPicture(QPainter& painter, const Canvas& canvas, const QSize& view)
{
    const Picture& picture = *canvas.Picture();
    const QSize size(picture.PixelWidth(), picture.PixelHeight());
    const bool isTiled = canvas.PictureMode() == picture_modes::tiled;
    QRectF area(QPointF(0, 0), view);
    if (isTiled) {
        area.setTopLeft(ScrolledOrigin(canvas));
    } else if (canvas.PictureMode() != picture_modes::stretched) {
        area = QRect(QPoint((view.width() - size.width()) / 2, (view.height() - size.height()) / 2), size);
    }
    const DeviceSpace space(painter, area);
    if (isTiled) {
        DrawTiles(painter, space, picture, space.Area(), std::nullopt);
    } else {
        DrawPicture(painter, picture, space.Area(), std::nullopt);
    }
}

void PaintGround(QPainter& painter, const Canvas& canvas, const QSize& view, const QRect& dirty)
{
    painter.fillRect(dirty, ToQt(Resolve(canvas.BackColor())));
    if (canvas.Picture() != nullptr) {
        PaintPicture(painter, canvas, view);
    }
    const BackgroundImage& background = canvas.Background();
    if (background.visible && background.picture != nullptr) {
        const Picture& picture = *background.picture;
        const DeviceSpace space(painter, QRectF(background.left / twipsPerPixelX, background.top / twipsPerPixelY,
                                                picture.PixelWidth(), picture.PixelHeight()));
        DrawPicture(painter, picture, space.Area(), std::nullopt);
    }
}

// The lines of one family that cross the dirty part.
void PaintGridLines(QPainter& painter, const QRectF& dirty, Qt::Orientation orientation, const GridFamily& family,
                    const QPointF& origin)
{
    if (family.count == 0) {
        return;
    }
    const QColor shadow = ToQt(Resolve(colors::buttonShadow));
    const bool isHorizontal = orientation == Qt::Horizontal;
    const qreal offset = isHorizontal ? origin.y() : origin.x();
    const qreal from = (isHorizontal ? dirty.top() : dirty.left()) - offset;
    const qreal to = (isHorizontal ? dirty.bottom() : dirty.right()) - offset;
    const qreal pitch = qreal{family.step} / twipsPerPixelX;
    const qreal extent = qreal{family.length} / twipsPerPixelX;
    const int end = static_cast<int>(std::min<qreal>(family.count, std::floor(to / pitch)));
    for (int line = std::max(1, static_cast<int>(std::floor(from / pitch))); line <= end; ++line) {
        const qreal place = offset + qreal{family.PlaceOf(line)} / twipsPerPixelX;
        const QRectF area = isHorizontal ? QRectF(origin.x(), place, extent, 1) : QRectF(place, origin.y(), 1, extent);
        DrawRule(painter, area, orientation, WithAlpha(shadow, line % 10 == 0 ? tenthLineOpacity : gridOpacity));
    }
}

void PaintGrid(QPainter& painter, const Canvas& canvas, const QRectF& dirty)
{
    const GridLines& grid = canvas.Grid();
    if (!grid.visible) {
        return;
    }
    const QPointF origin = ScrolledOrigin(canvas);
    PaintGridLines(painter, dirty, Qt::Horizontal, HorizontalLines(grid), origin);
    PaintGridLines(painter, dirty, Qt::Vertical, VerticalLines(grid), origin);
}

Area TwipsOf(const QRect& pixels)
{
    return {static_cast<float>(pixels.x()) * twipsPerPixelX, static_cast<float>(pixels.y()) * twipsPerPixelY,
            static_cast<float>(pixels.width()) * twipsPerPixelX, static_cast<float>(pixels.height()) * twipsPerPixelY};
}

} // namespace

void CanvasPainter::PaintElement(QPainter& painter, const Widget& widget, const QRectF& area, const CanvasLook& look)
{
    PaintWidget(painter, widget, area, m_kept);
    if (look.isEdited && PaintsNothing(widget)) {
        DrawGhost(painter, area);
    }
}

// As one picture, so that what lies under a part of the widget doesn't show through it.
void CanvasPainter::PaintFaded(QPainter& painter, const Widget& widget, const QRectF& area, const QRect& visible)
{
    const QRect part = area.toAlignedRect().adjusted(-1, -1, 1, 1).intersected(visible);
    const qreal scale = painter.device()->devicePixelRatioF();
    QImage picture((QSizeF(part.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter inner(&picture);
    inner.translate(-part.topLeft());
    PaintWidget(inner, widget, area, m_kept);
    inner.end();
    painter.setOpacity(movedOpacity);
    painter.drawImage(part.topLeft(), picture);
    painter.setOpacity(1);
}

std::size_t CanvasPainter::PaintWidgets(QPainter& painter, const QRect& view, const QRegion& region,
                                        const CanvasLook& look)
{
    std::size_t painted = 0;
    const auto margin = static_cast<int>(std::ceil(1 / std::min<qreal>(1, painter.deviceTransform().m11())));
    const Area dirty = TwipsOf(region.boundingRect().adjusted(-2 * margin, -2 * margin, 2 * margin, 2 * margin));
    for (const Widget* widget = m_canvas.Back(); widget != nullptr; widget = widget->Above()) {
        if (!widget->Visible() || !Overlap(widget->Bounds(), dirty)) {
            continue;
        }
        const QRectF area = PixelsOf(widget->Bounds());
        if (!IsPaintable(area) || !region.intersects(area.toAlignedRect().adjusted(-margin, -margin, margin, margin))) {
            continue;
        }
        ++painted;
        if (widget == look.faded) {
            PaintFaded(painter, *widget, area, view);
        } else {
            PaintElement(painter, *widget, area, look);
        }
    }
    return painted;
}

std::size_t CanvasPainter::Paint(QPainter& painter, const QSize& view, const QRegion& region, const CanvasLook& look)
{
    const QRect dirty = region.boundingRect();
    PaintGround(painter, m_canvas, view, dirty);
    PaintGrid(painter, m_canvas, dirty);
    const std::size_t painted = PaintWidgets(painter, QRect(QPoint(0, 0), view), region, look);
    if (look.isEdited) {
        DrawSelection(painter, m_canvas);
    }
    return painted;
}

} // namespace quor
