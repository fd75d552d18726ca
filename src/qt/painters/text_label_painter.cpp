#include "qt/drawing/mixing.h"
#include "qt/painters/bevel.h"
#include "qt/painters/text_block.h"
#include "qt/painters/widget_painters.h"
#include "qt/ports/qt_text.h"
#include "widgets/text_label.h"

namespace quor {

namespace {

constexpr qreal disabledOpacity = 0.45;
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

// A number that is none of the alignments is the left.
TextSide SideOf(const TextLabel& label)
{
    return label.Alignment() == label_alignments::center  ? TextSide::Center
           : label.Alignment() == label_alignments::right ? TextSide::Right
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
    const QColor color = WithAlpha(ToQt(Resolve(label.ForeColor())), label.Enabled() ? 1 : disabledOpacity);
    painter.setClipRect(inside, Qt::IntersectClip);
    text.Draw(painter, room.left(), room.right(), baseline, SideOf(label), color);
}

} // namespace

void PaintTextLabel(QPainter& painter, const TextLabel& label, const WidgetSpace& space)
{
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
