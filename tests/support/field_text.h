#pragma once
// The settings of an element as text, by their names in the record: to compare what is stored with what is wanted.

#include "format/field_walk.h"

#include <map>
#include <string>
#include <string_view>

namespace quor {

// Flags are 1 and 0, a font is its name; those of the sources are left out.
class FieldText final : public FieldWalk {
public:
    template <class E> static std::string Of(E& element, std::string_view name)
    {
        FieldText walk;
        element.Fields(walk);
        const auto found = walk.m_texts.find(name);
        return found == walk.m_texts.end() ? "no such field: " + std::string(name) : found->second;
    }

private:
    void Field(std::string_view name, bool& value) override { Keep(name, value ? "1" : "0"); }
    void Field(std::string_view name, WideFlag& value) override { Keep(name, value.value ? "1" : "0"); }
    void Field(std::string_view name, std::uint8_t& value) override { Keep(name, std::to_string(value)); }
    void Field(std::string_view name, std::int16_t& value) override { Keep(name, std::to_string(value)); }
    void Field(std::string_view name, std::int32_t& value) override { Keep(name, std::to_string(value)); }
    void Field(std::string_view name, float& value) override { Keep(name, std::to_string(value)); }
    void Field(std::string_view name, Color& value) override { Keep(name, std::to_string(value.value)); }
    void Field(std::string_view name, Font& value) override { Keep(name, value.Name); }
    void Field(std::string_view name, std::string& value) override { Keep(name, value); }
    void ByteField(std::string_view name, std::int32_t& value) override { Keep(name, std::to_string(value)); }
    void NameField(std::string_view name, std::string& value) override { Keep(name, value); }
    void Begin(std::string_view /*part*/) override { ++m_depth; }
    void End() override { --m_depth; }

    void Keep(std::string_view name, std::string text)
    {
        if (m_depth == 0) {
            m_texts.insert_or_assign(std::string(name), std::move(text));
        }
    }

    std::map<std::string, std::string, std::less<>> m_texts;
    int m_depth = 0;
};

} // namespace quor
