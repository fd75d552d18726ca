#include "tests/support/quoted.h"

#include <cstdio>

namespace quor {

namespace {

void AppendEscaped(std::string& quoted, char letter)
{
    constexpr std::string_view named = "\"\\\b\f\n\r\t";
    constexpr std::string_view escapes = "\"\\bfnrt";
    if (const std::size_t at = named.find(letter); at != std::string_view::npos) {
        quoted += {'\\', escapes[at]};
    } else if (static_cast<unsigned char>(letter) < 0x20) {
        char code[7];
        std::snprintf(code, sizeof code, "\\u%04x", static_cast<unsigned>(letter));
        quoted += code;
    } else {
        quoted += letter;
    }
}

} // namespace

std::string Quoted(std::string_view text)
{
    std::string quoted = "\"";
    for (const char letter : text) {
        AppendEscaped(quoted, letter);
    }
    return quoted + '"';
}

} // namespace quor
