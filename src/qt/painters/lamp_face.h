#pragma once
// The face of a lamp with corners: lit, unlit or muted. The rectangular LED is one, a button may have one on it.

#include "base/values.h"

#include <QColor>
#include <QRectF>

#include <cstdint>

class QPainter;

namespace quor {

// What is to be seen of a lamp.
struct LampFace {
    QColor color;           // of the lens, lit or unlit
    std::int32_t bevel = 0; // one of `bevels`
    bool isLit = false;
    bool isMuted = false; // flat, as a part of the panel
    bool reflects = false;
    qreal radius = 0; // of its outer corners, device pixels
    qreal line = 1;   // device pixels of a thin line
};

// The colours of a lamp: lit in one, unlit in another that it may work out by itself, muted where the one shown is the
// panel's.
struct LampColors {
    bool isLit = false;
    Color lit;
    Color unlit;
    bool worksOutUnlit = false;
};
QColor ShownColor(const LampColors& colors);
bool IsMuted(const LampColors& colors);

// In device pixels.
void PaintLampFace(QPainter& painter, const QRectF& box, const LampFace& lamp);

} // namespace quor
