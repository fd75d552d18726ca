#include "tests/journey_driver/format.h"

#include "base/overloaded.h"
#include "base/text.h"
#include "tests/journey_driver/arguments.h"

#include <charconv>
#include <cstdio>
#include <limits>

namespace quor {

namespace {

template <class T> T ToWhole(std::string_view text)
{
    const std::int32_t value = ToInteger(text);
    if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max()) {
        throw JourneyError("out of range: " + std::string(text));
    }
    return static_cast<T>(value);
}

constexpr double sizeUnits = 10'000; // of a font's size in a point

} // namespace

std::string ValueText(bool value)
{
    return value ? "true" : "false";
}

std::string ValueText(std::int32_t value)
{
    return std::to_string(value);
}

std::string ValueText(float value)
{
    return Decimal(value);
}

std::string ValueText(double value)
{
    return Decimal(value);
}

std::string ValueText(Color value)
{
    char text[11];
    std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(value.value));
    return text;
}

std::string ValueText(const std::string& value)
{
    return Quoted(value);
}

void ReadValue(std::string_view text, bool& value)
{
    value = ToBoolean(text);
}

void ReadValue(std::string_view text, WideFlag& value)
{
    value.value = ToBoolean(text);
}

void ReadValue(std::string_view text, std::uint8_t& value)
{
    value = ToWhole<std::uint8_t>(text);
}

void ReadValue(std::string_view text, std::int16_t& value)
{
    value = ToWhole<std::int16_t>(text);
}

void ReadValue(std::string_view text, std::int32_t& value)
{
    value = ToInteger(text);
}

void ReadValue(std::string_view text, float& value)
{
    value = static_cast<float>(ToNumber(text));
}

void ReadValue(std::string_view text, Color& value)
{
    std::uint32_t number = 0;
    const std::string_view digits = text.substr(std::min<std::size_t>(2, text.size()));
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
    if (!text.starts_with("0x") || error != std::errc() || end != digits.data() + digits.size()) {
        throw JourneyError("no colour: " + std::string(text));
    }
    value.value = static_cast<std::int32_t>(number);
}

void ReadValue(std::string_view text, std::string& value)
{
    value = text;
}

void VisitFont(const Font& font, const NamedValue& visit)
{
    visit("Bold", ValueText(font.Bold()));
    visit("Charset", ValueText(std::int32_t{font.Charset}));
    visit("Italic", ValueText(font.Italic));
    visit("Name", ValueText(font.Name));
    visit("Size", ValueText(static_cast<double>(font.Size) / sizeUnits));
    visit("Strikethrough", ValueText(font.Strikethrough));
    visit("Underline", ValueText(font.Underline));
    visit("Weight", ValueText(std::int32_t{font.Weight()}));
}

void FieldPrinter::Field(std::string_view name, FieldRef field)
{
    std::visit(Overloaded{[&](auto value) { Print(name, ValueText(*value)); },
                          [&](WideFlag* value) { Print(name, ValueText(value->value)); },
                          [&](std::uint8_t* value) { Print(name, ValueText(std::int32_t{*value})); },
                          [&](std::int16_t* value) { Print(name, ValueText(std::int32_t{*value})); },
                          [&](Font* value) {
                              VisitFont(*value, [&](std::string_view attribute, const std::string& text) {
                                  Print(std::string(name) + '.' + std::string(attribute), text);
                              });
                          }},
               field);
}

} // namespace quor
