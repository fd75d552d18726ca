#pragma once
// Draws the angular gauge: a kept face, and the pointer over it.

#include "qt/painters/face_cache.h"
#include "widgets/arc_layout.h"

namespace quor {

class AngularGauge;

// What is kept beside the face.
struct AngularStill {
    ArcLayout arc; // in device pixels
    bool isPointerLight;
    QImage hub; // drawn over the pointer; null for one that isn't kept
    QPointF hubPlace;
    qsizetype Bytes() const { return hub.sizeInBytes(); }
};

void PaintAngularGauge(QPainter& painter, const AngularGauge& gauge, const QRectF& area);

// The face alone, afresh.
AngularStill DrawAngularFace(QPainter& painter, const AngularGauge& gauge, const QRectF& area);

FaceCache<AngularGauge, AngularStill>& AngularFaces();

} // namespace quor
