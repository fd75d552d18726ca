#include "qt/forms/swatch_button.h"

#include "qt/theme/style_parts.h"

#include <QPainter>

namespace quor {

SwatchButton::SwatchButton(QWidget& parent) : QAbstractButton(&parent)
{
    setAttribute(Qt::WA_Hover);
}

void SwatchButton::ShowColor(const QColor& color, const QString& caption)
{
    m_color = color;
    setText(caption);
    update();
}

void SwatchButton::paintEvent(QPaintEvent* /*event*/)
{
    constexpr int frame = 3; // pixels around the colour
    QPainter painter(this);
    const QPalette& look = palette();
    if (!isEnabled() || !text().isEmpty()) {
        DrawBox(painter, rect(), radii::control, look.color(QPalette::Disabled, QPalette::Base),
                look.color(QPalette::Mid));
        painter.setPen(look.color(QPalette::Active, QPalette::PlaceholderText));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
        return;
    }
    const QPalette::ColorRole ground = isDown() ? QPalette::Mid : underMouse() ? QPalette::Midlight : QPalette::Base;
    DrawBox(painter, rect(), radii::control, look.color(ground), look.color(QPalette::Dark));
    DrawBox(painter, rect().adjusted(frame, frame, -frame, -frame), 1, m_color, WithAlpha(Qt::black, 0.22));
}

} // namespace quor
