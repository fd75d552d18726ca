#pragma once
// A record's fields as the members of a JSON object, and back.

#include "format/field_walk.h"
#include "json/json.h"

#include <string>
#include <vector>

namespace quor {

class JsonWriter final : public FieldWalk {
public:
    // The object outlives the writer.
    explicit JsonWriter(Json& object) : m_objects{&object} {}

private:
    void Field(std::string_view name, FieldRef field) override;
    void Begin(std::string_view part) override;
    void End() override { m_objects.pop_back(); }

    std::vector<Json*> m_objects; // the innermost last
};

// Fails as JsonValue does, and with 6 where windows-1252 lacks a character of a text.
class JsonReader final : public FieldWalk {
public:
    // Fails with 13 if it is no object.
    explicit JsonReader(const JsonValue& object) { Enter(object); }

    JsonValue Take(std::string_view name);
    std::string TakeText(std::string_view name);

    // Fails with 5 if the object has members that nobody has taken.
    void Finish() const;

private:
    void Field(std::string_view name, FieldRef field) override;
    void Begin(std::string_view part) override { Enter(Take(part)); }
    void End() override;

    void Enter(const JsonValue& object);
    float TakeFloat(std::string_view name);
    void TakeFont(std::string_view name, Font& font);

    struct Level {
        JsonValue object;
        std::vector<std::string> left; // members that nobody has taken
    };
    std::vector<Level> m_levels; // the innermost last
};

} // namespace quor
