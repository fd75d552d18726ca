#pragma once
// An element: one instrument of a view, with its settings, its sources and the widget that shows it.
//
// Every class says its settings once, as members, and three orders as three statements: Fields (the record),
// ReadControlProps (from the widget) and WriteControlProps (to the widget).

#include "binding/cmd_data_source.h"
#include "elements/setting.h"
#include "format/field_walk.h"
#include "widgets/widget.h"

#include <cstdint>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

namespace quor {

class clsBlnDataSource;
class clsMtrDataSource;
struct Live;

// Elements keep view coordinates; the widget's place is that minus what is scrolled.
struct ScrolledX;
struct ScrolledY;

class Element : protected CmdOwner {
public:
    // In twips, view coordinates.
    Setting<"ObjWidth", float, &Widget::Width> ObjWidth;
    Setting<"ObjHeight", float, &Widget::Height> ObjHeight;
    Setting<"ObjTop", float, &Widget::Top, ScrolledY> ObjTop;
    Setting<"ObjLeft", float, &Widget::Left, ScrolledX> ObjLeft;
    Property<"ObjName", std::string> ObjName;
    clsCmdDataSource ClickAction;

    // Of the widget: member of an array on a canvas. The element unloads it at its own end.
    Element(Widget& widget, Live& live) : ClickAction(live, *this), m_widget(&widget) {}
    virtual ~Element();
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;

    // The record type and number of the kind.
    virtual std::uint8_t ElementType() const noexcept = 0;

    // Stores the value and writes it to the widget at once, unless it is a font.
    template <class E, class S> void Set(S E::*setting, typename S::Value value)
    {
        auto& self = static_cast<E&>(*this);
        PropertyAccess::Value(self.*setting) = std::move(value);
        if constexpr (requires { requires S::showsAtOnce; }) {
            (self.*setting).Show(self);
        }
        if constexpr (requires { S::RuleType::AfterSet(self); }) {
            S::RuleType::AfterSet(self);
        }
    }

    // From the widget to the settings, and back.
    virtual void ReadControlProps() = 0;
    virtual void WriteControlProps() = 0;

    // Stores the four and moves the widget to exactly this place, scrolled or not.
    void MoveControl(float top, float left, float height, float width);

    // Builds the whole record, frame included, and adds nothing else to the buffer. Fails with 6 where the payload is
    // over 32,767 bytes. The checksum is the sum of the record's bytes.
    void SaveToArray(std::vector<std::uint8_t>& buffer, std::int32_t& checksum);

    // Takes the settings of a payload, but not its name, and imposes them on the widget. A payload that ends within the
    // fixed fields fails with 9; the element stays filled as far as it got, and its sources hear what they are bound
    // to.
    void ReadFromArray(std::span<const std::uint8_t> payload);

    // The record's fields in their order.
    virtual void Fields(FieldWalk& record) = 0;

    // The source of a status element or a meter; null on others.
    virtual clsBlnDataSource* StatusSource() noexcept { return nullptr; }
    virtual clsMtrDataSource* MeterSource() noexcept { return nullptr; }

    // Asks the sources for current values.
    virtual void RefreshData() { ClickAction.RefreshData(); }

    // What a click of the user makes of the widget by itself; ClickAction is run apart from it.
    virtual void ClickControl() {}

    // Repaints the widget if it shows what lies behind it.
    virtual void RepaintWhatShowsThrough() {}

    Widget* MyControl() const noexcept { return m_widget; }
    std::int32_t ScrollOffsetX() const noexcept;
    std::int32_t ScrollOffsetY() const noexcept;

protected:
    // The fields with which every record begins: the four extents.
    void ExtentFields(FieldWalk& record) { record(ObjWidth, ObjHeight, ObjTop, ObjLeft); }
    void TakeExtents();
    void ShowExtents();

private:
    void BindSources();

    Widget* m_widget;
};

struct ScrolledX : AsItIs {
    static float ToWidget(const Element& element, float value);
    static float FromWidget(const Element& element, float value);
};

struct ScrolledY : AsItIs {
    static float ToWidget(const Element& element, float value);
    static float FromWidget(const Element& element, float value);
};

// An element on one kind of widget. Base is Element or what several have in common.
template <class W, class Base = Element> class ElementOn : public Base {
public:
    using WidgetType = W;
    using Base::Base;

protected:
    W& Shown() const noexcept { return static_cast<W&>(*this->MyControl()); }

    template <class Self, class... S> static void Take(Self& self, S&... settings) { (settings.Take(self), ...); }
    template <class Self, class... S> static void Show(Self& self, const S&... settings) { (settings.Show(self), ...); }
};

} // namespace quor
