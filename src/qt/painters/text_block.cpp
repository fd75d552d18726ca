#include "qt/painters/text_block.h"

#include "base/values.h"
#include "qt/ports/qt_text.h"
#include "qt/ports/view_font.h"

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
    : m_scale(scale), m_size(PixelSizeOf(font) * scale), m_shrunk(std::min<qreal>(1, m_size)),
      m_font(ViewFont(font, scale / m_shrunk, *painter.device())),
      m_lineHeight(std::ceil(lineShare * PixelSizeOf(font)) * scale)
{
    if (text.empty()) {
        return;
    }
    const QFont plain = wrapWidth && scale != 1 ? ViewFont(font, 1, *painter.device()) : m_font;
    for (const QString& paragraph : ParagraphsOf(ToQt(text))) {
        AddLines(painter, paragraph, plain, wrapWidth);
    }
    for (const Line& line : m_lines) {
        m_width = std::max(m_width, std::ceil(line.width));
    }
}

// `plain` is the font at the scale of 1.
void TextBlock::AddLines(const QPainter& painter, const QString& paragraph, const QFont& plain,
                         std::optional<qreal> wrapWidth)
{
    const QFontMetricsF metrics(m_font, painter.device());
    const auto add = [&](const QString& text) {
        m_lines.push_back({text, m_shrunk * metrics.horizontalAdvance(text)});
    };
    if (!wrapWidth || QFontMetricsF(plain, painter.device()).horizontalAdvance(paragraph) <= *wrapWidth) {
        add(paragraph);
        return;
    }
    QTextLayout layout(paragraph, plain, painter.device());
    QTextOption wrapping;
    wrapping.setWrapMode(QTextOption::WordWrap);
    layout.setTextOption(wrapping);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max<qreal>(1, *wrapWidth));
        add(WithoutBlanksBehind(paragraph.mid(line.textStart(), line.textLength())));
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

void TextBlock::Draw(QPainter& painter, qreal left, qreal right, qreal baseline, TextSide side, const QColor& color,
                     const QColor& outline) const
{
    painter.setFont(m_font);
    for (const Line& line : m_lines) {
        const qreal free = std::max<qreal>(0, right - left - line.width);
        const qreal shift = side == TextSide::Left ? 0 : side == TextSide::Right ? free : free / 2;
        const QPointF start(HalvesUp(left + shift), HalvesUp(baseline));
        if (m_shrunk == 1) {
            DrawLine(painter, line, start, color, outline);
        } else {
            const QTransform before = painter.transform();
            painter.translate(start);
            painter.scale(m_shrunk, m_shrunk);
            DrawLine(painter, line, {}, color, outline);
            painter.setTransform(before);
        }
        baseline += m_lineHeight;
    }
}

void TextBlock::DrawLine(QPainter& painter, const Line& line, const QPointF& start, const QColor& color,
                         const QColor& outline) const
{
    if (outline.isValid()) {
        QPainterPath letters;
        letters.addText(start, m_font, line.text);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.strokePath(letters, QPen(outline, 2 * m_scale / m_shrunk, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    painter.setPen(color);
    painter.drawText(start, line.text);
}

} // namespace quor
