#pragma once
// Picture files: bitmaps and icons as the toolkit reads them, metafiles as a process of their own draws them. A file is
// loaded once, for as long as somebody shows it and it stays as it was.

#include "base/values.h"
#include "platform/pictures.h"
#include "qt/ports/metafile_drawing.h"
#include "qt/ports/picture_file.h"

#include <QImage>

#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>

namespace quor {

class QtPicture;
struct PictureMemory;

struct PictureLimits {
    qint64 pixels = 100'000'000;                  // of all pictures that are shown, and the metafiles that are kept
    std::chrono::milliseconds drawing{5'000};     // of one metafile
    std::chrono::milliseconds drawingAll{10'000}; // of the metafiles of a view, which waits for them
};

// As DrawMetafile.
using MetafileDrawer = std::function<DrawnMetafile(const QByteArray&, const QSize&, std::chrono::milliseconds)>;

class QtPictures final : public Pictures {
public:
    // More pixels than this on a side, or in all, are an invalid picture: nothing is decoded. The toolkit decodes as
    // many of four bytes, and half as many of eight.
    static constexpr int longestSide = 16'384;
    static constexpr qint64 mostPixels = 33'554'432;

    explicit QtPictures(const PictureLimits& limits = {}, MetafileDrawer drawer = {});

    // What doesn't fit the limits fails with 481 as well, and is told to be too much. What failed fails again, as long
    // as the file is as it was and the view the same.
    PictureRef LoadPicture(const std::string& path) override;
    void BeginView() override;

private:
    using Loaded = std::shared_ptr<const QtPicture>;

    // What a path led to.
    struct Known {
        PictureFile::Mark mark;
        std::weak_ptr<const QtPicture> picture;
        bool isInvalid = false;
        bool wasDrawn = false; // in this view; to draw a file anew that has changed takes none of the view's time
    };
    Loaded LoadBitmap(const std::string& path, const PictureFile& file);
    Loaded LoadMetafile(const std::string& path, const PictureFile& file, bool wasDrawn);
    QImage Draw(const QByteArray& bytes, const QSize& size, bool wasDrawn);
    void MakeRoom(const QSize& size);

    PictureLimits m_limits;
    MetafileDrawer m_drawer;
    std::shared_ptr<PictureMemory> m_memory;
    std::unordered_map<std::string, Known> m_known; // by path
    std::deque<Loaded> m_drawn;                     // metafiles, whether they are shown or not; the oldest first
    std::chrono::milliseconds m_timeLeft;
};

// A picture that QtPictures loaded as it is to be drawn: see QtPicture::Drawn.
QImage ImageFor(const Picture& picture, const QSize& size, std::optional<Rgb> mask);

} // namespace quor
