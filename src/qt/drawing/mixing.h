#pragma once
// Colours mixed with others, in sRGB.

#include <QColor>

#include <algorithm>
#include <cmath>

namespace quor {

// Towards another colour by a share of 0 to 1.
inline QColor Mixed(const QColor& color, const QColor& other, qreal share)
{
    const auto mix = [&](int from, int to) { return static_cast<int>(std::lround(from + (to - from) * share)); };
    return QColor(mix(color.red(), other.red()), mix(color.green(), other.green()), mix(color.blue(), other.blue()));
}

// Towards white.
inline QColor Lighter(const QColor& color, qreal share)
{
    return Mixed(color, Qt::white, share);
}

// Towards black.
inline QColor Darker(const QColor& color, qreal share)
{
    return Mixed(color, Qt::black, share);
}

inline QColor WithAlpha(QColor color, qreal opacity)
{
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

inline QColor WhiteAt(qreal opacity)
{
    return WithAlpha(Qt::white, opacity);
}

inline QColor BlackAt(qreal opacity)
{
    return WithAlpha(Qt::black, opacity);
}

// What is seen of a colour that lies over an opaque one.
inline QColor Over(const QColor& ground, const QColor& color)
{
    const auto mix = [&](float under, float over) { return under + (over - under) * color.alphaF(); };
    return QColor::fromRgbF(mix(ground.redF(), color.redF()), mix(ground.greenF(), color.greenF()),
                            mix(ground.blueF(), color.blueF()));
}

// How bright a colour is, 0 to 1.
inline qreal Luminance(const QColor& color)
{
    const auto linear = [](qreal part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

// Of two luminances: 1 for none, 21 for black on white.
inline qreal Contrast(qreal one, qreal other)
{
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

} // namespace quor
