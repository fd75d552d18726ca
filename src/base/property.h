#pragma once
// A named value that everyone reads and only its owner's Set writes.
//
// Read `thing.Colour()`, write `thing.Set(&Thing::Colour, value)`: the properties of widgets, the looks of controls,
// the settings of elements. A property is as large as its value; its name is part of its type.

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

namespace quor {

// A text as a template argument.
template <std::size_t Length> struct FixedString {
    char text[Length] = {};
    consteval FixedString(const char (&from)[Length]) { std::copy_n(from, Length, text); } // NOLINT: meant to convert
    constexpr std::string_view View() const { return {text, Length - 1}; }
};

template <FixedString Name, class T> class Property {
public:
    using Value = T;
    static constexpr std::string_view name = Name.View();

    Property() = default;
    explicit Property(T value) : m_value(std::move(value)) {}

    const T& operator()() const noexcept { return m_value; }

private:
    friend struct PropertyAccess;
    T m_value{};
};

// The way to the value behind a property, for the owners that enforce what a write does.
struct PropertyAccess {
    template <class P> static typename P::Value& Value(P& property) noexcept { return property.m_value; }
};

} // namespace quor
