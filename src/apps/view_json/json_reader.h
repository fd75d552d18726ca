#pragma once
// A record's fields from the members of a JSON object.
//
// A failure names the key: 5 where a key is missing or unknown, 13 where a value is of another type, 6 where it does
// not fit the record.

#include "format/field_walk.h"

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <vector>

namespace quor {

using Json = nlohmann::ordered_json;

class JsonReader final : public FieldWalk {
public:
    explicit JsonReader(const Json& object);

    std::int32_t TakeNumber(std::string_view name);
    std::string TakeText(std::string_view name);
    const Json& TakeList(std::string_view name);

    // Fails if the object has members that nobody has taken.
    void Finish() const;

private:
    void Field(std::string_view name, bool& value) override;
    void Field(std::string_view name, WideFlag& value) override;
    void Field(std::string_view name, std::uint8_t& value) override;
    void Field(std::string_view name, std::int16_t& value) override;
    void Field(std::string_view name, std::int32_t& value) override;
    void Field(std::string_view name, float& value) override;
    void Field(std::string_view name, Color& value) override;
    void Field(std::string_view name, Font& value) override;
    void Field(std::string_view name, std::string& value) override; // fails with 6 where windows-1252 lacks a character
    void ByteField(std::string_view name, std::int32_t& value) override;
    void NameField(std::string_view name, std::string& value) override; // not taken over
    void Begin(std::string_view part) override;
    void End() override;

    struct Level {
        const Json* object;
        std::string name;
        std::vector<std::string> taken;
    };

    const Json& Take(std::string_view name);
    template <class Number> Number WholeNumber(std::string_view name);
    double Number(const Json& value, std::string_view name) const;
    [[noreturn]] void Fail(std::int32_t number, std::string_view name, std::string_view words) const;

    std::vector<Level> m_levels; // the innermost last
};

} // namespace quor
