#include "qt/painters/painters.h"

#include "base/values.h"
#include "qt/painters/analog_display_painter.h"
#include "qt/painters/angular_gauge_painter.h"
#include "qt/painters/linear_gauge_painter.h"
#include "qt/painters/panel_painter.h"
#include "qt/painters/push_button_painter.h"
#include "qt/painters/rect_led_painter.h"
#include "qt/painters/round_led_painter.h"
#include "qt/painters/switch_led_painter.h"
#include "qt/painters/text_label_painter.h"
#include "widgets/analog_display.h"
#include "widgets/angular_gauge.h"
#include "widgets/linear_gauge.h"
#include "widgets/panel.h"
#include "widgets/push_button.h"
#include "widgets/rect_led.h"
#include "widgets/round_led.h"
#include "widgets/switch_led.h"
#include "widgets/text_label.h"

#include <algorithm>
#include <array>

namespace quor {

namespace {

template <class Kind, auto Paint> void PaintAs(QPainter& painter, const Widget& widget, const QRectF& area)
{
    Paint(painter, static_cast<const Kind&>(widget), area);
}

bool IsBlankLabel(const Widget& widget)
{
    return IsBlank(static_cast<const TextLabel&>(widget));
}

struct PainterRow {
    std::string_view arrayName;
    WidgetPainter paint;
    bool (*isBlank)(const Widget&) = nullptr; // for a kind that its properties may leave without anything to see
};

constexpr std::array painters = {
    PainterRow{"ctlLEDRound", PaintAs<RoundLed, PaintRoundLed>},
    PainterRow{"ctlLEDRect", PaintAs<RectLed, PaintRectLed>},
    PainterRow{"ctlStatusLabel", PaintAs<TextLabel, PaintTextLabel>, IsBlankLabel},
    PainterRow{"ctlLabel", PaintAs<TextLabel, PaintTextLabel>, IsBlankLabel},
    PainterRow{"ctlBlnPic", PaintAs<Panel, PaintPanel>},
    PainterRow{"ctlPicture", PaintAs<Panel, PaintPanel>},
    PainterRow{"ctlCommand", PaintAs<PushButton, PaintPushButton>},
    PainterRow{"ctlCmdLED", PaintAs<SwitchLed, PaintSwitchLed>},
    PainterRow{"ctlMeterText", PaintAs<AnalogDisplay, PaintAnalogDisplay>},
    PainterRow{"ctlMeterLinear", PaintAs<LinearGauge, PaintLinearGauge>},
    PainterRow{"ctlMeterAngle", PaintAs<AngularGauge, PaintAngularGauge>},
};

const PainterRow* FindRow(std::string_view arrayName)
{
    const auto* row = std::find_if(painters.begin(), painters.end(),
                                   [&](const PainterRow& each) { return each.arrayName == arrayName; });
    return row == painters.end() ? nullptr : row;
}

} // namespace

WidgetPainter PainterFor(std::string_view arrayName)
{
    const PainterRow* row = FindRow(arrayName);
    return row == nullptr ? nullptr : row->paint;
}

bool PaintsNothing(const Widget& widget)
{
    if (widget.Width() < twipsPerPixelX || widget.Height() < twipsPerPixelY) {
        return true;
    }
    const PainterRow* row = FindRow(widget.Name());
    return row != nullptr && row->isBlank != nullptr && row->isBlank(widget);
}

bool IsPaintable(const QRectF& area)
{
    constexpr qreal far = 1'000'000; // the toolkit's whole numbers hold eight times it
    return area.left() > -far && area.top() > -far && area.right() < far && area.bottom() < far;
}

QRectF PixelsOf(const Area& twips)
{
    return {static_cast<qreal>(twips.left) / twipsPerPixelX, static_cast<qreal>(twips.top) / twipsPerPixelY,
            static_cast<qreal>(twips.width) / twipsPerPixelX, static_cast<qreal>(twips.height) / twipsPerPixelY};
}

} // namespace quor
