#pragma once
// A view as JSON, and back: its own record's fields, and under "Elements" those of each element with its "Type".

#include "json/json.h"

#include <string>

namespace quor {

class clsCustView;

// One member a line, with a line break at the end.
std::string JsonText(const Json& json);

Json ViewToJson(clsCustView& view);

// Fills a fresh view, whose background stays as it is. A failure names the key; the view is then filled in part.
void ViewFromJson(const Json& json, clsCustView& view);

} // namespace quor
