#include "qt/ports/qt_picture.h"

#include <utility>

namespace quor {

namespace {

constexpr qint64 mostPixelsScaled = 16'000'000;

qint64 PixelsOf(const QSize& size)
{
    return qint64{size.width()} * size.height();
}

QImage WithoutColor(const QImage& image, Rgb mask)
{
    QImage shown = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < shown.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(shown.scanLine(y));
        for (QRgb* pixel = line; pixel != line + shown.width(); ++pixel) {
            if (*pixel == qPremultiply(qRgba(mask.red, mask.green, mask.blue, qAlpha(*pixel)))) {
                *pixel = 0;
            }
        }
    }
    return shown;
}

} // namespace

QtPicture::QtPicture(std::string path, QImage image, const QSize& size, std::shared_ptr<PictureMemory> memory)
    : m_path(std::move(path)), m_image(std::move(image)), m_size(size), m_memory(std::move(memory)),
      m_number(++m_memory->lastPicture)
{
    m_image.convertTo(m_image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    m_memory->pixels += PixelsOf(m_image.size());
}

QtPicture::~QtPicture()
{
    m_memory->pixels -= PixelsOf(m_image.size());
    if (m_memory->pixels == 0) {
        m_memory->drawn.clear();
    }
}

QImage QtPicture::Drawn(const QSize& size, std::optional<Rgb> mask) const
{
    const bool isScaled = size != m_image.size() && PixelsOf(size) <= mostPixelsScaled;
    if (!isScaled && !mask) {
        return m_image;
    }
    const PictureMemory::Form form{m_number, size, mask};
    if (const QImage* kept = m_memory->drawn.object(form)) {
        return *kept;
    }
    QImage shown = mask ? WithoutColor(m_image, *mask) : m_image;
    if (isScaled) {
        shown = shown.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        shown.convertTo(shown.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    }
    m_memory->drawn.insert(form, new QImage(shown), static_cast<qsizetype>(PixelsOf(shown.size())));
    return shown;
}

} // namespace quor
