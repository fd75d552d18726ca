#include "qt/painters/bevel.h"
#include "qt/painters/captioned_face.h"
#include "qt/painters/picture_drawing.h"
#include "qt/painters/widget_painters.h"
#include "qt/ports/qt_text.h"
#include "widgets/panel.h"

#include <cmath>

namespace quor {

namespace {

constexpr FaceGaps panelGaps{6, 4, 4};

EdgeStyle EdgeOf(const Panel& panel)
{
    switch (panel.BevelStyle()) {
    case panel_bevels::lowered:
        return EdgeStyle::Lowered;
    case panel_bevels::raised:
        return EdgeStyle::Raised;
    default:
        return EdgeStyle::None;
    }
}

void PaintGroundPicture(QPainter& painter, const Panel& panel, const DeviceSpace& space, const QRectF& inside,
                        std::optional<Rgb> mask)
{
    const Picture& picture = *panel.PanelPicture();
    const QSizeF size = SizeInSpace(space, picture);
    painter.save();
    painter.setClipRect(inside, Qt::IntersectClip);
    if (panel.PictureFillModeCode() == fill_modes::stretched) {
        DrawPicture(painter, picture, inside, mask);
    } else if (panel.PictureFillModeCode() == fill_modes::tiled) {
        DrawTiles(painter, space, picture, inside, mask);
    } else {
        const QPointF corner(inside.left() + std::floor((inside.width() - size.width()) / 2),
                             inside.top() + std::floor((inside.height() - size.height()) / 2));
        DrawPicture(painter, picture, QRectF(corner, size), mask);
    }
    painter.restore();
}

} // namespace

void PaintPanel(QPainter& painter, const Panel& panel, const WidgetSpace& space)
{
    const EdgeStyle edge = EdgeOf(panel);
    const QRectF inside = InsideEdge(space, edge);
    std::optional<Rgb> mask;
    if (panel.PictureUseMaskFlag()) {
        mask = Resolve(panel.PictureMaskColorValue());
    }
    const QColor ground = ToQt(Resolve(panel.BackColor()));
    painter.fillRect(space.Area(), ground);
    if (panel.PanelPicture() != nullptr && !inside.isEmpty()) {
        PaintGroundPicture(painter, panel, space, inside, mask);
    }
    PaintContents(painter, space,
                  {.caption = panel.Caption(),
                   .font = panel.Font(),
                   .color = ToQt(Resolve(panel.ForeColor())),
                   .wraps = panel.CaptionWordWrap() != 0,
                   .captionPlace = panel.CaptionAlignment(),
                   .picture = panel.Picture(),
                   .picturePlace = panel.ImageAlignment(),
                   .mask = mask,
                   .gaps = panelGaps},
                  inside);
    PaintEdge(painter, space, edge, ground);
}

} // namespace quor
