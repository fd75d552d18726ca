#include "forms/fields.h"

#include "base/failure.h"
#include "base/text.h"

#include <charconv>

namespace quor {

namespace {

void RequireIndex(std::int32_t index, std::size_t count)
{
    if (index < -1 || (index >= 0 && static_cast<std::size_t>(index) >= count)) {
        throw Failure(failures::invalidPropertyValue);
    }
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

void NumberField::Value(double value)
{
    if (Write(m_value, value)) {
        Change.Raise();
    }
}

bool NumberField::Type(std::string_view text)
{
    const std::string_view digits = TrimBlanks(text);
    double number = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed);
    const std::size_t point = digits.find('.');
    const std::size_t decimals = point == std::string_view::npos ? 0 : digits.size() - point - 1;
    if (!AcceptsUser() || error != std::errc() || end != digits.data() + digits.size() ||
        decimals > static_cast<std::size_t>(Decimals) || !(number >= Least && number <= Most)) {
        return false;
    }
    Value(number);
    return true;
}

void Swatch::Push()
{
    if (AcceptsUser()) {
        Click.Raise();
    }
}

} // namespace quor
