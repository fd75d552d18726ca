#pragma once
// The face of a button: a body that catches the light, flat while it is locked.

#include <QColor>

class QPainter;

namespace quor {

class WidgetSpace;

void PaintButtonFace(QPainter& painter, const WidgetSpace& space, const QColor& color, bool isEnabled);

// Of what stands on a locked button.
inline constexpr qreal disabledOpacity = 0.4;

QColor CaptionColorOn(const QColor& color, bool isEnabled);

} // namespace quor
