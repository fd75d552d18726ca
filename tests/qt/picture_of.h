#pragma once
// Instruments and pictures of them, for tests that measure these.

#include "document/kinds.h"
#include "qt/painters/kept_pictures.h"
#include "qt/painters/painters.h"
#include "qt/ports/qt_pictures.h"
#include "widgets/analog_display.h"
#include "widgets/angular_gauge.h"
#include "widgets/canvas.h"
#include "widgets/face_layout.h"
#include "widgets/linear_gauge.h"
#include "widgets/panel.h"
#include "widgets/push_button.h"
#include "widgets/rect_led.h"
#include "widgets/round_led.h"
#include "widgets/switch_led.h"
#include "widgets/text_label.h"
#include "widgets/widget_array.h"

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <vector>

namespace quor {

// A setting that is written.
using Write = std::function<void(Widget&)>;
template <class W, FixedString Name, class T> Write With(Property<Name, T> W::*property, std::type_identity_t<T> value)
{
    return [=](Widget& widget) { widget.Set(property, value); };
}

// A canvas with room for instruments of all kinds.
struct Instruments {
    Instruments() { AddWidgetArrays(canvas); }

    Widget& Add(std::string_view array, const std::vector<Write>& settings = {})
    {
        Widget& widget = canvas.FindArray(array)->Load(++m_count);
        std::for_each(settings.begin(), settings.end(), [&](const Write& write) { write(widget); });
        return widget;
    }

    Canvas canvas;

private:
    std::int32_t m_count = 0;
};

// In pink, but for one pixel.
inline PictureRef PinkPicture()
{
    const QTemporaryDir directory;
    QImage image(20, 16, QImage::Format_RGB32);
    image.fill(0xFFFF00FF);
    image.setPixelColor(3, 3, Qt::blue);
    image.save(directory.filePath("picture.png"));
    return QtPictures().LoadPicture(directory.filePath("picture.png").toStdString());
}

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

inline QImage PictureOf(const Widget& widget, const QSize& size, qreal scale = 1, QRgb ground = 0xFFFFFFFF)
{
    return PictureOf(widget, QRect(QPoint(0, 0), size), size, scale, ground);
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

template <class Measure> double SumOf(const QImage& image, Measure measure)
{
    double sum = 0;
    BoxOf(image, [&](QRgb pixel) { return sum += measure(pixel), false; });
    return sum;
}

// How much of it is pink or magenta, in pixels.
inline double PinkOf(const QImage& image)
{
    return SumOf(image,
                 [](QRgb pixel) { return std::max(0, std::min(qRed(pixel), qBlue(pixel)) - qGreen(pixel)) / 255.0; });
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

// The mean difference of their greys, of 255.
inline double MeanDifference(const QImage& one, const QImage& other)
{
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            sum += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y)));
        }
    }
    return sum / one.width() / one.height();
}

} // namespace quor
