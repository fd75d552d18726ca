#pragma once
// What a journey expects the program to answer, compared with what came.
//
// Within a line `*` stands for any characters and {22} for just 22; a line `*` in order stands for any lines, also
// none. `>> LINE` is short for `> *` and `> LINE`.

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
    bool isBare = false; // a text as it stands: with quotes around it, it will do as well
};

bool MatchesLine(std::string_view pattern, std::string_view line);

// Empty if all is as expected; otherwise both, with a mark at the first expected line that isn't met.
std::string Difference(const std::vector<Expected>& block, const std::vector<AnswerLine>& lines);

// Without their ends, of either kind.
std::vector<std::string> SplitLines(std::string_view text);

// The first character, of one byte or several.
std::string_view FirstCharacter(std::string_view text);

} // namespace quor
