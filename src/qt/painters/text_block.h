#pragma once
// A text laid out in lines, to be measured and drawn in device pixels.

#include "widgets/text_side.h"

#include <QColor>
#include <QFont>
#include <QString>

#include <optional>
#include <string>
#include <vector>

class QPainter;

namespace quor {

class Font;

class TextBlock {
public:
    // Wrapped between words at that width in device-independent pixels, if there is one; a word that is wider stands
    // out. Lines break at the same words at every scale.
    TextBlock(const QPainter& painter, const std::string& text, const Font& font, qreal scale,
              std::optional<qreal> wrapWidth);

    bool IsEmpty() const noexcept { return m_lines.empty(); }
    std::size_t Lines() const noexcept { return m_lines.size(); }
    qreal Width() const noexcept { return m_width; } // of the widest line, a whole number
    qreal LineHeight() const noexcept { return m_lineHeight; }

    // From the top of the first line's capitals to the baseline of the last line.
    qreal Height() const noexcept;

    // The first baseline of a text that stands in the middle of that height.
    qreal MiddleBaseline(qreal top, qreal height) const noexcept;
    // The first baseline of a text whose first line starts there.
    qreal TopBaseline(qreal top) const noexcept;

    // Each line at its side of the room between left and right, on a whole pixel; a wider one begins at the left. The
    // outline, if it is a colour, is a pixel around each letter.
    void Draw(QPainter& painter, qreal left, qreal right, qreal baseline, TextSide side, const QColor& color,
              const QColor& outline = QColor()) const;

private:
    struct Line {
        QString text;
        qreal width;
    };
    void AddLines(const QPainter& painter, const QString& paragraph, const QFont& plain,
                  std::optional<qreal> wrapWidth);
    void DrawLine(QPainter& painter, const Line& line, const QPointF& start, const QColor& color,
                  const QColor& outline) const;

    qreal m_scale;
    qreal m_size;   // of the font
    qreal m_shrunk; // what letters are drawn smaller than in the font, which has a pixel at least
    QFont m_font;
    qreal m_lineHeight;
    qreal m_width = 0;
    std::vector<Line> m_lines;
};

} // namespace quor
