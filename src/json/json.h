#pragma once
// JSON that comes from anywhere: parsed within bounds, and read with failures that name the place.

#include <cstddef>
#include <cstdint>
#include <limits>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

using Json = nlohmann::ordered_json;

// Fails with 13 where the text is no JSON, and says in which line and column; with 13 at a key that is there twice and
// at brackets more than 32 deep, and with 6 at a number beyond all bounds, and says where, as in "Sites[3].Units".
Json ParseJson(std::string_view text);

// A value, which outlives this, and the way to it, with which its failures begin: 13 where it is of another type, 6
// where it doesn't fit.
class JsonValue {
public:
    explicit JsonValue(const Json& json, std::string path = {}) : m_json(&json), m_path(std::move(path)) {}

    // A bool, a whole number, a float or double, or a text.
    template <class T> T As() const;
    bool IsText() const noexcept;

    // The member of an object. Without a default a missing one fails with 5.
    JsonValue operator[](std::string_view name) const;
    std::optional<JsonValue> Find(std::string_view name) const;
    std::vector<std::string> Names() const;

    // Of a list. Fails with 9 if there are more than `most`.
    std::vector<JsonValue> Items(std::size_t most = std::numeric_limits<std::size_t>::max()) const;

    // The way to the value, and the words behind it.
    [[noreturn]] void Fail(std::int32_t number, std::string_view words) const;

private:
    std::string PathOf(std::string_view name) const;
    void MustBeObject() const;

    const Json* m_json;
    std::string m_path;
};

} // namespace quor
