#pragma once
// The face of a lamp with corners: lit, unlit or muted. The rectangular LED is one, a button may have one on it.

#include "qt/ports/qt_text.h"
#include "widgets/bevels.h"
#include "widgets/lamp.h"

#include <QColor>
#include <QRectF>

#include <cstdint>

class QPainter;

namespace quor {

struct KeptPictures;

// What is to be seen of a lamp.
struct LampFace {
    explicit LampFace(const LampColor& shown) : color(ToQt(shown.color)), isMuted(shown.isMuted) {}

    QColor color;           // of the lens, lit or unlit
    std::int32_t bevel = 0; // one of `bevels`
    bool isLit = false;
    bool isMuted; // flat, as a part of the panel
    bool reflects = false;
    qreal radius = 0; // of its outer corners, device pixels
    qreal line = 1;   // device pixels of a thin line
};

// In device pixels.
void PaintLampFace(QPainter& painter, KeptPictures& kept, const QRectF& box, const LampFace& lamp);

} // namespace quor
