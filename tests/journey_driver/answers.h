#pragma once
// What a journey expects the program to answer, compared with what came.
//
// Within a line `*` stands for any characters and {22} for just 22; a line `*` in order stands for any lines, also
// none.

#include <string>
#include <string_view>
#include <vector>

namespace quor {

struct Expected {
    enum class Kind { InOrder, Among, Never };

    Kind kind = Kind::InOrder;
    std::string pattern;
};

struct AnswerLine {
    std::string text;
    std::string quoted{}; // of a bare text: the same with quotes around it, which will do as well; else empty
};

bool MatchesLine(std::string_view pattern, std::string_view line);

// Empty if all is as expected; otherwise both, with a mark at the first expected line that isn't met.
std::string Difference(const std::vector<Expected>& block, const std::vector<AnswerLine>& lines);

} // namespace quor
