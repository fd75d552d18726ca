#pragma once
// A record's fields as the members of a JSON object.

#include "format/field_walk.h"

#include <nlohmann/json_fwd.hpp>
#include <vector>

namespace quor {

using Json = nlohmann::ordered_json;

class JsonWriter final : public FieldWalk {
public:
    explicit JsonWriter(Json& object) : m_objects{&object} {}

private:
    void Field(std::string_view name, bool& value) override;
    void Field(std::string_view name, WideFlag& value) override;
    void Field(std::string_view name, std::uint8_t& value) override;
    void Field(std::string_view name, std::int16_t& value) override;
    void Field(std::string_view name, std::int32_t& value) override;
    void Field(std::string_view name, float& value) override; // also "NaN", "Infinity", "-Infinity"
    void Field(std::string_view name, Color& value) override;
    void Field(std::string_view name, Font& value) override;
    void Field(std::string_view name, std::string& value) override;
    void ByteField(std::string_view name, std::int32_t& value) override;
    void NameField(std::string_view name, std::string& value) override;
    void Begin(std::string_view part) override;
    void End() override;

    Json& Member(std::string_view name);

    std::vector<Json*> m_objects; // the innermost last
};

} // namespace quor
