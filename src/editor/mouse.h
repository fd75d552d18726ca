#pragma once
// Mouse and keys on the canvas: their numbers, what lies under the pointer, and what a drag or a sizing shows
// meanwhile.

#include "widgets/canvas.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace quor {

enum class MouseButton : std::int16_t { Left = 1, Right = 2, Middle = 4 };

namespace canvas_keys {
inline constexpr std::int16_t escape = 27;
inline constexpr std::int16_t del = 46;
} // namespace canvas_keys

// What lies under the pointer. Events on it carry twips from its top left.
struct CanvasTarget {
    enum class What { Canvas, Background, Element, Handle };

    What what = What::Canvas;
    Widget* widget = nullptr; // for Element
    std::size_t handle = 0;   // for Handle
    float left = 0;           // of the target, within the visible part of the canvas
    float top = 0;
};

// The foremost at that place: visible handles, widgets, the background image, the canvas. A widget is pressed on 7 x 7
// pixels at least, and one that can't be scrolled to at the canvas's edge. `shown` is what the user sees of the canvas.
CanvasTarget HitTest(const Canvas& canvas, const Area& shown, float x, float y) noexcept;

// Which edges a handle stands at and moves: -1 left or top, 1 right or bottom, 0 none.
struct HandleEdges {
    int x;
    int y;
};
inline constexpr std::array<HandleEdges, Canvas::handleCount> handleEdges = {
    {{-1, -1}, {0, -1}, {1, -1}, {-1, 0}, {1, 0}, {-1, 1}, {0, 1}, {1, 1}},
};

// The outline that follows the pointer.
struct DragOutline {
    enum class What { Move, Insert, Size };

    What what = What::Move;
    Area area; // where it would land, within the visible part of the canvas
    std::string tip;
};

} // namespace quor
