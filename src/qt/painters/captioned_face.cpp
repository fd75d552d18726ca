#include "qt/painters/captioned_face.h"

#include "qt/drawing/device_space.h"
#include "qt/painters/picture_drawing.h"
#include "qt/painters/text_block.h"

#include <cmath>

namespace quor {

namespace {

FacePlan PlanOf(const DeviceSpace& space, const FaceContents& contents)
{
    FacePlan plan;
    plan.face = {space.Area().width(), space.Area().height()};
    plan.gaps = {space.Whole(contents.gaps.edge), space.Whole(contents.gaps.beside), space.Whole(contents.gaps.above)};
    plan.captionPlace = contents.captionPlace;
    plan.picturePlace = contents.picturePlace;
    if (contents.picture != nullptr) {
        const QSizeF size = SizeInSpace(space, *contents.picture);
        plan.picture = {size.width(), size.height()};
    }
    return plan;
}

} // namespace

void PaintContents(QPainter& painter, const DeviceSpace& space, const FaceContents& contents, const QRectF& clip)
{
    if (clip.isEmpty()) {
        return;
    }
    FacePlan plan = PlanOf(space, contents);
    std::optional<qreal> wrapWidth;
    if (contents.wraps) {
        FaceSize picture;
        if (contents.picture != nullptr) {
            picture = {qreal(contents.picture->PixelWidth()), qreal(contents.picture->PixelHeight())};
        }
        wrapWidth =
            CaptionRoom({space.Size().width(), space.Size().height()}, contents.gaps, picture, plan.picturePlace);
    }
    const TextBlock text(painter, contents.caption, contents.font, space.Scale(), wrapWidth);
    plan.caption = {text.Width(), text.Height()};
    const FaceLayout layout = LayFace(plan);
    const QPointF origin = space.Area().topLeft();
    painter.save();
    painter.setClipRect(clip, Qt::IntersectClip);
    if (!plan.picture.IsNone()) {
        const QRectF target(origin.x() + std::floor(layout.picture.left + 0.5),
                            origin.y() + std::floor(layout.picture.top + 0.5), layout.picture.width,
                            layout.picture.height);
        painter.setOpacity(contents.pictureOpacity);
        DrawPicture(painter, *contents.picture, target, contents.mask);
        painter.setOpacity(1);
    }
    if (!text.IsEmpty()) {
        const qreal left = origin.x() + layout.caption.left;
        const qreal middle = text.MiddleBaseline(origin.y() + layout.caption.top, layout.caption.height);
        text.Draw(painter, left, left + layout.caption.width, middle, ColumnOf(contents.captionPlace), contents.color);
    }
    painter.restore();
}

} // namespace quor
