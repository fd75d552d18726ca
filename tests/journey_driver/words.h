#pragma once
// The words of a step as values, and values as words of an answer.

#include "base/text.h"
#include "base/values.h"
#include "format/field_walk.h"
#include "tests/journey_driver/journey.h"
#include "tests/support/quoted.h"
#include "widgets/property_visitor.h"

#include <charconv>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

namespace quor {

// Fails with JourneyError where the text is something else.
template <class T> T To(std::string_view text)
{
    const char* const end = text.data() + text.size();
    T value{};
    bool isRead = true;
    if constexpr (std::is_same_v<T, std::string>) {
        value = text;
    } else if constexpr (std::is_same_v<T, bool>) {
        value = text == "true";
        isRead = value || text == "false";
    } else if constexpr (std::is_same_v<T, WideFlag>) {
        value.value = To<bool>(text);
    } else if constexpr (std::is_same_v<T, Color>) {
        std::uint32_t number = 0;
        isRead = text.starts_with("0x") && std::from_chars(text.data() + 2, end, number, 16).ptr == end;
        value.value = static_cast<std::int32_t>(number);
    } else {
        const auto [stop, error] = std::from_chars(text.data(), end, value);
        isRead = error == std::errc() && stop == end;
    }
    MustBe(isRead, "no such value: " + std::string(text));
    return value;
}

// The words of a step, its own the first.
class Arguments {
public:
    explicit Arguments(std::span<const Word> words) : m_words(words) {}

    bool Has(std::size_t index) const noexcept { return index < m_words.size(); }
    std::span<const Word> From(std::size_t index) const { return m_words.subspan(index); }
    bool IsQuoted(std::size_t index) const { return m_words[index].isQuoted; }

    // Empty where the word was left out.
    const std::string& operator[](std::size_t index) const
    {
        static const std::string none;
        return Has(index) ? m_words[index].text : none;
    }
    template <class T> T As(std::size_t index) const { return To<T>((*this)[index]); }

private:
    std::span<const Word> m_words;
};

// Whether the words fit a usage as people read it: `press WHERE X Y [left|right|middle]`. Words in capitals are names
// of arguments, others stand for themselves. What may be left out is in brackets, `...`
// repeats the word.
bool FitsUsage(std::string_view usage, std::span<const Word> words);

template <class T> std::string ValueText(const T& value)
{
    if constexpr (std::is_same_v<T, bool>) {
        return value ? "true" : "false";
    } else if constexpr (std::is_integral_v<T>) {
        return std::to_string(value);
    } else if constexpr (std::is_floating_point_v<T>) {
        return Decimal(value);
    } else if constexpr (std::is_same_v<T, WideFlag>) {
        return ValueText(value.value);
    } else if constexpr (std::is_same_v<T, Color>) {
        char text[11];
        std::snprintf(text, sizeof text, "0x%08X", static_cast<unsigned>(value.value));
        return text;
    } else if constexpr (std::is_same_v<T, PictureRef>) {
        return Quoted(value == nullptr ? std::string() : value->Path());
    } else if constexpr (std::is_same_v<T, std::string>) {
        return Quoted(value);
    } else {
        return std::string(value);
    }
}

// The values with blanks between them: a std::string in quotes, literals and views as they stand.
template <class... T> std::string Line(const T&... values)
{
    std::string line;
    ((line += ValueText(values), line += ' '), ...);
    line.pop_back();
    return line;
}

using NamedValue = std::function<void(std::string_view name, const std::string& value)>;

// The attributes of a font, each with its name behind that of the font.
void TellFont(std::string_view name, const Font& font, const NamedValue& tell);

// Each property of a widget with its value.
class PropertyPrinter final : public PropertyVisitor {
public:
    explicit PropertyPrinter(NamedValue tell) : m_tell(std::move(tell)) {}

    void Visit(std::string_view name, bool value) override { m_tell(name, ValueText(value)); }
    void Visit(std::string_view name, std::int32_t value) override { m_tell(name, ValueText(value)); }
    void Visit(std::string_view name, float value) override { m_tell(name, ValueText(value)); }
    void Visit(std::string_view name, double value) override { m_tell(name, ValueText(value)); }
    void Visit(std::string_view name, Color value) override { m_tell(name, ValueText(value)); }
    void Visit(std::string_view name, const std::string& value) override { m_tell(name, ValueText(value)); }
    void Visit(std::string_view name, const PictureRef& value) override { m_tell(name, ValueText(value)); }
    void Visit(std::string_view name, const Font& value) override { TellFont(name, value, m_tell); }

private:
    NamedValue m_tell;
};

// Each field of a record with its value; those of a part as `BlnDataSource.Site`.
class FieldPrinter final : public FieldWalk {
public:
    explicit FieldPrinter(NamedValue tell) : m_tell(std::move(tell)) {}

private:
    void Field(std::string_view name, FieldRef field) override
    {
        const std::string full = m_part + std::string(name);
        std::visit(
            [&](auto value) {
                if constexpr (std::is_same_v<decltype(value), Font*>) {
                    TellFont(full, *value, m_tell);
                } else {
                    m_tell(full, ValueText(*value));
                }
            },
            field);
    }
    void Begin(std::string_view part) override { m_part = std::string(part) + '.'; }
    void End() override { m_part.clear(); }

    NamedValue m_tell;
    std::string m_part;
};

} // namespace quor
