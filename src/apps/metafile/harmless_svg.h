#pragma once
// The shapes of an SVG without all that leads out of it.

#include <QByteArray>

namespace quor {

// Shapes, texts and bitmaps that the SVG itself holds; references, styles, scripts, instructions and all other elements
// are left out. Texts and names of typefaces come from the metafile and may have made any element of it. Empty if it is
// no well-formed XML.
QByteArray HarmlessSvg(const QByteArray& svg);

} // namespace quor
