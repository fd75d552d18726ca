#pragma once
// Draws the linear gauge: a kept face, and the pointer over it.

#include "qt/painters/face_cache.h"
#include "widgets/linear_layout.h"

namespace quor {

class LinearGauge;

// What is kept beside the face.
struct LinearStill {
    LinearLayout layout; // in device pixels
    QImage pointer;      // null for one that isn't kept
    qreal pointerMargin; // from the first pixel of the line in it to what it marks
    qsizetype Bytes() const { return pointer.sizeInBytes(); }
};

void PaintLinearGauge(QPainter& painter, const LinearGauge& gauge, const QRectF& area);

FaceCache<LinearGauge, LinearStill>& LinearFaces();

} // namespace quor
