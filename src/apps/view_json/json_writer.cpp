#include "apps/view_json/json_writer.h"

#include "apps/view_json/exact_numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

namespace quor {

namespace {

// The number whose shortest text is the shortest that reads back as the same float.
Json NumberOf(float value)
{
    if (std::isnan(value)) {
        return NanText(value);
    }
    if (std::isinf(value)) {
        return value < 0 ? "-Infinity" : "Infinity";
    }
    std::array<char, 32> text;
    const char* end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    double number = 0;
    std::from_chars(text.data(), end, number);
    return number;
}

Json SizeOf(const Font& font)
{
    const double points = PointsOf(font.Size);
    return SizeOfPoints(points) == font.Size ? Json(points) : Json(SizeText(font.Size));
}

} // namespace

Json& JsonWriter::Member(std::string_view name)
{
    return (*m_objects.back())[std::string(name)];
}

void JsonWriter::Field(std::string_view name, bool& value)
{
    Member(name) = value;
}

void JsonWriter::Field(std::string_view name, WideFlag& value)
{
    Member(name) = value.value;
}

void JsonWriter::Field(std::string_view name, std::uint8_t& value)
{
    Member(name) = value;
}

void JsonWriter::Field(std::string_view name, std::int16_t& value)
{
    Member(name) = value;
}

void JsonWriter::Field(std::string_view name, std::int32_t& value)
{
    Member(name) = value;
}

void JsonWriter::Field(std::string_view name, float& value)
{
    Member(name) = NumberOf(value);
}

void JsonWriter::Field(std::string_view name, Color& value)
{
    Member(name) = value.value;
}

void JsonWriter::Field(std::string_view name, Font& value)
{
    Member(name) = {{"Bold", value.Bold()},
                    {"Charset", value.Charset},
                    {"Italic", value.Italic},
                    {"Size", SizeOf(value)},
                    {"Strikethrough", value.Strikethrough},
                    {"Underline", value.Underline},
                    {"Weight", value.Weight()},
                    {"Name", value.Name}};
}

void JsonWriter::Field(std::string_view name, std::string& value)
{
    Member(name) = value;
}

void JsonWriter::ByteField(std::string_view name, std::int32_t& value)
{
    Member(name) = value;
}

void JsonWriter::NameField(std::string_view name, std::string& value)
{
    Member(name) = value;
}

void JsonWriter::Begin(std::string_view part)
{
    Json& object = Member(part);
    object = Json::object();
    m_objects.push_back(&object);
}

void JsonWriter::End()
{
    m_objects.pop_back();
}

} // namespace quor
