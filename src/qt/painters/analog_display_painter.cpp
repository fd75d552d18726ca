#include "qt/painters/analog_display_painter.h"

#include "qt/painters/bevel.h"
#include "qt/painters/device_space.h"
#include "qt/painters/gauge_painting.h"
#include "qt/painters/text_block.h"
#include "qt/ports/qt_text.h"
#include "widgets/analog_display.h"
#include "widgets/gauge_scale.h"

#include <QPainter>

#include <algorithm>

namespace quor {

namespace {

TextSide SideOf(std::int32_t alignment)
{
    return alignment == number_alignments::left    ? TextSide::Left
           : alignment == number_alignments::right ? TextSide::Right
                                                   : TextSide::Center;
}

// What it shows, as far as it fits: a part of a number would be another number.
TextBlock TextIn(const QPainter& painter, const AnalogDisplay& display, qreal scale, qreal room)
{
    const auto laidOut = [&](const std::string& text) {
        return TextBlock(painter, text, display.Font(), scale, std::nullopt);
    };
    if (display.ErrorActive()) {
        return laidOut(display.ErrorText());
    }
    const TextBlock number = laidOut(NumberText(display.DisplayValue(), display.DisplayPrecision()));
    if (number.Width() <= room) {
        return number;
    }
    const qreal mark = std::max<qreal>(1, laidOut("#").Width());
    return laidOut(std::string(static_cast<std::size_t>(std::clamp<qreal>(room / mark, 1, 100)), '#'));
}

} // namespace

void PaintAnalogDisplay(QPainter& painter, const AnalogDisplay& display, const QRectF& area)
{
    const DeviceSpace space(painter, area);
    const EdgeStyle edge = EdgeOf(display.BorderStyle());
    const QColor ground = ToQt(Resolve(display.BackGroundColor()));
    painter.fillRect(space.Area(), ground);
    PaintEdge(painter, space, edge, ground);
    const QRectF inside = InsideEdge(space, edge);
    if (inside.width() < 1 || inside.height() < 1) {
        return;
    }
    painter.setClipRect(inside, Qt::IntersectClip);
    const QRectF room = inside.adjusted(space.Line(3), 0, -space.Line(3), 0);
    const TextBlock text = TextIn(painter, display, space.Scale(), std::max<qreal>(room.width(), 0));
    text.Draw(painter, room.left(), room.right(), text.MiddleBaseline(space.Area().top(), space.Area().height()),
              SideOf(display.Alignment()), ToQt(Resolve(display.FontColor())));
}

} // namespace quor
