#pragma once
// Texts as journeys and traces write them: in double quotes, with JSON's escapes.

#include <string>
#include <string_view>

namespace quor {

std::string Quoted(std::string_view text);

} // namespace quor
