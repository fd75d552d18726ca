#include "qt/painters/text_label_painter.h"

#include "qt/drawing/device_space.h"
#include "qt/painters/bevel.h"
#include "qt/painters/text_block.h"
#include "qt/ports/qt_text.h"
#include "widgets/text_label.h"

namespace quor {

namespace {

constexpr float disabledOpacity = 0.45F;
constexpr qreal lowBox = 1.6; // lines: one line stands in the middle of a lower box

EdgeStyle EdgeOf(const TextLabel& label)
{
    if (label.BorderStyle() != 1) {
        return EdgeStyle::None;
    }
    return label.Appearance() == 1 ? EdgeStyle::Lowered : EdgeStyle::Flat;
}

qreal InsetOf(EdgeStyle edge)
{
    return edge == EdgeStyle::None ? 0 : edge == EdgeStyle::Flat ? 3 : 4;
}

TextSide SideOf(std::int16_t alignment)
{
    return alignment == label_alignments::right    ? TextSide::Right
           : alignment == label_alignments::center ? TextSide::Center
                                                   : TextSide::Left;
}

bool HasGround(const TextLabel& label)
{
    return label.BackStyle() == 1;
}

void PaintCaption(QPainter& painter, const TextLabel& label, const DeviceSpace& space, EdgeStyle edge)
{
    const QRectF inside = InsideEdge(space, edge);
    if (inside.isEmpty()) {
        return;
    }
    const qreal inset = space.Whole(InsetOf(edge));
    const QRectF room = space.Area().adjusted(inset, inset, -inset, -inset);
    std::optional<qreal> wrapWidth;
    if (label.WordWrap()) {
        wrapWidth = space.Size().width() - 2 * InsetOf(edge);
    }
    const TextBlock text(painter, label.Caption(), label.Font(), space.Scale(), wrapWidth);
    const QRectF& box = space.Area();
    const bool isInMiddle = text.Lines() == 1 && box.height() < lowBox * text.LineHeight();
    const qreal baseline = isInMiddle ? text.MiddleBaseline(box.top(), box.height()) : text.TopBaseline(room.top());
    QColor color = ToQt(Resolve(label.ForeColor()));
    color.setAlphaF(label.Enabled() ? 1 : disabledOpacity);
    painter.setClipRect(inside, Qt::IntersectClip);
    text.Draw(painter, room.left(), room.right(), baseline, SideOf(label.Alignment()), color);
}

} // namespace

void PaintTextLabel(QPainter& painter, const TextLabel& label, const QRectF& area)
{
    const DeviceSpace space(painter, area);
    const EdgeStyle edge = EdgeOf(label);
    const QColor ground = HasGround(label) ? ToQt(Resolve(label.BackColor())) : QColor();
    if (ground.isValid()) {
        painter.fillRect(space.Area(), ground);
    }
    PaintEdge(painter, space, edge, ground);
    if (!label.Caption().empty()) {
        PaintCaption(painter, label, space, edge);
    }
}

bool IsBlank(const TextLabel& label)
{
    return label.Caption().find_first_not_of(" \t\r\n") == std::string::npos && !HasGround(label) &&
           EdgeOf(label) == EdgeStyle::None;
}

} // namespace quor
