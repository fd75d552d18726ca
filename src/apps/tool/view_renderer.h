#pragma once
// What quor-view-tool needs to draw a view; only the build with the window system's part has it.

#include <cstdint>
#include <memory>
#include <vector>

namespace quor {

class Canvas;
class Pictures;

class ViewRenderer {
public:
    virtual ~ViewRenderer() = default;

    // For the elements that show a file.
    virtual Pictures& PictureFiles() = 0;

    // So much of the canvas, from its upper left corner in device-independent pixels, as a PNG file.
    virtual std::vector<std::uint8_t> Png(const Canvas& canvas, int width, int height, double scale) = 0;
};

// Null in a build without the window system's part.
std::unique_ptr<ViewRenderer> MakeViewRenderer();

} // namespace quor
