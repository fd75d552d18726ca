#include "forms/fields.h"

#include "base/failure.h"
#include "base/text.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace quor {

namespace {

bool HoldsDigits(std::string_view text)
{
    return text.find_first_not_of("0123456789") == std::string_view::npos;
}

// Of a text that is a number; one too large to be held is infinite.
double NumberOf(std::string_view text)
{
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    if (error != std::errc()) {
        number = std::numeric_limits<double>::infinity();
        return text.starts_with('-') ? -number : number;
    }
    return number + 0.0; // no negative zero
}

} // namespace

void ListBox::AddItem(std::string item)
{
    PropertyAccess::Value(m_items).push_back(std::move(item));
    Changed.Raise();
}

void ListBox::Clear()
{
    PropertyAccess::Value(m_index) = -1;
    PropertyAccess::Value(m_items).clear();
    Changed.Raise();
}

void ListBox::ListIndex(std::int32_t index)
{
    RequireIndex(index, Items().size());
    Write(m_index, index);
    Click.Raise();
}

void ListBox::Choose(std::int32_t index)
{
    if (AcceptsUser()) {
        ListIndex(index);
    }
}

void CheckBox::Value(bool value)
{
    if (Write(m_value, value)) {
        Click.Raise();
    }
}

void CheckBox::Toggle()
{
    if (AcceptsUser()) {
        Value(!Value());
    }
}

void OptionArray::Index(std::int32_t index)
{
    RequireIndex(index, m_captions.size());
    if (index < 0) {
        throw Failure(failures::invalidPropertyValue);
    }
    if (Write(m_index, index)) {
        Click.Raise();
    }
}

void OptionArray::Choose(std::int32_t index)
{
    if (AcceptsUser()) {
        Index(index);
    }
}

void TextBox::Text(std::string text)
{
    if (Write(m_text, std::move(text))) {
        Change.Raise();
    }
}

void TextBox::Type(std::string text)
{
    if (AcceptsUser() && !ReadOnly()) {
        Text(std::move(text));
    }
}

void TextBox::Take(std::string text)
{
    Write(m_text, std::move(text));
    Change.Raise();
}

void NumberField::Value(double value)
{
    if (Write(m_value, value)) {
        Change.Raise();
    }
}

NumberField::Typing NumberField::Judge(std::string_view text) const noexcept
{
    const std::string_view typed = TrimBlanks(text);
    const bool isNegative = typed.starts_with('-');
    const std::string_view digits = typed.substr(isNegative ? 1 : 0);
    const std::size_t point = std::min(digits.find('.'), digits.size());
    const std::string_view decimals = digits.substr(point);
    if ((isNegative && Least >= 0) || !HoldsDigits(digits.substr(0, point)) ||
        (!decimals.empty() && (Decimals == 0 || !HoldsDigits(decimals.substr(1)))) ||
        decimals.size() > static_cast<std::size_t>(Decimals) + 1) {
        return Typing::Refused;
    }
    if (digits.empty() || digits == ".") {
        return Typing::Begun;
    }
    const double number = NumberOf(typed);
    if (isNegative ? number < Least : number > Most) {
        return Typing::Refused;
    }
    return number >= Least && number <= Most ? Typing::Done : Typing::Begun;
}

bool NumberField::Type(std::string_view text)
{
    if (!AcceptsUser() || Judge(text) != Typing::Done) {
        return false;
    }
    Value(NumberOf(TrimBlanks(text)));
    return true;
}

void Swatch::Push()
{
    if (AcceptsUser()) {
        Click.Raise();
    }
}

} // namespace quor
