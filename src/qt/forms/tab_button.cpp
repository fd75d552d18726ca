#include "qt/forms/tab_button.h"

#include "qt/theme/style_parts.h"
#include "qt/theme/theme.h"

#include <QPainter>

namespace quor {

namespace {
constexpr int padding = 8; // pixels, at each side of a caption
} // namespace

TabButton::TabButton(const Theme& theme, QWidget* parent) : QAbstractButton(parent), m_theme(theme)
{
    setCheckable(true);
    setAutoExclusive(true);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
}

QSize TabButton::sizeHint() const
{
    return {QFontMetrics(m_theme.TextFont()).horizontalAdvance(text()) + 2 * padding, tabHeight};
}

void TabButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const TabState behind = !underMouse() ? TabState::Behind : isDown() ? TabState::Pressed : TabState::Hovered;
    painter.setFont(m_theme.TextFont());
    DrawTab(painter, rect(), text(), isChecked() ? TabState::InFront : behind, m_theme.Colors());
}

} // namespace quor
