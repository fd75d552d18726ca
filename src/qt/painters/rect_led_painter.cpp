#include "qt/drawing/boxes.h"
#include "qt/drawing/mixing.h"
#include "qt/painters/lamp_face.h"
#include "qt/painters/text_block.h"
#include "qt/painters/widget_painters.h"
#include "qt/ports/qt_text.h"
#include "widgets/rect_led.h"

namespace quor {

namespace {

constexpr qreal legendInset = 6;
constexpr qreal leastContrast = 3;

LampFace FaceOf(const RectLed& led, const DeviceSpace& space)
{
    LampFace face(led.Shown());
    face.bevel = led.BevelStyle();
    face.isLit = led.Active();
    face.reflects = led.ShowReflection();
    face.radius = (face.bevel == bevels::none ? 2 : 3) * space.Scale();
    face.line = space.Line(1);
    return face;
}

// What sets a legend off from a face of nearly its own brightness; none where it isn't needed.
QColor OutlineFor(const QColor& legend, const QColor& face)
{
    const qreal ownLight = Luminance(legend);
    const qreal faceLight = Luminance(face);
    if (Contrast(ownLight, faceLight) >= leastContrast) {
        return {};
    }
    return ownLight > faceLight ? BlackAt(0.34) : WhiteAt(0.55);
}

void PaintLegend(QPainter& painter, const RectLed& led, const DeviceSpace& space, const LampFace& face)
{
    const QRectF& box = space.Area();
    const qreal inset = space.Whole(legendInset);
    std::optional<qreal> wrapWidth;
    if (led.CaptionWordWrap()) {
        wrapWidth = space.Size().width() - 2 * legendInset;
    }
    const TextBlock text(painter, led.Caption(), led.CenterLabelFont(), space.Scale(), wrapWidth);
    const QColor color = ToQt(Resolve(led.Active() ? led.CaptionOnColor() : led.CaptionOffColor()));
    const QRectF inside = Shrunk(box, face.line);
    if (inside.isEmpty()) {
        return;
    }
    painter.setClipRect(inside, Qt::IntersectClip);
    text.Draw(painter, box.left() + inset, box.right() - inset, text.MiddleBaseline(box.top(), box.height()),
              SideOf(led.CaptionAlignment(), lamp_alignments::left, lamp_alignments::right), color,
              OutlineFor(color, face.color));
}

} // namespace

void PaintRectLed(QPainter& painter, const RectLed& led, const WidgetSpace& space)
{
    const LampFace face = FaceOf(led, space);
    PaintLampFace(painter, space.Pictures(), space.Area(), face);
    if (!led.Caption().empty()) {
        PaintLegend(painter, led, space, face);
    }
}

} // namespace quor
