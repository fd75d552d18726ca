#include "pages/font_dialog.h"

#include "base/narrow.h"
#include "base/values.h"
#include "platform/common_dialog.h"

namespace quor {

namespace {
constexpr double unitsPerPoint = 10'000;
}

void FontToDialog(const Font& font, CommonDialog& dialog)
{
    dialog.FontBold = font.Bold();
    dialog.FontItalic = font.Italic;
    dialog.FontName = font.Name;
    dialog.FontSize = static_cast<double>(font.Size) / unitsPerPoint;
    dialog.FontStrikethru = font.Strikethrough;
    dialog.FontUnderline = font.Underline;
}

void FontFromDialog(const CommonDialog& dialog, Font& font)
{
    const auto size = Narrow<std::int64_t>(dialog.FontSize * unitsPerPoint);
    font.SetBold(dialog.FontBold);
    font.Italic = dialog.FontItalic;
    font.Name = dialog.FontName;
    font.Size = size;
    font.Strikethrough = dialog.FontStrikethru;
    font.Underline = dialog.FontUnderline;
}

} // namespace quor
