#pragma once
// The painters of the widgets, one for each kind. Each draws in the space's area.

#include "qt/drawing/device_space.h"
#include "qt/painters/kept_pictures.h"
#include "widgets/widget.h"

namespace quor {

class AnalogDisplay;
class AngularGauge;
class LinearGauge;
class Panel;
class PushButton;
class RectLed;
class RoundLed;
class SwitchLed;
class TextLabel;

// Where a widget is drawn, and the pictures that its painter finds or leaves.
class WidgetSpace : public DeviceSpace {
public:
    WidgetSpace(QPainter& painter, const QRectF& area, KeptPictures& kept) : DeviceSpace(painter, area), m_kept(kept) {}

    KeptPictures& Pictures() const noexcept { return m_kept; }

    // For a picture of a widget that is drawn here.
    auto Key(Shape shape, const Widget& widget) const
    {
        return KeyOf(shape, widget.Look(), Area().width(), Area().height(), Size().width(), Size().height(), Scale());
    }

private:
    KeptPictures& m_kept;
};

void PaintAnalogDisplay(QPainter& painter, const AnalogDisplay& display, const WidgetSpace& space);
void PaintAngularGauge(QPainter& painter, const AngularGauge& gauge, const WidgetSpace& space);
void PaintLinearGauge(QPainter& painter, const LinearGauge& gauge, const WidgetSpace& space);
void PaintPanel(QPainter& painter, const Panel& panel, const WidgetSpace& space);
void PaintPushButton(QPainter& painter, const PushButton& button, const WidgetSpace& space);
void PaintRectLed(QPainter& painter, const RectLed& led, const WidgetSpace& space);
void PaintRoundLed(QPainter& painter, const RoundLed& led, const WidgetSpace& space);
void PaintSwitchLed(QPainter& painter, const SwitchLed& button, const WidgetSpace& space);
void PaintTextLabel(QPainter& painter, const TextLabel& label, const WidgetSpace& space);

// The part of an angular gauge that stands still, afresh.
DialFace DrawDialFace(QPainter& painter, const AngularGauge& gauge, const WidgetSpace& space);

// Whether a label has neither a text nor a ground nor a border.
bool IsBlank(const TextLabel& label);

} // namespace quor
