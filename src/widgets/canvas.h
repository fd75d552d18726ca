#pragma once
// The scrolling canvas (ssScroll) with all that lies on it: background, widgets in their order, grab handles and the
// frame in which a widget is sized.
//
// All places are in twips within the visible part. Scrolling moves what lies on the canvas. `Changed` says which part
// must be painted again; while a hold is on, it waits and comes at the end: once for each of a few parts, or once for
// all of them.

#include "base/event.h"
#include "base/values.h"
#include "platform/pictures.h"
#include "platform/trace.h"
#include "widgets/widget.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

class WidgetArray;

// How the canvas draws its picture.
namespace picture_modes {
inline constexpr std::int32_t centered = 0;
inline constexpr std::int32_t stretched = 1;
inline constexpr std::int32_t tiled = 2;
inline constexpr std::int32_t topLeft = 3; // drawn by imgCVBackground
} // namespace picture_modes

// One of the eight squares around the selected widget (ssSizer).
struct GrabHandle {
    float left = 0;
    float top = 0;
    bool visible = false;
    friend bool operator==(const GrabHandle&, const GrabHandle&) = default;
};

// The outline in which a widget is sized (ctlFrame).
struct SizingFrame {
    Area area;
    bool visible = false;
    bool sizable = false; // it has its sizing border
};

// The image in the top left corner of the view (imgCVBackground), always at the back.
struct BackgroundImage {
    PictureRef picture;
    bool visible = false;
    float left = 0; // minus what is scrolled
    float top = 0;
};

// The grid's lines, under the widgets and over the background: horizontal ones at each multiple of `stepY` down to
// `height`, `width` long, and vertical ones likewise. Twips, from the view's top left.
struct GridLines {
    float stepX = 0; // 0: no vertical lines
    float stepY = 0; // 0: no horizontal lines
    float width = 0;
    float height = 0;
    bool visible = false;
    friend bool operator==(const GridLines&, const GridLines&) = default;
};

// The lines of one direction: the first lies a step from the view's edge, as the others lie from one another.
struct GridFamily {
    float step;
    float length;
    int count;

    float PlaceOf(int line) const { return static_cast<float>(line) * step; } // lines count from 1
};
GridFamily HorizontalLines(const GridLines& grid) noexcept;
GridFamily VerticalLines(const GridLines& grid) noexcept;

class Canvas {
public:
    static constexpr float handleSize = 105; // twips
    static constexpr std::size_t handleCount = 8;

    Canvas();
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    Event<const Area&> Changed;
    Event<> Scrolled; // position or maxima

    // Arrays, found by name. The canvas owns them.
    WidgetArray& AddArray(std::string name, std::unique_ptr<Widget> pattern);
    WidgetArray* FindArray(std::string_view name) const noexcept;

    // The scroll position and the size of all that can be scrolled to, in twips. Whoever shows the canvas takes what it
    // shows at a time off the maxima; here a position beyond them is brought back.
    std::int32_t ScrollOffsetX() const noexcept { return m_scrollX; }
    std::int32_t ScrollOffsetY() const noexcept { return m_scrollY; }
    std::int32_t ScrollMaxX() const noexcept { return m_scrollMaxX; }
    std::int32_t ScrollMaxY() const noexcept { return m_scrollMaxY; }
    void SetScrollMaxima(std::int32_t x, std::int32_t y);
    void ScrollTo(std::int32_t x, std::int32_t y);

    // From a place within the visible part to that within the view, and back.
    Area ToView(const Area& area) const noexcept;
    Area FromView(const Area& area) const noexcept;

    Color BackColor() const noexcept { return m_backColor; }
    void SetBackColor(Color color);
    const PictureRef& Picture() const noexcept { return m_picture; }
    std::int32_t PictureMode() const noexcept { return m_pictureMode; }
    void SetPicture(PictureRef picture, std::int32_t mode);
    const BackgroundImage& Background() const noexcept { return m_background; }
    void SetBackground(PictureRef picture, bool visible);
    void PlaceBackground(float left, float top);

    // Widgets from back to front.
    Widget* Back() const noexcept { return m_back; }
    Widget* Front() const noexcept { return m_front; }
    void Attach(Widget& widget) noexcept; // in front
    void Detach(Widget& widget) noexcept;
    void BringToFront(Widget& widget);
    void SendToBack(Widget& widget);

    const std::array<GrabHandle, handleCount>& Handles() const noexcept { return m_handles; }
    void SetHandle(std::size_t index, const GrabHandle& handle);

    const SizingFrame& Frame() const noexcept { return m_frame; }
    void SetFrame(const SizingFrame& frame);

    const GridLines& Grid() const noexcept { return m_grid; }
    void SetGrid(const GridLines& grid);

    // A number that none of its widgets has had as its look.
    std::uint64_t NextLook() noexcept { return ++m_looks; }

    // Says that the area must be painted again.
    void Invalidate(const Area& area);
    void InvalidateAll();

    // Hears of the canvas's widgets. Not owned.
    const Trace& Tracer() const noexcept { return *m_tracer; }
    void SetTracer(const Trace& tracer) noexcept { m_tracer = &tracer; }

private:
    friend class CanvasHold;

    void Release();
    void Link(Widget& widget, Widget* above) noexcept;
    void Unlink(Widget& widget) noexcept;
    void ShiftBy(float x, float y);

    std::vector<std::unique_ptr<WidgetArray>> m_arrays;
    Widget* m_back = nullptr;
    Widget* m_front = nullptr;
    std::array<GrabHandle, handleCount> m_handles;
    SizingFrame m_frame;
    GridLines m_grid;
    BackgroundImage m_background;
    PictureRef m_picture;
    std::int32_t m_pictureMode = picture_modes::centered;
    Color m_backColor = colors::buttonFace;
    std::int32_t m_scrollX = 0;
    std::int32_t m_scrollY = 0;
    std::int32_t m_scrollMaxX = 0;
    std::int32_t m_scrollMaxY = 0;
    const Trace* m_tracer = &noTrace;
    std::uint64_t m_looks = 0;
    int m_holds = 0;
    std::vector<Area> m_stale; // what changed during the hold
};

// Keeps `Changed` back while it lives.
class CanvasHold {
public:
    explicit CanvasHold(Canvas& canvas) noexcept : m_canvas(canvas) { ++m_canvas.m_holds; }
    ~CanvasHold();
    CanvasHold(const CanvasHold&) = delete;
    CanvasHold& operator=(const CanvasHold&) = delete;

private:
    Canvas& m_canvas;
};

// The smallest area around both.
Area United(const Area& one, const Area& other) noexcept;
bool Contains(const Area& area, float x, float y) noexcept;
bool Overlap(const Area& one, const Area& other) noexcept;

} // namespace quor
