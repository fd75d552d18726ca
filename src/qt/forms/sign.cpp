#include "qt/forms/sign.h"

#include "qt/theme/theme.h"

#include <QPainter>

namespace quor {

namespace {

// A disc with an exclamation mark, told for a size of 32.
void PaintError(QPainter& painter, const QSize& size, const ThemeColors& colors)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width() / 32.0, size.height() / 32.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.error);
    painter.drawEllipse(QRectF(0, 0, 32, 32));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(QRectF(14.5, 8, 3, 10), 1.5, 1.5);
    painter.drawEllipse(QRectF(14, 20.5, 4, 4));
}

} // namespace

void Sign::SetIcon(const std::string& name)
{
    m_name = name;
    update();
}

void Sign::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (m_name == "error") {
        PaintError(painter, size(), m_theme.Colors());
    } else {
        m_theme.Icon(m_name).paint(&painter, rect());
    }
}

} // namespace quor
