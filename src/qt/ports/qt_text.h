#pragma once
// Text and colours on their way between the program and the toolkit.

#include "base/values.h"

#include <QColor>
#include <QString>

#include <string>
#include <string_view>

namespace quor {

inline QString ToQt(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text)
{
    return text.toStdString();
}

inline QColor ToQt(Rgb rgb)
{
    return QColor(rgb.red, rgb.green, rgb.blue);
}

inline Color FromQt(const QColor& color)
{
    return {color.red() | color.green() << 8 | color.blue() << 16};
}

} // namespace quor
