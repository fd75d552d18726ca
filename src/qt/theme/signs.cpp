#include "qt/theme/signs.h"

#include "qt/theme/theme_colors.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

namespace quor {

namespace {

constexpr qreal grid = 32; // the shapes are told for this size

class SignEngine final : public QIconEngine {
public:
    SignEngine(SignKind kind, const ThemeColors& colors) : m_kind(kind), m_colors(colors) {}

    void paint(QPainter* painter, const QRect& area, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        DrawSign(*painter, area, m_kind, m_colors);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new SignEngine(*this); }

private:
    SignKind m_kind;
    const ThemeColors& m_colors;
};

// A bar and a dot; the dot is above for information.
void DrawExclamation(QPainter& painter, bool isTurned)
{
    if (isTurned) {
        painter.translate(grid, grid);
        painter.rotate(180);
    }
    painter.drawRoundedRect(QRectF(14.5, 8, 3, 10), 1.5, 1.5);
    painter.drawEllipse(QRectF(14, 20.5, 4, 4));
}

void DrawQuestion(QPainter& painter, const QColor& color)
{
    painter.drawEllipse(QRectF(14, 21, 4, 4));
    QPainterPath hook(QPointF(11.75, 12.5));
    hook.arcTo(QRectF(11.75, 8.25, 8.5, 8.5), 180, -225);
    hook.quadTo(16, 16.75, 16, 18.5);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(hook);
}

} // namespace

void DrawSign(QPainter& painter, const QRectF& area, SignKind kind, const ThemeColors& colors)
{
    const bool isFault = kind == SignKind::Error || kind == SignKind::Warning;
    const QColor mark = isFault ? QColor(Qt::white) : colors.onAccent;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(area.topLeft());
    painter.scale(area.width() / grid, area.height() / grid);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isFault ? colors.error : colors.accent);
    painter.drawEllipse(QRectF(0, 0, grid, grid));
    painter.setBrush(mark);
    if (kind == SignKind::Question) {
        DrawQuestion(painter, mark);
    } else {
        DrawExclamation(painter, kind == SignKind::Information);
    }
    painter.restore();
}

QIcon SignIcon(SignKind kind, const ThemeColors& colors)
{
    return QIcon(new SignEngine(kind, colors));
}

} // namespace quor
