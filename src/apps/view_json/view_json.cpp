#include "apps/view_json/view_json.h"

#include "apps/view_json/json_reader.h"
#include "apps/view_json/json_writer.h"
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
    try {
        return Json::parse(text);
    } catch (const Json::exception& error) {
        throw Failure(failures::typeMismatch, error.what());
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
