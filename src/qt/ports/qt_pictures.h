#pragma once
// Picture files in any format that the toolkit reads.

#include "base/values.h"
#include "platform/pictures.h"

#include <QImage>

#include <optional>

namespace quor {

class QtPictures final : public Pictures {
public:
    // More pixels than this on a side, or in all, are an invalid picture: nothing is decoded.
    static constexpr int longestSide = 16'384;
    static constexpr qint64 mostPixels = 48'000'000;

    PictureRef LoadPicture(const std::string& path) override;
};

// The image inside a picture that QtPictures loaded.
const QImage& ImageOf(const Picture& picture);

// The same as it is to be drawn: scaled to a size in device pixels, and with the pixels of one colour left out. The
// last one asked for is kept with the picture. A size beyond all screens isn't scaled to: the image comes in its own.
QImage ImageFor(const Picture& picture, const QSize& size, std::optional<Rgb> mask);

} // namespace quor
