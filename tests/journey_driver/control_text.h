#pragma once
// Controls of forms as journeys print them.

#include <string>
#include <vector>

namespace quor {

class Control;
class Form;

// `control NAME value V enabled B visible B`; an array of options has a line for each.
std::vector<std::string> ControlLines(const Control& control);

} // namespace quor
