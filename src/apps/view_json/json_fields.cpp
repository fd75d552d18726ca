#include "apps/view_json/json_fields.h"

#include "apps/view_json/exact_numbers.h"
#include "base/failure.h"
#include "base/overloaded.h"
#include "base/text.h"

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

Json JsonOf(const Font& font)
{
    const double points = PointsOf(font.Size);
    return {{"Bold", font.Bold()},
            {"Charset", font.Charset},
            {"Italic", font.Italic},
            {"Size", SizeOfPoints(points) == font.Size ? Json(points) : Json(SizeText(font.Size))},
            {"Strikethrough", font.Strikethrough},
            {"Underline", font.Underline},
            {"Weight", font.Weight()},
            {"Name", font.Name}};
}

bool IsStorable(const std::string& text)
{
    std::vector<std::uint8_t> bytes;
    AppendAnsi(bytes, text);
    return FromAnsi(bytes) == text;
}

} // namespace

void JsonWriter::Field(std::string_view name, FieldRef field)
{
    Json& member = (*m_objects.back())[std::string(name)];
    std::visit(Overloaded{[&](auto value) { member = *value; }, [&](WideFlag* value) { member = value->value; },
                          [&](float* value) { member = NumberOf(*value); },
                          [&](Color* value) { member = value->value; }, [&](Font* value) { member = JsonOf(*value); }},
               field);
}

void JsonWriter::Begin(std::string_view part)
{
    Json& object = (*m_objects.back())[std::string(part)];
    object = Json::object();
    m_objects.push_back(&object);
}

void JsonReader::Enter(const JsonValue& object)
{
    m_levels.push_back({object, object.Names()});
}

void JsonReader::Finish() const
{
    const Level& level = m_levels.back();
    if (!level.left.empty()) {
        level.object[level.left.front()].Fail(failures::invalidCall, "is no key here");
    }
}

void JsonReader::End()
{
    Finish();
    m_levels.pop_back();
}

JsonValue JsonReader::Take(std::string_view name)
{
    Level& level = m_levels.back();
    std::erase(level.left, name);
    return level.object[name];
}

std::string JsonReader::TakeText(std::string_view name)
{
    const JsonValue json = Take(name);
    auto text = json.As<std::string>();
    if (text.find('\0') != std::string::npos) {
        json.Fail(failures::overflow, "has a character of the number 0, which ends a text in a file");
    }
    if (!IsStorable(text)) {
        json.Fail(failures::overflow, "has a character that windows-1252 lacks");
    }
    return text;
}

float JsonReader::TakeFloat(std::string_view name)
{
    const JsonValue json = Take(name);
    if (!json.IsText()) {
        return json.As<float>();
    }
    const std::optional<float> special = ReadNoNumber(json.As<std::string>());
    if (!special) {
        json.Fail(failures::typeMismatch, "is no number");
    }
    return *special;
}

void JsonReader::TakeFont(std::string_view name, Font& font)
{
    Begin(name);
    const bool bold = Take("Bold").As<bool>();
    const auto weight = Take("Weight").As<std::int16_t>();
    font.SetBold(bold);
    font.Charset = Take("Charset").As<std::int16_t>();
    font.Italic = Take("Italic").As<bool>();
    font.Name = TakeText("Name");
    const JsonValue json = Take("Size");
    const auto size = json.IsText() ? ReadSize(json.As<std::string>()) : SizeOfPoints(json.As<double>());
    if (!size) {
        json.Fail(failures::overflow, json.IsText() ? "is no size of a font" : "is out of range");
    }
    font.Size = *size;
    font.Strikethrough = Take("Strikethrough").As<bool>();
    font.Underline = Take("Underline").As<bool>();
    font.SetWeight(weight);
    End();
}

void JsonReader::Field(std::string_view name, FieldRef field)
{
    std::visit(Overloaded{[&]<class T>(T* value) { *value = Take(name).As<T>(); },
                          [&](WideFlag* value) { value->value = Take(name).As<bool>(); },
                          [&](float* value) { *value = TakeFloat(name); },
                          [&](Color* value) { value->value = Take(name).As<std::int32_t>(); },
                          [&](Font* value) { TakeFont(name, *value); },
                          [&](std::string* value) { *value = TakeText(name); },
                          [&](ByteField value) { *value = Take(name).As<std::uint8_t>(); },
                          [&](NameField) { TakeText(name); }},
               field);
}

} // namespace quor
