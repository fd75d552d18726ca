#include "qt/forms/headed_text.h"

#include "qt/theme/theme.h"

#include <QPainter>

namespace quor {

namespace {
constexpr int headingHeight = 24; // pixels
constexpr int lineHeight = 18;
} // namespace

void HeadedText::SetText(const QString& text)
{
    m_lines = text.split(QLatin1Char('\n'));
    setAccessibleName(text);
    update();
}

QSize HeadedText::sizeHint() const
{
    int widest = 0;
    for (const QString& line : m_lines) {
        widest = qMax(widest, QFontMetrics(m_theme.TitleFont()).horizontalAdvance(line));
    }
    return {widest, headingHeight + lineHeight * qMax(0, static_cast<int>(m_lines.size()) - 1)};
}

void HeadedText::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QRect line(0, 0, width(), headingHeight - 2);
    painter.setFont(m_theme.TitleFont());
    painter.setPen(m_theme.Colors().text);
    for (const QString& text : m_lines) {
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
        painter.setFont(m_theme.TextFont());
        painter.setPen(m_theme.Colors().labelText);
        line = QRect(0, line.top() == 0 ? headingHeight : line.top() + lineHeight, width(), lineHeight);
    }
}

} // namespace quor
