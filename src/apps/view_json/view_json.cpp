#include "apps/view_json/view_json.h"

#include "apps/view_json/json_fields.h"
#include "base/failure.h"
#include "document/kinds.h"
#include "document/view_document.h"

#include <nlohmann/json.hpp>

namespace quor {

namespace {

constexpr const char* elementsKey = "Elements";
constexpr const char* typeKey = "Type";
constexpr const char* nameKey = "ObjName";

Json ElementToJson(Element& element)
{
    Json json{{typeKey, element.ElementType()}};
    JsonWriter writer(json);
    element.Fields(writer);
    return json;
}

void ElementFromJson(const Json& json, clsCustView& view)
{
    JsonReader reader{JsonValue(json)};
    const auto type = reader.Take(typeKey).As<std::int32_t>();
    if (FindKind(type) == nullptr) {
        throw Failure(failures::outOfRange, "Type " + std::to_string(type) + " is no kind of element.");
    }
    Element& element = view.CollectionOf(type).Add(0, 0, reader.TakeText(nameKey), false);
    element.Fields(reader);
    reader.Finish();
    element.WriteControlProps();
}

} // namespace

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
    JsonReader reader{JsonValue(json)};
    view.Fields(reader);
    const std::size_t count = reader.Take(elementsKey).Items().size();
    reader.Finish();
    for (std::size_t index = 0; index < count; ++index) {
        try {
            ElementFromJson(json[elementsKey][index], view);
        } catch (const Failure& failure) {
            throw Failure(failure.Number(),
                          elementsKey + ('[' + std::to_string(index)) + "]: " + failure.Description());
        }
    }
}

} // namespace quor
