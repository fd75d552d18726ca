#pragma once
// Captions with an ampersand in front of the letter that the keyboard reaches them by; "&&" is an ampersand to read.

#include <string>
#include <string_view>

namespace quor {

// The caption as it is read: "&Open..." is "Open...".
std::string PlainCaption(std::string_view caption);

} // namespace quor
