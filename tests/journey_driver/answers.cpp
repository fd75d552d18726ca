#include "tests/journey_driver/answers.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <span>

namespace quor {

namespace {

// Whether a sequence of items meets a sequence of patterns, of which some stand for any run of items.
template <class Pattern, class Item, class IsRun, class Meets>
bool MatchesRuns(std::span<const Pattern> patterns, std::span<const Item> items, IsRun isRun, Meets meets)
{
    constexpr std::size_t none = static_cast<std::size_t>(-1);
    std::size_t pattern = 0;
    std::size_t item = 0;
    std::size_t run = none; // the last one met, and the item up to which it reaches
    std::size_t runEnd = 0;
    while (item < items.size()) {
        if (pattern < patterns.size() && isRun(patterns[pattern])) {
            run = pattern++;
            runEnd = item;
        } else if (pattern < patterns.size() && meets(patterns[pattern], items[item])) {
            ++pattern;
            ++item;
        } else if (run != none) {
            pattern = run + 1;
            item = ++runEnd;
        } else {
            return false;
        }
    }
    return std::all_of(patterns.begin() + static_cast<std::ptrdiff_t>(pattern), patterns.end(), isRun);
}

using Characters = std::vector<std::string_view>;

std::string_view FirstCharacter(std::string_view text)
{
    std::size_t length = 1;
    while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0) == 0x80) {
        ++length;
    }
    return text.substr(0, length);
}

constexpr std::string_view anyCharacter{}; // in a pattern

// The characters that `{22}` at the head of the text stands for, and how long it is; 0 if it is none.
std::size_t ReadCount(std::string_view text, std::size_t& count)
{
    const std::size_t end = text.find('}');
    if (text.front() != '{' || end == std::string_view::npos || end < 2) {
        return 0;
    }
    std::uint16_t number = 0;
    const auto [stop, error] = std::from_chars(text.data() + 1, text.data() + end, number);
    count = number;
    return error == std::errc() && stop == text.data() + end ? end + 1 : 0;
}

Characters Split(std::string_view text, bool isPattern)
{
    Characters characters;
    while (!text.empty()) {
        std::size_t count = 0;
        if (const std::size_t length = isPattern ? ReadCount(text, count) : 0; length > 0) {
            characters.insert(characters.end(), count, anyCharacter);
            text.remove_prefix(length);
        } else {
            characters.push_back(FirstCharacter(text));
            text.remove_prefix(characters.back().size());
        }
    }
    return characters;
}

bool Meets(const Expected& expected, const AnswerLine& line)
{
    return MatchesLine(expected.pattern, line.text) ||
           (!line.quoted.empty() && MatchesLine(expected.pattern, line.quoted));
}

bool MatchesInOrder(std::span<const Expected> block, std::span<const AnswerLine> lines)
{
    return MatchesRuns(
        block, lines, [](const Expected& expected) { return expected.pattern == "*"; }, Meets);
}

// How many of the lines in order are met, from the first on.
std::size_t MetInOrder(const std::vector<Expected>& inOrder, const std::vector<AnswerLine>& lines)
{
    for (std::size_t count = inOrder.size(); count > 0; --count) {
        std::vector<Expected> head(inOrder.begin(), inOrder.begin() + static_cast<std::ptrdiff_t>(count));
        head.push_back({Expected::Kind::InOrder, "*"});
        if (MatchesInOrder(head, lines)) {
            return count;
        }
    }
    return 0;
}

// The expected lines that are not met.
std::vector<const Expected*> Unmet(const std::vector<Expected>& block, const std::vector<AnswerLine>& lines)
{
    std::vector<const Expected*> unmet;
    std::vector<Expected> inOrder;
    std::vector<const Expected*> origins;
    for (const Expected& expected : block) {
        const bool isThere =
            std::any_of(lines.begin(), lines.end(), [&](const AnswerLine& line) { return Meets(expected, line); });
        if (expected.kind == Expected::Kind::InOrder) {
            inOrder.push_back(expected);
            origins.push_back(&expected);
        } else if (isThere != (expected.kind == Expected::Kind::Among)) {
            unmet.push_back(&expected);
        }
    }
    if (!inOrder.empty() && !MatchesInOrder(inOrder, lines)) {
        const std::size_t met = MetInOrder(inOrder, lines);
        unmet.push_back(met < origins.size() ? origins[met] : nullptr);
    }
    return unmet;
}

} // namespace

bool MatchesLine(std::string_view pattern, std::string_view line)
{
    return MatchesRuns<std::string_view, std::string_view>(
        Split(pattern, true), Split(line, false), [](std::string_view character) { return character == "*"; },
        [](std::string_view wanted, std::string_view character) {
            return wanted.data() == anyCharacter.data() || wanted == character;
        });
}

std::string Difference(const std::vector<Expected>& block, const std::vector<AnswerLine>& lines)
{
    const std::vector<const Expected*> unmet = Unmet(block, lines);
    if (unmet.empty()) {
        return {};
    }
    constexpr std::string_view marks[] = {"> ", ">? ", ">! "};
    std::string text = "  expected\n";
    for (const Expected& expected : block) {
        const bool isUnmet = std::find(unmet.begin(), unmet.end(), &expected) != unmet.end();
        text += isUnmet ? "  * " : "    ";
        text += std::string(marks[static_cast<std::size_t>(expected.kind)]) + expected.pattern + '\n';
    }
    text += unmet.back() == nullptr ? "  * and nothing more\n  came\n" : "  came\n";
    for (const AnswerLine& line : lines) {
        text += "    " + line.text + '\n';
    }
    return text + (lines.empty() ? "    nothing\n" : "");
}

} // namespace quor
