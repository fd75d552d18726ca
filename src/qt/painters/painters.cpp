#include "qt/painters/painters.h"

#include "base/values.h"
#include "qt/painters/widget_painters.h"
#include "widgets/analog_display.h"
#include "widgets/angular_gauge.h"
#include "widgets/linear_gauge.h"
#include "widgets/panel.h"
#include "widgets/push_button.h"
#include "widgets/rect_led.h"
#include "widgets/round_led.h"
#include "widgets/switch_led.h"
#include "widgets/text_label.h"

namespace quor {

namespace {

struct Row {
    void (*paint)(QPainter& painter, const Widget& widget, const WidgetSpace& space);
    bool isStill = false; // no value moves a part of it, so all of it is kept
};

template <class Kind, auto paint> void PaintAs(QPainter& painter, const Widget& widget, const WidgetSpace& space)
{
    paint(painter, static_cast<const Kind&>(widget), space);
}

// By their kind.
constexpr Row rows[] = {{PaintAs<AnalogDisplay, PaintAnalogDisplay>}, {PaintAs<AngularGauge, PaintAngularGauge>},
                        {PaintAs<LinearGauge, PaintLinearGauge>},     {PaintAs<Panel, PaintPanel>, true},
                        {PaintAs<PushButton, PaintPushButton>, true}, {PaintAs<RectLed, PaintRectLed>},
                        {PaintAs<RoundLed, PaintRoundLed>},           {PaintAs<SwitchLed, PaintSwitchLed>},
                        {PaintAs<TextLabel, PaintTextLabel>, true}};

} // namespace

void PaintWidget(QPainter& painter, const Widget& widget, const QRectF& area, KeptPictures& kept)
{
    const WidgetSpace space(painter, area, kept);
    if (space.Area().width() < 1 || space.Area().height() < 1) {
        return;
    }
    const Row& row = rows[static_cast<std::size_t>(widget.Kind())];
    const auto paint = [&](QPainter& onPicture) { row.paint(onPicture, widget, space); };
    if (row.isStill && widget.Look() != 0) {
        DrawKept(painter, kept.shapes, space.Area().toRect(), space.Key(Shape::Widget, widget), paint);
    } else {
        paint(painter);
    }
}

bool PaintsNothing(const Widget& widget)
{
    return widget.Width() < twipsPerPixelX || widget.Height() < twipsPerPixelY ||
           (widget.Kind() == WidgetKind::TextLabel && IsBlank(static_cast<const TextLabel&>(widget)));
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
