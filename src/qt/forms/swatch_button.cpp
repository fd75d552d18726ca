#include "qt/forms/swatch_button.h"

#include <QPainter>

namespace quor {

void SwatchButton::ShowColor(const QColor& color, const QString& caption)
{
    m_color = color;
    setText(caption);
    update();
}

void SwatchButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool hasCaption = !text().isEmpty();
    const QPalette::ColorGroup group = hasCaption ? QPalette::Disabled : QPalette::Active;
    painter.setPen(palette().color(QPalette::Dark));
    painter.setBrush(palette().color(group, QPalette::Base));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    if (hasCaption) {
        painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
        painter.drawText(rect(), Qt::AlignCenter, text());
        return;
    }
    const QRect inside = rect().adjusted(3, 3, -3, -3);
    painter.fillRect(inside, m_color);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QColor(0, 0, 0, 56));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(inside.adjusted(0, 0, -1, -1));
}

} // namespace quor
