#include "qt/ports/qt_pictures.h"

#include "base/failure.h"
#include "qt/ports/qt_text.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace quor {

namespace {

constexpr qint64 mostPixelsDrawn = 16'000'000;

// What was drawn of a picture.
struct DrawnImage {
    QSize size;
    std::optional<Rgb> mask;
    QImage image;
};

class QtPicture final : public Picture {
public:
    QtPicture(std::string path, QImage imageOf) : image(std::move(imageOf)), m_path(std::move(path)) {}
    const std::string& Path() const override { return m_path; }
    int PixelWidth() const override { return image.width(); }
    int PixelHeight() const override { return image.height(); }

    const QImage image;
    mutable DrawnImage drawn;

private:
    std::string m_path;
};

QImage WithoutColor(const QImage& image, Rgb mask)
{
    QImage shown = image.convertToFormat(QImage::Format_ARGB32);
    const QRgb color = qRgb(mask.red, mask.green, mask.blue) & RGB_MASK;
    for (int y = 0; y < shown.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(shown.scanLine(y));
        std::replace_if(
            line, line + shown.width(), [&](QRgb pixel) { return (pixel & RGB_MASK) == color; }, 0U);
    }
    return shown;
}

QImage Drawn(const QImage& image, const QSize& size, std::optional<Rgb> mask)
{
    QImage shown = mask ? WithoutColor(image, *mask) : image;
    if (size != shown.size() && qint64(size.width()) * size.height() <= mostPixelsDrawn) {
        shown = shown.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    shown.convertTo(shown.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    return shown;
}

void CheckExists(const QString& path)
{
    const QFileInfo file(path);
    if (!file.isFile()) {
        throw Failure(QFileInfo(file.path()).isDir() ? failures::fileNotFound : failures::pathNotFound);
    }
}

bool IsTooLarge(const QSize& size)
{
    return size.width() > QtPictures::longestSide || size.height() > QtPictures::longestSide ||
           qint64(size.width()) * size.height() > QtPictures::mostPixels;
}

} // namespace

PictureRef QtPictures::LoadPicture(const std::string& path)
{
    const QString file = ToQt(path);
    CheckExists(file);
    QImageReader reader(file);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    if (IsTooLarge(reader.size())) {
        throw Failure(failures::invalidPicture);
    }
    QImage image = reader.read();
    if (image.isNull()) {
        throw Failure(failures::invalidPicture);
    }
    return std::make_shared<QtPicture>(path, std::move(image));
}

const QImage& ImageOf(const Picture& picture)
{
    return static_cast<const QtPicture&>(picture).image;
}

QImage ImageFor(const Picture& picture, const QSize& size, std::optional<Rgb> mask)
{
    const auto& loaded = static_cast<const QtPicture&>(picture);
    if (size.isEmpty()) {
        return loaded.image;
    }
    DrawnImage& drawn = loaded.drawn;
    if (drawn.image.isNull() || drawn.size != size || drawn.mask != mask) {
        drawn = {size, mask, Drawn(loaded.image, size, mask)};
    }
    return drawn.image;
}

} // namespace quor
