#include "qt/ports/qt_picture.h"

#include <algorithm>

namespace quor {

namespace {

constexpr qint64 mostPixelsDrawn = 16'000'000;

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

QImage ImageToDraw(const QImage& image, const QSize& size, std::optional<Rgb> mask)
{
    QImage shown = mask ? WithoutColor(image, *mask) : image;
    if (size != shown.size() && qint64{size.width()} * size.height() <= mostPixelsDrawn) {
        shown = shown.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    shown.convertTo(shown.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    return shown;
}

} // namespace

const QImage& QtPicture::Drawn(const QSize& size, std::optional<Rgb> mask) const
{
    if (m_drawn.image.isNull() || m_drawn.size != size || m_drawn.mask != mask) {
        m_drawn = {size, mask, ImageToDraw(m_image, size, mask)};
    }
    return m_drawn.image;
}

} // namespace quor
