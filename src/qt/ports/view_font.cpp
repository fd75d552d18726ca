#include "qt/ports/view_font.h"

#include "base/values.h"
#include "qt/ports/qt_text.h"

#include <QFontDatabase>
#include <QPaintDevice>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>

namespace quor {

namespace {

struct FaceRow {
    QLatin1StringView named;
    QLatin1StringView drawn;
};

constexpr QLatin1StringView plainFace("Liberation Sans");
constexpr QLatin1StringView romanFace("Liberation Serif");
constexpr QLatin1StringView typedFace("Liberation Mono");

constexpr std::array faces = {
    FaceRow{QLatin1StringView("MS Sans Serif"), plainFace},
    FaceRow{QLatin1StringView("Microsoft Sans Serif"), plainFace},
    FaceRow{QLatin1StringView("MS Shell Dlg"), plainFace},
    FaceRow{QLatin1StringView("MS Shell Dlg 2"), plainFace},
    FaceRow{QLatin1StringView("Arial"), plainFace},
    FaceRow{QLatin1StringView("Helvetica"), plainFace},
    FaceRow{QLatin1StringView("Helv"), plainFace},
    FaceRow{QLatin1StringView("System"), plainFace},
    FaceRow{QLatin1StringView("Small Fonts"), plainFace},
    FaceRow{QLatin1StringView("Tahoma"), plainFace},
    FaceRow{QLatin1StringView("Arial Narrow"), QLatin1StringView("Liberation Sans Narrow")},
    FaceRow{QLatin1StringView("Verdana"), QLatin1StringView("DejaVu Sans")},
    FaceRow{QLatin1StringView("Calibri"), QLatin1StringView("Carlito")},
    FaceRow{QLatin1StringView("Cambria"), QLatin1StringView("Caladea")},
    FaceRow{QLatin1StringView("Times New Roman"), romanFace},
    FaceRow{QLatin1StringView("Times"), romanFace},
    FaceRow{QLatin1StringView("MS Serif"), romanFace},
    FaceRow{QLatin1StringView("Roman"), romanFace},
    FaceRow{QLatin1StringView("Courier New"), typedFace},
    FaceRow{QLatin1StringView("Courier"), typedFace},
    FaceRow{QLatin1StringView("Fixedsys"), typedFace},
    FaceRow{QLatin1StringView("Terminal"), typedFace},
    FaceRow{QLatin1StringView("Lucida Console"), typedFace},
};

// The face to draw with, and the one for a machine that hasn't got it.
QStringList FamiliesFor(const std::string& name)
{
    const QString named = ToQt(name);
    const auto* row = std::find_if(faces.begin(), faces.end(), [&](const FaceRow& each) {
        return named.compare(each.named, Qt::CaseInsensitive) == 0;
    });
    if (row == faces.end()) {
        return {named, plainFace};
    }
    return row->drawn == plainFace ? QStringList{plainFace} : QStringList{row->drawn, plainFace};
}

} // namespace

qreal PixelSizeOf(const Font& font)
{
    constexpr qreal sizesPerPoint = 10'000;
    constexpr qreal least = 1;
    constexpr qreal most = 1'000;
    return std::clamp(static_cast<qreal>(font.Size) / sizesPerPoint * 96 / 72, least, most);
}

QStringList ViewFaces()
{
    QStringList offered = QFontDatabase::families();
    for (const FaceRow& row : faces) {
        const bool isDrawn = offered.contains(row.drawn);
        if (isDrawn && !offered.contains(row.named, Qt::CaseInsensitive)) {
            offered.append(row.named);
        }
    }
    offered.sort(Qt::CaseInsensitive);
    return offered;
}

QFont ViewFont(const Font& font, qreal scale, const QPaintDevice& device)
{
    QFont shown;
    shown.setFamilies(FamiliesFor(font.Name));
    const qreal pixels = PixelSizeOf(font) * scale;
    if (std::abs(pixels - std::round(pixels)) < 0.01) {
        shown.setPixelSize(static_cast<int>(std::lround(pixels)));
    } else {
        shown.setPointSizeF(pixels * 72 / device.logicalDpiY());
    }
    shown.setWeight(static_cast<QFont::Weight>(std::clamp<int>(font.Weight(), 1, 1000)));
    shown.setItalic(font.Italic);
    shown.setUnderline(font.Underline);
    shown.setStrikeOut(font.Strikethrough);
    // Caps and baselines on whole pixels, widths as they are; hinted letters that are shrunk to a few pixels grow
    // wider.
    constexpr qreal fewPixels = 8;
    shown.setHintingPreference(scale < 1 && pixels < fewPixels ? QFont::PreferNoHinting : QFont::PreferVerticalHinting);
    shown.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return shown;
}

} // namespace quor
