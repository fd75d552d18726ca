#include "qt/painters/painters.h"

#include "base/values.h"
#include "qt/painters/round_led_painter.h"
#include "widgets/round_led.h"

#include <algorithm>
#include <array>

namespace quor {

namespace {

template <class Kind, auto Paint> void PaintAs(QPainter& painter, const Widget& widget, const QRectF& area)
{
    Paint(painter, static_cast<const Kind&>(widget), area);
}

struct PainterRow {
    std::string_view arrayName;
    WidgetPainter paint;
};

constexpr std::array painters = {
    PainterRow{"ctlLEDRound", PaintAs<RoundLed, PaintRoundLed>},
};

} // namespace

WidgetPainter PainterFor(std::string_view arrayName)
{
    const auto* row = std::find_if(painters.begin(), painters.end(),
                                   [&](const PainterRow& each) { return each.arrayName == arrayName; });
    return row == painters.end() ? nullptr : row->paint;
}

bool PaintsNothing(const Widget& widget)
{
    return widget.Width() < twipsPerPixelX || widget.Height() < twipsPerPixelY;
}

bool IsPaintable(const QRectF& area)
{
    constexpr qreal far = 32'767; // the toolkit takes seconds for curves beyond it
    return area.left() > -far && area.top() > -far && area.right() < far && area.bottom() < far;
}

QRectF PixelsOf(const Area& twips)
{
    return {static_cast<qreal>(twips.left) / twipsPerPixelX, static_cast<qreal>(twips.top) / twipsPerPixelY,
            static_cast<qreal>(twips.width) / twipsPerPixelX, static_cast<qreal>(twips.height) / twipsPerPixelY};
}

} // namespace quor
