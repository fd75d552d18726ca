#pragma once
// Values as journeys print and read them.

#include "base/values.h"
#include "format/field_walk.h"
#include "tests/support/quoted.h"
#include "widgets/property_visitor.h"

#include <functional>
#include <string>
#include <string_view>

namespace quor {

std::string ValueText(bool value);
std::string ValueText(std::int32_t value);
std::string ValueText(float value);
std::string ValueText(double value);
std::string ValueText(Color value); // 0x0000FF00
std::string ValueText(const std::string& value);

// Reads them back; fails with JourneyError where the text is something else.
void ReadValue(std::string_view text, bool& value);
void ReadValue(std::string_view text, WideFlag& value);
void ReadValue(std::string_view text, std::uint8_t& value);
void ReadValue(std::string_view text, std::int16_t& value);
void ReadValue(std::string_view text, std::int32_t& value);
void ReadValue(std::string_view text, float& value);
void ReadValue(std::string_view text, Color& value);
void ReadValue(std::string_view text, std::string& value);

using NamedValue = std::function<void(std::string_view name, const std::string& value)>;

// The attributes of a font, each with its name.
void VisitFont(const Font& font, const NamedValue& visit);

// Says what a visitor sees as a name and a text, a font attribute by attribute.
class SayingVisitor : public PropertyVisitor {
public:
    void Visit(std::string_view name, bool value) override { Say(name, ValueText(value)); }
    void Visit(std::string_view name, std::int32_t value) override { Say(name, ValueText(value)); }
    void Visit(std::string_view name, float value) override { Say(name, ValueText(value)); }
    void Visit(std::string_view name, Color value) override { Say(name, ValueText(value)); }
    void Visit(std::string_view name, const std::string& value) override { Say(name, ValueText(value)); }
    void Visit(std::string_view name, double value) override { Say(name, ValueText(value)); }
    void Visit(std::string_view name, const PictureRef& value) override
    {
        Say(name, ValueText(value == nullptr ? std::string{} : value->Path()));
    }
    void Visit(std::string_view name, const Font& value) override
    {
        VisitFont(value, [&](std::string_view attribute, const std::string& text) {
            Say(std::string(name) + '.' + std::string(attribute), text);
        });
    }

private:
    virtual void Say(std::string_view name, const std::string& value) = 0;
};

// Each property of a widget with its value.
class PropertyPrinter final : public SayingVisitor {
public:
    explicit PropertyPrinter(NamedValue print) : m_print(std::move(print)) {}

private:
    void Say(std::string_view name, const std::string& value) override { m_print(name, value); }

    NamedValue m_print;
};

// Each field of a record with its value; those of a part as `BlnDataSource.Site`.
class FieldPrinter final : public FieldWalk {
public:
    explicit FieldPrinter(NamedValue print) : m_print(std::move(print)) {}

private:
    void Field(std::string_view name, FieldRef field) override;
    void Begin(std::string_view part) override { m_part = std::string(part) + '.'; }
    void End() override { m_part.clear(); }

    void Print(std::string_view name, const std::string& value) { m_print(m_part + std::string(name), value); }

    NamedValue m_print;
    std::string m_part;
};

} // namespace quor
