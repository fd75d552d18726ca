#pragma once
// Pictures of instruments, for tests that measure them.

#include "qt/painters/kept_pictures.h"
#include "qt/painters/painters.h"
#include "widgets/widget.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <array>
#include <functional>

namespace quor {

// On a ground of that colour, by a painter that is scaled: the toolkit ignores a device pixel ratio below 1.
inline QImage PictureOf(const Widget& widget, const QRectF& area, const QSize& size, qreal scale = 1,
                        QRgb ground = 0xFFFFFFFF, KeptPictures* kept = nullptr)
{
    QImage image((QSizeF(size) * scale).toSize(), QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.scale(scale, scale);
    KeptPictures none;
    PaintWidget(painter, widget, area, kept == nullptr ? none : *kept);
    return image;
}

// How many pixels of two pictures of a size differ by more than that in a channel.
inline int OtherPixels(const QImage& one, const QImage& two, int most)
{
    int others = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = two.pixel(x, y);
            const std::array off = {qRed(a) - qRed(b), qGreen(a) - qGreen(b), qBlue(a) - qBlue(b)};
            others += std::any_of(off.begin(), off.end(), [&](int each) { return std::abs(each) > most; }) ? 1 : 0;
        }
    }
    return others;
}

// A setting that is written.
using Write = std::function<void(Widget&)>;
template <class W, FixedString Name, class T> Write With(Property<Name, T> W::*property, std::type_identity_t<T> value)
{
    return [=](Widget& widget) { widget.Set(property, value); };
}

// The box around the pixels of one sort.
template <class IsInk> QRect BoxOf(const QImage& image, IsInk isInk)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (isInk(image.pixel(x, y))) {
                box |= QRect(x, y, 1, 1);
            }
        }
    }
    return box;
}

} // namespace quor
