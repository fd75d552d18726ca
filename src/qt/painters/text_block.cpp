#include "qt/painters/text_block.h"

#include "base/values.h"
#include "qt/painters/view_font.h"
#include "qt/ports/qt_text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace quor {

namespace {

constexpr qreal capShare = 0.72;  // of the size: the height of the capitals
constexpr qreal lineShare = 1.16; // the pitch of lines

qreal HalvesUp(qreal value)
{
    return std::floor(value + 0.5);
}

QStringList ParagraphsOf(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace('\r', '\n');
    text.replace('\t', ' ');
    return text.split('\n');
}

QString WithoutBlanksBehind(const QString& text)
{
    qsizetype length = text.size();
    while (length > 0 && text[length - 1] == ' ') {
        --length;
    }
    return text.left(length);
}

} // namespace

TextBlock::TextBlock(const QPainter& painter, const std::string& text, const Font& font, qreal scale,
                     std::optional<qreal> wrapWidth)
    : m_font(ViewFont(font, scale, *painter.device())), m_scale(scale), m_size(PixelSizeOf(font) * scale),
      m_lineHeight(std::ceil(lineShare * m_size))
{
    if (text.empty()) {
        return;
    }
    for (const QString& paragraph : ParagraphsOf(ToQt(text))) {
        AddLines(painter, paragraph, wrapWidth);
    }
    for (const Line& line : m_lines) {
        m_width = std::max(m_width, std::ceil(line.width));
    }
}

void TextBlock::AddLines(const QPainter& painter, const QString& paragraph, std::optional<qreal> wrapWidth)
{
    const QFontMetricsF metrics(m_font, painter.device());
    const qreal whole = metrics.horizontalAdvance(paragraph);
    if (!wrapWidth || whole <= *wrapWidth) {
        m_lines.push_back({paragraph, whole});
        return;
    }
    QTextLayout layout(paragraph, m_font, painter.device());
    QTextOption wrapping;
    wrapping.setWrapMode(QTextOption::WordWrap);
    layout.setTextOption(wrapping);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max<qreal>(1, *wrapWidth));
        const QString shown = WithoutBlanksBehind(paragraph.mid(line.textStart(), line.textLength()));
        m_lines.push_back({shown, metrics.horizontalAdvance(shown)});
    }
    layout.endLayout();
}

qreal TextBlock::Height() const noexcept
{
    return IsEmpty() ? 0 : static_cast<qreal>(Lines() - 1) * m_lineHeight + capShare * m_size;
}

qreal TextBlock::MiddleBaseline(qreal top, qreal height) const noexcept
{
    const qreal below = static_cast<qreal>(Lines() - 1) * m_lineHeight;
    return HalvesUp(top + (height + Height()) / 2) - below;
}

qreal TextBlock::TopBaseline(qreal top) const noexcept
{
    return HalvesUp(top + (m_lineHeight + capShare * m_size) / 2);
}

qreal TextBlock::CapsBaseline(qreal top) const noexcept
{
    return HalvesUp(top + capShare * m_size);
}

void TextBlock::Draw(QPainter& painter, qreal left, qreal right, qreal baseline, TextSide side, const QColor& color,
                     const QColor& outline) const
{
    painter.setFont(m_font);
    for (const Line& line : m_lines) {
        const qreal free = std::max<qreal>(0, right - left - line.width);
        const qreal shift = side == TextSide::Left ? 0 : side == TextSide::Right ? free : free / 2;
        const QPointF start(HalvesUp(left + shift), baseline);
        if (outline.isValid()) {
            QPainterPath letters;
            letters.addText(start, m_font, line.text);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.strokePath(letters, QPen(outline, 2 * m_scale, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        }
        painter.setPen(color);
        painter.drawText(start, line.text);
        baseline += m_lineHeight;
    }
}

} // namespace quor
