#pragma once
// Fonts on their way into the common dialog and back. Charset and weight don't travel.

namespace quor {

class CommonDialog;
class Font;

void FontToDialog(const Font& font, CommonDialog& dialog);

// A font that stays as bold as it was keeps its weight. Fails with 6 for a size beyond all measure.
void FontFromDialog(const CommonDialog& dialog, Font& font);

} // namespace quor
