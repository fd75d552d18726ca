#include "json/json.h"

#include "base/failure.h"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <nlohmann/json.hpp>
#include <set>
#include <utility>

namespace quor {

namespace {

constexpr std::size_t deepest = 32;

// "Sites", or "Sites[3].Units" for a member of what the path leads to.
std::string Joined(const std::string& path, std::string_view name)
{
    return path + (path.empty() ? "" : ".") + std::string(name);
}

std::string Joined(const std::string& path, std::size_t index)
{
    return path + '[' + std::to_string(index) + ']';
}

// Follows a text while it is parsed: knows the place that has been reached, and refuses a key that is there twice.
class KeyWatch {
public:
    bool Take(Json::parse_event_t event, const Json& parsed)
    {
        using Event = Json::parse_event_t;
        switch (event) {
        case Event::object_start:
        case Event::array_start:
            if (m_levels.size() == deepest) {
                throw Failure(failures::typeMismatch, Place() + " has too many brackets within each other.");
            }
            m_levels.push_back({event == Event::array_start, 0, {}, {}});
            break;
        case Event::key:
            m_levels.back().key = parsed.get<std::string>();
            if (!m_levels.back().keys.insert(m_levels.back().key).second) {
                throw Failure(failures::typeMismatch, Place() + " is there twice.");
            }
            break;
        case Event::object_end:
        case Event::array_end:
            m_levels.pop_back();
            [[fallthrough]];
        case Event::value:
            if (!m_levels.empty()) {
                ++m_levels.back().index;
            }
            break;
        }
        return true;
    }

    std::string Place() const
    {
        std::string place;
        for (const Level& level : m_levels) {
            place = level.isList ? Joined(place, level.index) : Joined(place, level.key);
        }
        return place;
    }

private:
    struct Level {
        bool isList;
        std::size_t index;
        std::string key;
        std::set<std::string> keys;
    };
    std::vector<Level> m_levels; // the innermost last
};

// In words for a position from 1 on.
std::string LineAndColumn(std::string_view text, std::size_t position)
{
    const std::string_view before = text.substr(0, position - 1);
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::size_t column = before.size() - (before.rfind('\n') + 1) + 1;
    return "Line " + std::to_string(line) + ", column " + std::to_string(column);
}

template <class T> bool IsOf(const Json& json)
{
    if constexpr (std::same_as<T, bool>) {
        return json.is_boolean();
    } else if constexpr (std::integral<T>) {
        return json.is_number_integer();
    } else if constexpr (std::floating_point<T>) {
        return json.is_number();
    } else {
        return json.is_string();
    }
}

template <class T> bool Fits(const Json& json)
{
    if constexpr (std::integral<T> && !std::same_as<T, bool>) {
        // The library keeps numbers from 0 on as unsigned ones.
        return json.is_number_unsigned() ? std::in_range<T>(json.get<std::uint64_t>())
                                         : std::in_range<T>(json.get<std::int64_t>());
    } else if constexpr (std::floating_point<T>) {
        return std::isfinite(json.get<T>());
    }
    return true;
}

template <class T> constexpr std::string_view otherType = "is no text";
template <> constexpr std::string_view otherType<bool> = "is neither true nor false";
template <std::integral T> constexpr std::string_view otherType<T> = "is no whole number";
template <std::floating_point T> constexpr std::string_view otherType<T> = "is no number";

} // namespace

Json ParseJson(std::string_view text)
{
    KeyWatch watch;
    try {
        return Json::parse(text,
                           [&](int, Json::parse_event_t event, Json& parsed) { return watch.Take(event, parsed); });
    } catch (const Json::parse_error& error) {
        const std::size_t at = std::clamp<std::size_t>(error.byte, 1, text.size() + 1);
        throw Failure(failures::typeMismatch,
                      LineAndColumn(text, at) +
                          (at > text.size() ? ": the text ends too early." : ": from here on this is no JSON."));
    } catch (const Json::exception&) { // all that is left is a number
        throw Failure(failures::overflow, watch.Place() + " is out of range.");
    }
}

template <class T> T JsonValue::As() const
{
    if (!IsOf<T>(*m_json)) {
        Fail(failures::typeMismatch, otherType<T>);
    }
    if (!Fits<T>(*m_json)) {
        Fail(failures::overflow, "is out of range");
    }
    return m_json->get<T>();
}

template bool JsonValue::As() const;
template std::uint8_t JsonValue::As() const;
template std::int16_t JsonValue::As() const;
template std::int32_t JsonValue::As() const;
template float JsonValue::As() const;
template double JsonValue::As() const;
template std::string JsonValue::As() const;

bool JsonValue::IsText() const noexcept
{
    return m_json->is_string();
}

std::optional<JsonValue> JsonValue::Find(std::string_view name) const
{
    MustBeObject();
    const auto found = m_json->find(std::string(name));
    return found == m_json->end() ? std::nullopt : std::optional(JsonValue(*found, Joined(m_path, name)));
}

JsonValue JsonValue::operator[](std::string_view name) const
{
    std::optional<JsonValue> found = Find(name);
    if (!found) {
        JsonValue(*m_json, Joined(m_path, name)).Fail(failures::invalidCall, "is missing");
    }
    return *std::move(found);
}

std::vector<std::string> JsonValue::Names() const
{
    MustBeObject();
    std::vector<std::string> names;
    for (const auto& member : m_json->items()) {
        names.push_back(member.key());
    }
    return names;
}

std::vector<JsonValue> JsonValue::Items(std::size_t most) const
{
    if (!m_json->is_array()) {
        Fail(failures::typeMismatch, "is no list");
    }
    if (m_json->size() > most) {
        Fail(failures::outOfRange, "has more than " + std::to_string(most) + " items");
    }
    std::vector<JsonValue> items;
    for (const Json& item : *m_json) {
        items.emplace_back(item, Joined(m_path, items.size()));
    }
    return items;
}

void JsonValue::Fail(std::int32_t number, std::string_view words) const
{
    throw Failure(number, m_path + ' ' + std::string(words) + '.');
}

void JsonValue::MustBeObject() const
{
    if (!m_json->is_object()) {
        throw Failure(failures::typeMismatch, m_path.empty() ? "An object is wanted." : m_path + " is no object.");
    }
}

} // namespace quor
