#pragma once
// What QtPictures loads: an image with its size.

#include "base/values.h"
#include "platform/pictures.h"

#include <QCache>
#include <QImage>

#include <memory>
#include <optional>

namespace quor {

// What pictures take together, in pixels of four bytes.
struct PictureMemory {
    // One size and mask of one picture.
    struct Form {
        quint64 picture;
        QSize size;
        std::optional<Rgb> mask;

        friend bool operator==(const Form&, const Form&) = default;
        friend std::size_t qHash(const Form& form, std::size_t seed) noexcept // NOLINT: the toolkit's name
        {
            return qHashMulti(seed, form.picture, form.size.width(), form.size.height());
        }
    };

    static constexpr qsizetype mostDrawn = 32'000'000;

    qint64 pixels = 0;       // of the pictures that there are
    quint64 lastPicture = 0; // their number
    QCache<Form, QImage> drawn{mostDrawn};
};

class QtPicture final : public Picture {
public:
    // The size is the one that the file tells, in device-independent pixels; the image of a drawing has more of them.
    QtPicture(std::string path, QImage image, const QSize& size, std::shared_ptr<PictureMemory> memory);
    ~QtPicture() override;
    QtPicture(const QtPicture&) = delete;
    QtPicture& operator=(const QtPicture&) = delete;

    const std::string& Path() const override { return m_path; }
    int PixelWidth() const override { return m_size.width(); }
    int PixelHeight() const override { return m_size.height(); }

    // In the format that is drawn without a conversion.
    const QImage& Image() const noexcept { return m_image; }

    // The image as it is to be drawn: scaled to a size in device pixels, and with the pixels of one colour left out.
    // The last ones asked for are kept. A size beyond all screens isn't scaled to: the image comes in its own.
    QImage Drawn(const QSize& size, std::optional<Rgb> mask) const;

private:
    std::string m_path;
    QImage m_image;
    QSize m_size;
    std::shared_ptr<PictureMemory> m_memory;
    quint64 m_number;
};

} // namespace quor
