#pragma once
// A setting of an element: its name, its type in the record, the widget's property that shows it, and a rule where the
// two are not simply equal. Each fact is said once, in the declaration:
//
//     Setting<"ColorActive", Color, &RoundLed::ActiveColor> ColorActive;

#include "base/property.h"
#include "base/values.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace quor {

// The rule of most settings: setting and property are equal, and a write always reaches the widget.
struct AsItIs {
    template <class Element> static bool Reaches(const Element& /*element*/) { return true; }
    template <class Element, class T> static const T& ToWidget(const Element& /*element*/, const T& value)
    {
        return value;
    }
    template <class Element, class T> static const T& FromWidget(const Element& /*element*/, const T& value)
    {
        return value;
    }
};

namespace detail {
template <class Member> struct OwnerOf;
template <class W, class P> struct OwnerOf<P W::*> {
    using Type = W;
};
} // namespace detail

template <FixedString Name, class T, auto WidgetProperty = nullptr, class Rule = AsItIs>
class Setting : public Property<Name, T> {
public:
    using RuleType = Rule; // one with AfterSet says what follows when the setting is set
    static constexpr bool isShown = !std::is_same_v<decltype(WidgetProperty), std::nullptr_t>;

    // A font is the element's own: what is set reaches the widget with UpdateFont or WriteControlProps.
    static constexpr bool showsAtOnce = isShown && !std::is_same_v<T, Font>;

    using Property<Name, T>::Property;

    // The value goes to the element's widget, where it shows there.
    template <class Element> void Show(Element& element) const
    {
        if constexpr (isShown) {
            if (Rule::Reaches(element)) {
                element.MyControl()->Set(WidgetProperty, Rule::ToWidget(element, (*this)()));
            }
        }
    }

    // The value is taken from the element's widget.
    template <class Element> void Take(const Element& element)
    {
        static_assert(isShown, "the widget has no such property");
        using W = typename detail::OwnerOf<decltype(WidgetProperty)>::Type;
        const auto& shown = static_cast<const W&>(*element.MyControl()).*WidgetProperty;
        PropertyAccess::Value(*this) = Rule::FromWidget(element, shown());
    }
};

// A flag that the widget has as the number 1 or 0.
struct FlagAsNumber : AsItIs {
    template <class Element> static std::int16_t ToWidget(const Element& /*element*/, bool flag)
    {
        return flag ? 1 : 0;
    }
    template <class Element> static bool FromWidget(const Element& /*element*/, std::int32_t shown)
    {
        return shown == 1;
    }
};

} // namespace quor
