#pragma once
// What QtPictures loads: an image with its size.

#include "base/values.h"
#include "platform/pictures.h"

#include <QImage>

#include <optional>

namespace quor {

class QtPicture final : public Picture {
public:
    // The size is the one that the file tells, in device-independent pixels; the image of a drawing has more of them.
    QtPicture(std::string path, QImage image, const QSize& size)
        : m_path(std::move(path)), m_image(std::move(image)), m_size(size)
    {
    }

    const std::string& Path() const override { return m_path; }
    int PixelWidth() const override { return m_size.width(); }
    int PixelHeight() const override { return m_size.height(); }

    const QImage& Image() const noexcept { return m_image; }

    // The image as it is to be drawn: scaled to a size in device pixels, and with the pixels of one colour left out.
    // The last one asked for is kept. A size beyond all screens isn't scaled to: the image comes in its own.
    const QImage& Drawn(const QSize& size, std::optional<Rgb> mask) const;

private:
    struct DrawnImage {
        QSize size;
        std::optional<Rgb> mask;
        QImage image;
    };

    std::string m_path;
    QImage m_image;
    QSize m_size;
    mutable DrawnImage m_drawn;
};

} // namespace quor
