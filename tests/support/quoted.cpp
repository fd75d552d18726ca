#include "tests/support/quoted.h"

#include <nlohmann/json.hpp>

namespace quor {

std::string Quoted(std::string_view text)
{
    using Json = nlohmann::json;
    return Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace quor
