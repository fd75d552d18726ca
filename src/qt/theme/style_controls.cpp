// Buttons, tabs, fields, scroll bars and bars of progress.

#include "qt/theme/desk_style.h"
#include "qt/theme/style_parts.h"
#include "qt/theme/theme_colors.h"

#include <QPainterPath>
#include <QStyleOption>

#include <algorithm>

namespace quor {

namespace {

bool Has(const QStyleOption& option, QStyle::State state)
{
    return (option.state & state) == state;
}

bool IsDefault(const QStyleOptionButton& button)
{
    return (button.features & QStyleOptionButton::DefaultButton) != 0;
}

} // namespace

void DeskStyle::DrawPushButton(const QStyleOptionButton& button, QPainter& painter) const
{
    const bool isEnabled = Has(button, State_Enabled);
    const bool isSunken = Has(button, State_Sunken);
    const bool isHovered = Has(button, State_MouseOver);
    if (!isEnabled) {
        DrawBox(painter, button.rect, radii::button, m_colors.readOnlyField, m_colors.rule);
    } else if (IsDefault(button)) {
        const double change = isSunken ? 0.2 : isHovered ? 0.1 : 0;
        DrawBox(painter, button.rect, radii::button, Mixed(m_colors.accent, m_colors.text, change));
    } else {
        const QColor ground = isSunken ? m_colors.pressed : isHovered ? m_colors.hover : m_colors.button;
        DrawBox(painter, button.rect, radii::button, ground, m_colors.edge);
    }
}

void DeskStyle::DrawPushButtonText(const QStyleOptionButton& button, QPainter& painter, const QWidget* widget) const
{
    QStyleOptionButton lettered = button;
    if (Has(button, State_Enabled) && IsDefault(button)) {
        lettered.palette.setColor(QPalette::ButtonText, m_colors.onAccent);
    }
    QProxyStyle::drawControl(CE_PushButtonLabel, &lettered, &painter, widget);
}

void DeskStyle::DrawToolButton(const QStyleOption& option, QPainter& painter) const
{
    if (Has(option, State_On)) {
        DrawBox(painter, option.rect, radii::button, m_colors.selectedGround, WithAlpha(m_colors.accent, 0.55));
    } else if (Has(option, State_Enabled | State_Sunken)) {
        DrawBox(painter, option.rect, radii::button, m_colors.pressed);
    } else if (Has(option, State_Enabled | State_MouseOver)) {
        DrawBox(painter, option.rect, radii::button, m_colors.hover);
    }
}

void DeskStyle::DrawIndicator(const QStyleOption& option, QPainter& painter, bool isRadioButton) const
{
    const bool isEnabled = Has(option, State_Enabled);
    const QRectF box(option.rect.topLeft(), QSizeF(16, 16));
    const qreal radius = isRadioButton ? 8 : radii::control;
    if (!Has(option, State_On)) {
        DrawBox(painter, box, radius, Has(option, State_Sunken) ? m_colors.pressed : m_colors.field,
                isEnabled ? m_colors.edge : m_colors.rule);
        return;
    }
    DrawBox(painter, box, radius, isEnabled ? m_colors.accent : m_colors.disabledText);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(box.topLeft());
    if (isRadioButton) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_colors.onAccent);
        painter.drawEllipse(QPointF(8, 8), 3, 3);
    } else {
        painter.setPen(QPen(m_colors.onAccent, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPolyline(QPolygonF({{4, 8.25}, {6.75, 11}, {12, 5}}));
    }
    painter.restore();
}

// The one in front is underlined.
void DeskStyle::DrawTab(const QStyleOptionTab& tab, QPainter& painter) const
{
    constexpr int padding = 8;
    const bool isInFront = Has(tab, State_Selected);
    if (isInFront) {
        const QRectF underline(tab.rect.left() + padding, tab.rect.bottom() - 3, tab.rect.width() - 2 * padding, 2);
        DrawBox(painter, tab.rect, radii::button, m_colors.selectedGround);
        DrawBox(painter, underline, 1, m_colors.accent);
    } else if (Has(tab, State_MouseOver)) {
        DrawBox(painter, tab.rect, radii::button, Has(tab, State_Sunken) ? m_colors.pressed : m_colors.hover);
    }
    painter.setPen(isInFront ? m_colors.selectedText : m_colors.labelText);
    painter.drawText(tab.rect.adjusted(0, 0, 0, -2), Qt::AlignCenter | Qt::TextSingleLine, tab.text);
}

void DeskStyle::DrawField(const QStyleOption& option, QPainter& painter) const
{
    const bool isPlain = Has(option, State_Enabled) && !Has(option, State_ReadOnly);
    const QColor ground = isPlain ? option.palette.color(QPalette::Base) : m_colors.readOnlyField;
    DrawBox(painter, option.rect, radii::control, ground, isPlain ? m_colors.edge : m_colors.rule);
}

void DeskStyle::DrawComboBox(const QStyleOptionComboBox& box, QPainter& painter) const
{
    const bool isEnabled = Has(box, State_Enabled);
    DrawBox(painter, box.rect, radii::control, isEnabled ? m_colors.field : m_colors.readOnlyField,
            isEnabled ? m_colors.edge : m_colors.rule);
    const bool isRightToLeft = box.direction == Qt::RightToLeft;
    const QPointF middle(isRightToLeft ? box.rect.left() + 12 : box.rect.right() - 11, box.rect.center().y() + 0.5);
    DrawChevron(painter, middle, Chevron::Down, isEnabled ? m_colors.labelText : m_colors.disabledText);
}

void DeskStyle::DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter) const
{
    if (bar.minimum == bar.maximum) {
        return;
    }
    const QRectF thumb =
        visualRect(bar.direction, bar.rect, ScrollBarPart(bar, SC_ScrollBarSlider)).adjusted(3, 3, -3, -3);
    const bool isHeld = Has(bar, State_Sunken) && (bar.activeSubControls & SC_ScrollBarSlider) != 0;
    DrawBox(painter, thumb, 3, isHeld ? Mixed(m_colors.thumb, m_colors.text, 0.35) : m_colors.thumb);
}

// The thumb over the full thickness; there are no arrows, so the groove takes all.
QRect DeskStyle::ScrollBarPart(const QStyleOptionSlider& bar, SubControl part) const
{
    const bool isHorizontal = bar.orientation == Qt::Horizontal;
    const int length = isHorizontal ? bar.rect.width() : bar.rect.height();
    const qint64 range = qint64(bar.maximum) - bar.minimum;
    int thumb = length;
    if (range > 0) {
        const qint64 share = qint64(bar.pageStep) * length / std::max<qint64>(1, range + bar.pageStep);
        const int least = pixelMetric(PM_ScrollBarSliderMin, &bar, nullptr);
        thumb = std::min(length, std::max(static_cast<int>(share), least));
    }
    const int start =
        sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, length - thumb, bar.upsideDown);
    const auto stretch = [&](int from, int extent) {
        return isHorizontal ? QRect(bar.rect.left() + from, bar.rect.top(), extent, bar.rect.height())
                            : QRect(bar.rect.left(), bar.rect.top() + from, bar.rect.width(), extent);
    };
    switch (part) {
    case SC_ScrollBarGroove:
        return bar.rect;
    case SC_ScrollBarSlider:
        return stretch(start, thumb);
    case SC_ScrollBarSubPage:
        return stretch(0, start);
    case SC_ScrollBarAddPage:
        return stretch(start + thumb, length - start - thumb);
    default:
        return {};
    }
}

void DeskStyle::DrawProgressBar(const QStyleOptionProgressBar& bar, QPainter& painter) const
{
    QRectF groove(bar.rect.left(), bar.rect.center().y() - 3, bar.rect.width(), 8);
    DrawBox(painter, groove, 4, m_colors.pressed);
    const double range = double(bar.maximum) - bar.minimum;
    const double share = range > 0 ? (double(bar.progress) - bar.minimum) / range : 0;
    groove.setWidth(groove.width() * std::clamp(share, 0.0, 1.0));
    if (groove.width() >= 1) {
        DrawBox(painter, groove, std::min(4.0, groove.width() / 2), m_colors.accent);
    }
}

void DeskStyle::DrawFocusRing(const QRect& area, QPainter& painter) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_colors.accent, 2));
    painter.drawRoundedRect(QRectF(area).adjusted(1, 1, -1, -1), radii::control, radii::control);
    painter.restore();
}

} // namespace quor
