#include "apps/view_json/view_json.h"

#include "apps/view_json/json_reader.h"
#include "apps/view_json/json_writer.h"
#include "base/failure.h"
#include "document/kinds.h"
#include "document/view_document.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>

namespace quor {

namespace {

constexpr const char* elementsKey = "Elements";
constexpr const char* typeKey = "Type";
constexpr const char* nameKey = "ObjName";

// Follows a text while it is parsed: knows the place that has been reached, and refuses a key that is there twice.
class KeyWatch {
public:
    bool Take(Json::parse_event_t event, const Json& parsed)
    {
        using Event = Json::parse_event_t;
        switch (event) {
        case Event::object_start:
        case Event::array_start:
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

    // Such as "Elements[3].Unit".
    std::string Place() const
    {
        std::string place;
        for (const Level& level : m_levels) {
            const bool isFirst = place.empty();
            place += level.isList ? '[' + std::to_string(level.index) + ']' : (isFirst ? "" : ".") + level.key;
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

Json ElementToJson(Element& element)
{
    Json json{{typeKey, element.ElementType()}};
    JsonWriter writer(json);
    element.Fields(writer);
    return json;
}

void ElementFromJson(const Json& json, clsCustView& view)
{
    JsonReader reader(json);
    const std::int32_t type = reader.TakeNumber(typeKey);
    if (FindKind(type) == nullptr) {
        throw Failure(failures::outOfRange, "Type " + std::to_string(type) + " is no kind of element.");
    }
    Element& element = view.CollectionOf(type).Add(0, 0, reader.TakeText(nameKey), false);
    element.Fields(reader);
    reader.Finish();
    element.WriteControlProps();
}

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

std::string JsonText(const Json& json)
{
    return json.dump(1) + '\n';
}

Json ViewToJson(clsCustView& view)
{
    Json json = Json::object();
    JsonWriter writer(json);
    view.Fields(writer);
    Json elements = Json::array();
    for (Element* element : view.CtlOrder()) {
        elements.push_back(ElementToJson(*element));
    }
    json[elementsKey] = std::move(elements);
    return json;
}

void ViewFromJson(const Json& json, clsCustView& view)
{
    JsonReader reader(json);
    view.Fields(reader);
    const Json& elements = reader.TakeList(elementsKey);
    reader.Finish();
    for (std::size_t index = 0; index < elements.size(); ++index) {
        try {
            ElementFromJson(elements[index], view);
        } catch (const Failure& failure) {
            throw Failure(failure.Number(),
                          elementsKey + ('[' + std::to_string(index)) + "]: " + failure.Description());
        }
    }
}

} // namespace quor
