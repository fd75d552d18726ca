#pragma once
// The caption and the picture on the face of a panel or a push button.

#include "base/values.h"
#include "platform/pictures.h"
#include "widgets/face_layout.h"

#include <QColor>

#include <cstdint>
#include <optional>
#include <string>

class QPainter;
class QRectF;

namespace quor {

class DeviceSpace;

struct FaceContents {
    const std::string& caption;
    const Font& font;
    QColor color;
    bool wraps = false;
    std::int32_t captionPlace = 0;
    PictureRef picture; // null for none
    std::int32_t picturePlace = 0;
    std::optional<Rgb> mask; // the picture's pixels of this colour stay unpainted
    qreal pictureOpacity = 1;
    FaceGaps gaps; // device-independent pixels
};

// Inside the clip, in device pixels.
void PaintContents(QPainter& painter, const DeviceSpace& space, const FaceContents& contents, const QRectF& clip);

} // namespace quor
