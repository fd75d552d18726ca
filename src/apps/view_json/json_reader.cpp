#include "apps/view_json/json_reader.h"

#include "apps/view_json/exact_numbers.h"
#include "base/failure.h"
#include "base/text.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <utility>

namespace quor {

namespace {

bool IsStorable(const std::string& text)
{
    std::vector<std::uint8_t> bytes;
    AppendAnsi(bytes, text);
    return FromAnsi(bytes) == text;
}

} // namespace

JsonReader::JsonReader(const Json& object)
{
    if (!object.is_object()) {
        throw Failure(failures::typeMismatch, "An object is wanted.");
    }
    m_levels.push_back({&object, {}, {}});
}

void JsonReader::Fail(std::int32_t number, std::string_view name, std::string_view words) const
{
    std::string path;
    for (const Level& level : m_levels) {
        path += level.name.empty() ? "" : level.name + '.';
    }
    throw Failure(number, path + std::string(name) + ' ' + std::string(words) + '.');
}

const Json& JsonReader::Take(std::string_view name)
{
    Level& level = m_levels.back();
    const auto found = level.object->find(std::string(name));
    if (found == level.object->end()) {
        Fail(failures::invalidCall, name, "is missing");
    }
    level.taken.emplace_back(name);
    return *found;
}

void JsonReader::Finish() const
{
    const Level& level = m_levels.back();
    for (const auto& member : level.object->items()) {
        if (std::find(level.taken.begin(), level.taken.end(), member.key()) == level.taken.end()) {
            Fail(failures::invalidCall, member.key(), "is no key here");
        }
    }
}

template <class Number> Number JsonReader::WholeNumber(std::string_view name)
{
    const Json& value = Take(name);
    if (!value.is_number_integer()) {
        Fail(failures::typeMismatch, name, "is no whole number");
    }
    // The library keeps numbers from 0 on as unsigned ones.
    const bool fits = value.is_number_unsigned() ? std::in_range<Number>(value.get<std::uint64_t>())
                                                 : std::in_range<Number>(value.get<std::int64_t>());
    if (!fits) {
        Fail(failures::overflow, name, "is out of range");
    }
    return value.get<Number>();
}

double JsonReader::Number(const Json& value, std::string_view name) const
{
    if (!value.is_number()) {
        Fail(failures::typeMismatch, name, "is no number");
    }
    return value.get<double>();
}

std::int32_t JsonReader::TakeNumber(std::string_view name)
{
    return WholeNumber<std::int32_t>(name);
}

std::string JsonReader::TakeText(std::string_view name)
{
    const Json& value = Take(name);
    if (!value.is_string()) {
        Fail(failures::typeMismatch, name, "is no text");
    }
    auto text = value.get<std::string>();
    if (text.find('\0') != std::string::npos) {
        Fail(failures::overflow, name, "has a character of the number 0, which ends a text in a file");
    }
    if (!IsStorable(text)) {
        Fail(failures::overflow, name, "has a character that windows-1252 lacks");
    }
    return text;
}

const Json& JsonReader::TakeList(std::string_view name)
{
    const Json& value = Take(name);
    if (!value.is_array()) {
        Fail(failures::typeMismatch, name, "is no list");
    }
    return value;
}

void JsonReader::Field(std::string_view name, bool& value)
{
    const Json& found = Take(name);
    if (!found.is_boolean()) {
        Fail(failures::typeMismatch, name, "is neither true nor false");
    }
    value = found.get<bool>();
}

void JsonReader::Field(std::string_view name, WideFlag& value)
{
    Field(name, value.value);
}

void JsonReader::Field(std::string_view name, std::uint8_t& value)
{
    value = WholeNumber<std::uint8_t>(name);
}

void JsonReader::Field(std::string_view name, std::int16_t& value)
{
    value = WholeNumber<std::int16_t>(name);
}

void JsonReader::Field(std::string_view name, std::int32_t& value)
{
    value = WholeNumber<std::int32_t>(name);
}

void JsonReader::Field(std::string_view name, float& value)
{
    const Json& found = Take(name);
    if (found.is_string()) {
        const auto special = ReadNoNumber(found.get_ref<const std::string&>());
        if (!special) {
            Fail(failures::typeMismatch, name, "is no number");
        }
        value = *special;
        return;
    }
    const double number = Number(found, name);
    if (std::isinf(static_cast<float>(number))) {
        Fail(failures::overflow, name, "is out of range");
    }
    value = static_cast<float>(number);
}

void JsonReader::Field(std::string_view name, Color& value)
{
    Field(name, value.value);
}

void JsonReader::Field(std::string_view name, Font& value)
{
    Begin(name);
    bool bold = false;
    std::int16_t weight = 0;
    Field("Bold", bold);
    Field("Weight", weight);
    value.SetBold(bold);
    Field("Charset", value.Charset);
    Field("Italic", value.Italic);
    Field("Name", value.Name);
    const Json& found = Take("Size");
    const bool isText = found.is_string();
    const auto size = isText ? ReadSize(found.get_ref<const std::string&>()) : SizeOfPoints(Number(found, "Size"));
    if (!size) {
        Fail(failures::overflow, "Size", isText ? "is no size of a font" : "is out of range");
    }
    value.Size = *size;
    Field("Strikethrough", value.Strikethrough);
    Field("Underline", value.Underline);
    value.SetWeight(weight);
    End();
}

void JsonReader::Field(std::string_view name, std::string& value)
{
    value = TakeText(name);
}

void JsonReader::ByteField(std::string_view name, std::int32_t& value)
{
    value = WholeNumber<std::uint8_t>(name);
}

void JsonReader::NameField(std::string_view name, std::string& /*value*/)
{
    TakeText(name);
}

void JsonReader::Begin(std::string_view part)
{
    const Json& object = Take(part);
    if (!object.is_object()) {
        Fail(failures::typeMismatch, part, "is no object");
    }
    m_levels.push_back({&object, std::string(part), {}});
}

void JsonReader::End()
{
    Finish();
    m_levels.pop_back();
}

} // namespace quor
