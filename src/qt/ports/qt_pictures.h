#pragma once
// Picture files in any format that the toolkit reads.

#include "platform/pictures.h"

#include <QImage>

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

} // namespace quor
