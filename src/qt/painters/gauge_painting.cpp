#include "qt/painters/gauge_painting.h"

#include "qt/drawing/device_space.h"
#include "qt/drawing/mixing.h"
#include "qt/painters/bevel.h"
#include "qt/ports/qt_text.h"
#include "widgets/gauge_scale.h"
#include "widgets/scale_gauge.h"

#include <QPainter>

namespace quor {

EdgeStyle EdgeOf(std::int32_t bevel)
{
    return bevel == bevels::raised    ? EdgeStyle::Raised
           : bevel == bevels::lowered ? EdgeStyle::Lowered
                                      : EdgeStyle::None;
}

EdgeStyle EdgeOf(const ScaleGauge& gauge)
{
    return gauge.Transparent() ? EdgeStyle::None : EdgeOf(gauge.BorderStyle());
}

void PaintGround(QPainter& painter, const DeviceSpace& space, const ScaleGauge& gauge)
{
    if (!gauge.Transparent()) {
        const QColor ground = ToQt(Resolve(gauge.BackGroundColor()));
        painter.fillRect(space.Area(), ground);
        PaintEdge(painter, space, EdgeOf(gauge), ground);
    }
}

LaidNumbers LayNumbers(const QPainter& painter, const ScaleGauge& gauge, qreal scale)
{
    const bool areShown = gauge.TickValuesVisible() && gauge.TickLabelFont().Size > 0;
    const EndNumbers texts = areShown ? NumbersOf(gauge) : EndNumbers{};
    const auto laidOut = [&](const std::string& text) {
        return TextBlock(painter, text, gauge.TickLabelFont(), scale, std::nullopt);
    };
    return {laidOut(texts.start), laidOut(texts.end)};
}

bool IsLight(const QColor& color)
{
    constexpr qreal darkest = 0.3;
    return Luminance(color) >= darkest;
}

} // namespace quor
