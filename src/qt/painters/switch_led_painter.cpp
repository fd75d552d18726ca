#include "qt/painters/button_face.h"
#include "qt/painters/lamp_face.h"
#include "qt/painters/text_block.h"
#include "qt/painters/widget_painters.h"
#include "qt/ports/qt_text.h"
#include "widgets/face_layout.h"
#include "widgets/switch_led.h"

namespace quor {

namespace {

// A box on the face in device pixels.
QRectF OnFace(const DeviceSpace& space, const FaceBox& box)
{
    const QPointF first(space.Whole(box.left), space.Whole(box.top));
    const QPointF last(space.Whole(box.left + box.width), space.Whole(box.top + box.height));
    return QRectF(first, last).translated(space.Area().topLeft());
}

void PaintBar(QPainter& painter, const SwitchLed& button, const WidgetSpace& space, const FaceBox& bar)
{
    LampFace lamp(button.Shown());
    lamp.bevel = bevels::lowered;
    lamp.isLit = button.Active();
    lamp.radius = 2 * space.Scale();
    lamp.line = space.Line(1);
    PaintLampFace(painter, space.Pictures(), OnFace(space, bar), lamp);
}

} // namespace

void PaintSwitchLed(QPainter& painter, const SwitchLed& button, const WidgetSpace& space)
{
    const FaceSize size{space.Size().width(), space.Size().height()};
    PaintButtonFace(painter, space, ToQt(Resolve(colors::buttonFace)), button.Enabled());
    const FaceBox bar = LampBar(size, button.LEDAlignment());
    if (bar.width > 0) {
        PaintBar(painter, button, space, bar);
    }
    const TextBlock text(painter, button.Caption(), button.CaptionFont(), space.Scale(), std::nullopt);
    const QRectF room = OnFace(space, BesideLampBar(size, button.LEDAlignment()));
    if (text.IsEmpty() || room.isEmpty()) {
        return;
    }
    painter.setClipRect(room, Qt::IntersectClip);
    text.Draw(painter, room.left(), room.right(), text.MiddleBaseline(room.top(), room.height()), TextSide::Center,
              CaptionColorOn(ToQt(Resolve(button.CaptionColor())), button.Enabled()));
}

} // namespace quor
