#pragma once
// A view as JSON, and back: its own record's fields, and under "Elements" those of each element with its "Type".

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

namespace quor {

class clsCustView;
using Json = nlohmann::ordered_json;

// Fails with 13 and says where the text is no JSON, or has a key twice.
Json ParseJson(std::string_view text);

// One member a line, with a line break at the end.
std::string JsonText(const Json& json);

Json ViewToJson(clsCustView& view);

// Fills a fresh view, whose background stays as it is. A failure names the key; the view is then filled in part.
void ViewFromJson(const Json& json, clsCustView& view);

} // namespace quor
