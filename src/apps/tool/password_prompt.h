#pragma once
// A new password from who runs a program: typed twice without an echo, or a line of standard input.

#include <string>

namespace quor {

// Fails with 5 where there is none, or the two differ.
std::string AskNewPassword();

} // namespace quor
