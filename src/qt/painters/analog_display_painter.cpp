#include "qt/painters/bevel.h"
#include "qt/painters/gauge_painting.h"
#include "qt/painters/text_block.h"
#include "qt/painters/widget_painters.h"
#include "qt/ports/qt_text.h"
#include "widgets/analog_display.h"
#include "widgets/gauge_scale.h"

#include <QPainter>

#include <algorithm>

namespace quor {

namespace {

constexpr qreal blank = 3; // pixels beside the number

// What it shows, as far as it fits in the room in device-independent pixels: a part of a number would be another
// number.
std::string TextIn(const QPainter& painter, const AnalogDisplay& display, qreal room)
{
    const auto width = [&](const std::string& text) {
        return TextBlock(painter, text, display.Font(), 1, std::nullopt).Width();
    };
    if (display.ErrorActive()) {
        return display.ErrorText();
    }
    std::string number = NumberText(display.DisplayValue(), display.DisplayPrecision());
    if (width(number) <= room) {
        return number;
    }
    const qreal mark = std::max<qreal>(1, width("#"));
    return std::string(static_cast<std::size_t>(std::clamp<qreal>(room / mark, 1, 100)), '#');
}

} // namespace

void PaintAnalogDisplay(QPainter& painter, const AnalogDisplay& display, const WidgetSpace& space)
{
    const EdgeStyle edge = EdgeOf(display.BorderStyle());
    const QColor ground = ToQt(Resolve(display.BackGroundColor()));
    painter.fillRect(space.Area(), ground);
    PaintEdge(painter, space, edge, ground);
    const QRectF inside = InsideEdge(space, edge);
    if (inside.width() < 1 || inside.height() < 1) {
        return;
    }
    painter.setClipRect(inside, Qt::IntersectClip);
    const QRectF room = inside.adjusted(space.Whole(blank), 0, -space.Whole(blank), 0);
    const qreal kept = blank + (edge == EdgeStyle::None ? 0 : 2);
    const TextBlock text(painter, TextIn(painter, display, std::max<qreal>(space.Size().width() - 2 * kept, 0)),
                         display.Font(), space.Scale(), std::nullopt);
    text.Draw(painter, room.left(), room.right(), text.MiddleBaseline(space.Area().top(), space.Area().height()),
              SideOf(display.Alignment(), number_alignments::left, number_alignments::right),
              ToQt(Resolve(display.FontColor())));
}

} // namespace quor
