#pragma once
// Picture files: bitmaps and icons as the toolkit reads them, metafiles as a process of their own draws them.

#include "base/values.h"
#include "platform/pictures.h"

#include <QDateTime>
#include <QImage>

#include <deque>
#include <optional>

namespace quor {

class QtPictures final : public Pictures {
public:
    // More pixels than this on a side, or in all, are an invalid picture: nothing is decoded.
    static constexpr int longestSide = 16'384;
    static constexpr qint64 mostPixels = 48'000'000;

    PictureRef LoadPicture(const std::string& path) override;

private:
    // A metafile that was drawn, for as long as its file stays as it was.
    struct Kept {
        QDateTime modified;
        qint64 length;
        PictureRef picture;
    };
    PictureRef LoadMetafile(const std::string& path);

    std::deque<Kept> m_kept; // the last few
};

// A picture that QtPictures loaded as it is to be drawn: see QtPicture::Drawn.
const QImage& ImageFor(const Picture& picture, const QSize& size, std::optional<Rgb> mask);

} // namespace quor
