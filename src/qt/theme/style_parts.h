#pragma once
// The shapes that all controls are drawn from, on whole device pixels at any scale factor.

#include <QColor>
#include <QRectF>

class QPainter;

namespace quor {

struct ThemeColors;

// Radii in device-independent pixels.
namespace radii {
inline constexpr qreal control = 3;
inline constexpr qreal button = 4; // also tabs and tool buttons
inline constexpr qreal menu = 6;
} // namespace radii

// The width of a hairline: max(1, round(scale)) device pixels, in the painter's coordinates.
qreal HairWidth(const QPainter& painter);

// The area with its edges moved to whole device pixels.
QRectF Snapped(const QPainter& painter, const QRectF& area);

// A rounded box with a ground and a hairline at its inner edge; an invalid colour leaves its part out.
void DrawBox(QPainter& painter, const QRectF& area, qreal radius, QColor ground, QColor edge = QColor());

// A horizontal or vertical hairline: the box's upper or left edge.
void DrawRule(QPainter& painter, const QRectF& area, Qt::Orientation orientation, const QColor& color);

enum class Chevron { Down, Right };
void DrawChevron(QPainter& painter, const QPointF& middle, Chevron direction, const QColor& color);

// A tab's ground and caption; the one in front is underlined.
enum class TabState { InFront, Hovered, Pressed, Behind };
void DrawTab(QPainter& painter, const QRect& area, const QString& caption, TabState state, const ThemeColors& colors);

QColor WithAlpha(QColor color, qreal opacity);

} // namespace quor
