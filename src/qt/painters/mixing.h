#pragma once
// Colours as the painters mix them, in sRGB.

#include "base/values.h"

#include <QColor>

#include <cmath>

namespace quor {

inline QColor MixedWith(const QColor& color, int other, qreal share)
{
    const auto mix = [&](int channel) { return static_cast<int>(std::lround(channel + (other - channel) * share)); };
    return QColor(mix(color.red()), mix(color.green()), mix(color.blue()));
}

// Towards white by a share of 0 to 1.
inline QColor Lighter(const QColor& color, qreal share)
{
    return MixedWith(color, 255, share);
}

// Towards black.
inline QColor Darker(const QColor& color, qreal share)
{
    return MixedWith(color, 0, share);
}

inline QColor WhiteAt(qreal opacity)
{
    return QColor::fromRgbF(1, 1, 1, static_cast<float>(opacity));
}

inline QColor BlackAt(qreal opacity)
{
    return QColor::fromRgbF(0, 0, 0, static_cast<float>(opacity));
}

} // namespace quor
