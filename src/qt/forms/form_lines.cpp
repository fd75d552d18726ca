// Where the controls of a form stand: its lines from above, and the items of each by the room that it has.

#include "base/values.h"
#include "forms/form.h"
#include "qt/forms/form_view.h"

#include <QLabel>

#include <algorithm>

namespace quor {

namespace {

int PixelsOf(float twips, float twipsPerPixel)
{
    return qRound(twips / twipsPerPixel);
}

// A label says in a tip what it has no room for.
void TipWhatIsCut(QLabel& label)
{
    const bool fits = label.wordWrap() ? label.heightForWidth(label.width()) <= label.height()
                                       : label.sizeHint().width() <= label.width();
    label.setToolTip(fits ? QString() : label.text().toHtmlEscaped());
}

} // namespace

QSize FormView::sizeHint() const
{
    if (m_form == nullptr) {
        return size();
    }
    const int width = PixelsOf(m_form->Width(), twipsPerPixelX);
    const int height = PixelsOf(m_form->Height(), twipsPerPixelY);
    return {width, height > 0 ? height : heightForWidth(width)};
}

int FormView::heightForWidth(int width) const
{
    if (m_form == nullptr) {
        return height();
    }
    int bottom = 0;
    VisitLines(width, [&](const LayoutLine&, int top, int height) { bottom = std::max(bottom, top + height); });
    return bottom + m_form->Margin();
}

// The lines from above, each with its top and its height in a form of that width.
template <class Visit> void FormView::VisitLines(int width, Visit visit) const
{
    int below = 0;
    for (const LayoutLine& line : m_form->Layout()) {
        const int top = line.y == LayoutLine::below ? below : line.y;
        const int height = HeightOf(line, width);
        visit(line, top, height);
        below = top + height;
    }
}

// A line of which nothing shows takes no room.
int FormView::HeightOf(const LayoutLine& line, int width) const
{
    const auto isHidden = [](const LayoutItem& item) { return !item.control->Visible(); };
    if (!line.items.empty() && std::all_of(line.items.begin(), line.items.end(), isHidden)) {
        return 0;
    }
    int height = line.height;
    for (const LayoutItem& item : line.items) {
        const int room = width - m_form->Margin() - std::max(item.x, m_form->Margin());
        height = std::max(height, ViewOfItem(item).LineHeight(item.width > 0 ? item.width : room));
    }
    return height;
}

void FormView::resizeEvent(QResizeEvent*)
{
    Place();
}

void FormView::Place()
{
    if (m_form != nullptr) {
        VisitLines(width(), [this](const LayoutLine& line, int top, int height) { PlaceLine(line, top, height); });
    }
}

void FormView::PlaceLine(const LayoutLine& line, int top, int height)
{
    const int rightGroup = RightStart(line);
    int missing = std::max(0, LeftEnd(line) - rightGroup);
    int left = m_form->Margin();
    int right = rightGroup;
    for (const LayoutItem& item : line.items) {
        const bool isFirst = &item == &line.items.front();
        int width = WidthOf(item);
        if (item.least > 0) {
            const int given = std::clamp(missing, 0, width - item.least);
            width -= given;
            missing -= given;
        }
        int& x = item.atRight ? right : left;
        if (item.x != LayoutItem::behind) {
            x = item.orX != LayoutItem::behind && item.x + width > rightGroup ? item.orX : item.x;
        } else if (!isFirst && !item.atRight) {
            x += item.gap;
        }
        if (item.width == LayoutItem::filling) {
            width = EndOfFilling(line, item, rightGroup) - x;
        }
        Put(item, QRect(x, top, width, height));
        x += width + (item.atRight ? item.gap : 0);
    }
}

int FormView::WidthOf(const LayoutItem& item) const
{
    const ControlView& view = ViewOfItem(item);
    if (item.width == LayoutItem::filling) {
        return 0;
    }
    return item.width > 0 ? view.FittingWidth(item.width) : view.NaturalWidth();
}

// Where the items from the left would end.
int FormView::LeftEnd(const LayoutLine& line) const
{
    int end = m_form->Margin();
    for (const LayoutItem& item : line.items) {
        if (!item.atRight) {
            const int gap = &item == &line.items.front() ? 0 : item.gap;
            end = (item.x != LayoutItem::behind ? item.x : end + gap) + WidthOf(item);
        }
    }
    return end;
}

int FormView::EndOfFilling(const LayoutLine& line, const LayoutItem& item, int rightGroup) const
{
    const auto next = static_cast<std::size_t>(&item - line.items.data()) + 1;
    const bool isBounded = next < line.items.size() && line.items[next].x != LayoutItem::behind;
    const bool meetsGroup = next < line.items.size() && line.items[next].atRight;
    return isBounded ? line.items[next].x - line.items[next].gap : rightGroup - (meetsGroup ? line.items[next].gap : 0);
}

// Where the items begin that end at the right margin; the margin itself if there are none.
int FormView::RightStart(const LayoutLine& line) const
{
    int start = width() - m_form->Margin();
    int gap = 0;
    for (auto item = line.items.rbegin(); item != line.items.rend() && item->atRight; ++item) {
        start -= WidthOf(*item) + gap;
        gap = item->gap;
    }
    return start;
}

// In the middle of the place's height.
void FormView::Put(const LayoutItem& item, const QRect& place)
{
    const ControlView& view = ViewOfItem(item);
    const int natural = view.NaturalHeight() > 0 ? view.NaturalHeight() : place.height();
    int height = item.height > 0 ? item.height : natural;
    const int top = place.y() + (place.height() - height) / 2;
    auto* label = qobject_cast<QLabel*>(&view.Widget());
    if (label != nullptr && !label->wordWrap()) {
        height -= (height - label->fontMetrics().height()) % 2; // text in fields stands on whole pixels, too
    }
    view.Widget().setGeometry(place.x(), top, place.width(), height);
    if (label != nullptr) {
        TipWhatIsCut(*label);
    }
}

} // namespace quor
