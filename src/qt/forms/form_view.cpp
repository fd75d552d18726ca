#include "qt/forms/form_view.h"

#include "base/values.h"
#include "forms/caption.h"
#include "forms/form.h"
#include "qt/ports/qt_text.h"

#include <QAbstractButton>
#include <QLabel>

#include <algorithm>

namespace quor {

namespace {

int PixelsOf(float twips, float twipsPerPixel)
{
    return qRound(twips / twipsPerPixel);
}

// The lines of the form from above, each with its top.
template <class Visit> void VisitLines(const Form& form, Visit visit)
{
    int below = 0;
    for (const LayoutLine& line : form.Layout()) {
        const int top = line.y == LayoutLine::below ? below : line.y;
        visit(line, top);
        below = top + line.height;
    }
}

// A label says in a tip what it has no room for.
void TipWhatIsCut(QLabel& label)
{
    const bool fits = label.wordWrap() ? label.heightForWidth(label.width()) <= label.height()
                                       : label.sizeHint().width() <= label.width();
    label.setToolTip(fits ? QString() : label.text().toHtmlEscaped());
}

} // namespace

FormView::FormView(Form& form, const Theme& theme, QWidget* parent) : QWidget(parent), m_form(&form)
{
    setObjectName(ToQt(form.Name()));
    setBackgroundRole(QPalette::Light);
    setAutoFillBackground(true);
    for (const std::unique_ptr<Control>& control : form.Controls()) {
        AddControl(*control, theme);
    }
    NameFields();
    OrderTabs();
    m_following = form.Changed.Subscribe([this] { Place(); });
}

FormView::~FormView() = default;

void FormView::AddControl(Control& control, const Theme& theme)
{
    Part& part = m_parts[&control];
    part.view = MakeControlView(control, theme, *this);
    part.view->Read();
    part.natural = part.view->NaturalWidth();
    part.following = control.Changed.Subscribe([this, &part] {
        part.view->Read();
        if (const int natural = part.view->NaturalWidth(); natural != part.natural) {
            part.natural = natural;
            Place();
        }
    });
}

// A field's name for assistive tools is the caption beside it.
void FormView::NameFields()
{
    for (const LayoutLine& line : m_form->Layout()) {
        QString caption;
        for (const LayoutItem& item : line.items) {
            QWidget& widget = ViewOfItem(item).Widget();
            if (const auto* label = dynamic_cast<const Label*>(item.control)) {
                caption = ToQt(label->Caption());
            } else if (widget.accessibleName().isEmpty()) {
                const auto* button = qobject_cast<QAbstractButton*>(&widget);
                widget.setAccessibleName(button == nullptr || button->text().isEmpty() ? caption : button->text());
            }
        }
    }
}

void FormView::OrderTabs()
{
    QWidget* before = nullptr;
    VisitLines(*m_form, [&](const LayoutLine& line, int) {
        for (const LayoutItem& item : line.items) {
            QWidget& widget = ViewOfItem(item).Widget();
            if (before != nullptr) {
                setTabOrder(before, &widget);
            }
            before = &widget;
        }
    });
}

void FormView::Detach()
{
    m_following.End();
    for (auto& [control, part] : m_parts) {
        part.following.End();
        part.view->Detach();
    }
    m_form = nullptr;
}

QSize FormView::sizeHint() const
{
    if (m_form == nullptr) {
        return size();
    }
    int bottom = 0;
    VisitLines(*m_form, [&](const LayoutLine& line, int top) { bottom = std::max(bottom, top + line.height); });
    const int width = PixelsOf(m_form->Width(), twipsPerPixelX);
    const int height = PixelsOf(m_form->Height(), twipsPerPixelY);
    return {width, height > 0 ? height : bottom + m_form->Margin()};
}

QWidget* FormView::FirstFocus() const
{
    QWidget* first = nullptr;
    VisitLines(*m_form, [&](const LayoutLine& line, int) {
        for (const LayoutItem& item : line.items) {
            QWidget& widget = ViewOfItem(item).Widget();
            const bool takesFocus = item.control->AcceptsUser() && (widget.focusPolicy() & Qt::TabFocus) != 0;
            first = first == nullptr && takesFocus ? &widget : first;
        }
    });
    const Button* standard = m_form->DefaultButton();
    const bool beginsWithButton = first == nullptr || qobject_cast<QAbstractButton*>(first) != nullptr;
    return standard != nullptr && beginsWithButton ? &m_parts.at(standard).view->Widget() : first;
}

void FormView::resizeEvent(QResizeEvent*)
{
    Place();
}

void FormView::Place()
{
    if (m_form != nullptr) {
        VisitLines(*m_form, [this](const LayoutLine& line, int top) { PlaceLine(line, top); });
    }
}

void FormView::PlaceLine(const LayoutLine& line, int top)
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
            x = isFirst && missing > 0 ? m_form->Margin() : item.x;
        } else if (!isFirst && !item.atRight) {
            x += item.gap;
        }
        if (item.width == LayoutItem::filling) {
            width = EndOfFilling(line, item, rightGroup) - x;
        }
        Put(item, line, x, top, width);
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

void FormView::Put(const LayoutItem& item, const LayoutLine& line, int x, int top, int width)
{
    const ControlView& view = ViewOfItem(item);
    const int natural = view.NaturalHeight() > 0 ? view.NaturalHeight() : line.height;
    const int height = item.height > 0 ? item.height : natural;
    view.Widget().setGeometry(x, top + (line.height - height) / 2, width, height);
    if (auto* label = qobject_cast<QLabel*>(&view.Widget())) {
        TipWhatIsCut(*label);
    }
}

ControlView& FormView::ViewOfItem(const LayoutItem& item) const
{
    return *m_parts.at(item.control).view;
}

} // namespace quor
