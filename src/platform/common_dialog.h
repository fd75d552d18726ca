#pragma once
// The common dialog: one object for opening, saving, choosing a colour and choosing a font.

#include "base/values.h"

#include <cstdint>
#include <string>

namespace quor {

class CommonDialog {
public:
    virtual ~CommonDialog() = default;

    // Filled before a Show, changed by it. A cancelled dialog changes nothing, but that ShowOpen and ShowSave empty
    // FileName.
    std::string FileName;
    std::string InitialDirectory;
    std::string Filter; // "Text|*.a;*.b|Text|*.c"
    std::int32_t Flags = 0;
    quor::Color Color;
    std::string FontName;
    double FontSize = 0; // points
    bool FontBold = false;
    bool FontItalic = false;
    bool FontStrikethru = false;
    bool FontUnderline = false;

    // Each blocks until the user is done.
    virtual void ShowOpen() = 0;
    virtual void ShowSave() = 0;
    virtual void ShowColor() = 0;
    virtual void ShowFont() = 0;
};

// What `Flags` asks of the file dialogs, and of the font dialog.
namespace dialog_flags {
inline constexpr std::int32_t overwritePrompt = 0x2;
inline constexpr std::int32_t hideReadOnly = 0x4;
inline constexpr std::int32_t pathMustExist = 0x800;
inline constexpr std::int32_t fileMustExist = 0x1000;
inline constexpr std::int32_t noReadOnlyReturn = 0x8000;
inline constexpr std::int32_t screenFonts = 0x1;
inline constexpr std::int32_t fontEffects = 0x100; // underline, strikethrough and colour
} // namespace dialog_flags

} // namespace quor
