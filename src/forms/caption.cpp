#include "forms/caption.h"

namespace quor {

std::string PlainCaption(std::string_view caption)
{
    std::string plain;
    for (std::size_t at = 0; at < caption.size(); ++at) {
        if (caption[at] != '&') {
            plain += caption[at];
        } else if (at + 1 < caption.size()) {
            plain += caption[++at];
        }
    }
    return plain;
}

} // namespace quor
