#pragma once
// The instruments as models: place, size and properties of one thing on the canvas, without any drawing.

#include "base/property.h"
#include "base/values.h"
#include "widgets/property_visitor.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace quor {

class Canvas;
class WidgetArray;

// The classes of widget that can be painted.
enum class WidgetKind {
    AnalogDisplay,
    AngularGauge,
    LinearGauge,
    Panel,
    PushButton,
    RectLed,
    RoundLed,
    SwitchLed,
    TextLabel
};

class Widget {
public:
    // In twips, within the visible part of the canvas.
    Property<"Left", float> Left;
    Property<"Top", float> Top;
    Property<"Width", float> Width;
    Property<"Height", float> Height;
    Property<"Visible", bool> Visible;
    Property<"Enabled", bool> Enabled{true};
    Property<"Tag", std::string> Tag; // the name of the element that it shows

    virtual ~Widget();
    Widget& operator=(const Widget&) = delete;

    // Stores the value, lets the widget do what it does by itself, and tells the canvas.
    template <class W, FixedString Name, class T>
    void Set(Property<Name, T> W::*property, std::type_identity_t<T> value)
    {
        auto& written = static_cast<W&>(*this).*property;
        Writes({written.name, value});
        if (written() == value) {
            return;
        }
        const Area before = Shown(&written);
        PropertyAccess::Value(written) = std::move(value);
        Stored(&written);
        if (m_canvas != nullptr) {
            if (ChangesLook(&written)) {
                RenewLook();
            }
            InvalidateChanged(before, Shown(&written));
        }
    }

    // Left, top, width and height in one step.
    void Move(float left, float top, float width, float height);

    Area Bounds() const noexcept { return {Left(), Top(), Width(), Height()}; }

    // The array's name, such as "ctlLEDRound"; it tells the kind.
    const std::string& Name() const noexcept;
    std::int32_t Index() const noexcept { return m_index; }
    WidgetArray* Array() const noexcept { return m_array; }
    Canvas* Container() const noexcept { return m_canvas; }

    // Another number after each change of how it looks, and none that another widget of its canvas has or had. What is
    // no part of it: place, size, and the value that a gauge's pointer shows. 0 while it is on no canvas.
    std::uint64_t Look() const noexcept { return m_look; }

    // The next one towards the front, or null.
    Widget* Above() const noexcept { return m_above; }
    Widget* Below() const noexcept { return m_below; }

    // Asks for it to be painted, and with what lies behind. Only the trace hears: whatever changes how a widget or what
    // lies behind it looks has told the canvas by itself, so nothing is painted twice or in vain.
    void RepaintNow() const;
    void RepaintAll() const { RepaintNow(); }

    // Whether the user may move it among the others, to the front or to the back.
    virtual bool MayBeReordered() const { return true; }

    virtual WidgetKind Kind() const noexcept = 0;

    // A new widget with these properties, on no canvas.
    virtual std::unique_ptr<Widget> Clone() const = 0;

    // All properties in a fixed order.
    virtual void VisitProperties(PropertyVisitor& visitor) const;

protected:
    Widget() = default;
    Widget(const Widget& other); // the properties alone

    // What the control does by itself when a property (told by its address) has another value.
    virtual void Stored(const void* /*property*/) {}

    // Whether another value of a property (told by its address) is another look.
    virtual bool ChangesLook(const void* property) const;

    // Where the present value of a property (told by its address) shows; a new one repaints that and no more.
    virtual Area PartOf(const void* /*property*/) const { return Bounds(); }

    void RenewLook() noexcept;

    // Says that it must be painted again.
    void Invalidate() const
    {
        if (m_canvas != nullptr && Visible()) {
            InvalidateShown();
        }
    }

private:
    friend class Canvas;
    friend class WidgetArray;

    // Nowhere while it isn't on a canvas or not visible.
    Area Shown(const void* property) const { return m_canvas != nullptr && Visible() ? PartOf(property) : Area{}; }

    void InvalidateShown() const;
    void InvalidateChanged(const Area& before, const Area& after) const;
    void Writes(const WrittenProperty& property) const;

    Canvas* m_canvas = nullptr;
    WidgetArray* m_array = nullptr;
    Widget* m_above = nullptr;
    Widget* m_below = nullptr;
    std::int32_t m_index = 0;
    std::uint64_t m_look = 0;
};

// Gives a widget class its kind and its Clone.
template <class Derived, WidgetKind kind, class Base = Widget> class WidgetOf : public Base {
public:
    WidgetKind Kind() const noexcept override { return kind; }
    std::unique_ptr<Widget> Clone() const override
    {
        return std::make_unique<Derived>(static_cast<const Derived&>(*this));
    }
};

// Visits properties one after the other.
template <class... P> void VisitEach(PropertyVisitor& visitor, const P&... properties)
{
    (visitor.Visit(P::name, properties()), ...);
}

} // namespace quor
