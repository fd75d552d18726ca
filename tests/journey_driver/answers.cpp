#include "tests/journey_driver/answers.h"

#include "tests/support/quoted.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace quor {

namespace {

constexpr std::size_t none = std::string_view::npos;

// The first of the patterns that isn't met, of which some stand for any run of items; their number where more items
// come, none if all is met.
template <class Pattern, class Item, class IsRun, class Meets>
std::size_t FirstUnmet(const std::vector<Pattern>& patterns, const std::vector<Item>& items, IsRun isRun, Meets meets)
{
    std::size_t pattern = 0;
    std::size_t item = 0;
    std::size_t run = none; // the last one met, and the item up to which it reaches
    std::size_t runEnd = 0;
    std::size_t farthest = 0;
    while (item < items.size()) {
        farthest = std::max(farthest, pattern);
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
            return farthest;
        }
    }
    while (pattern < patterns.size() && isRun(patterns[pattern])) {
        ++pattern;
    }
    return pattern == patterns.size() ? none : std::max(farthest, pattern);
}

// Of a pattern: `{22}` gives 22 times an empty one, which stands for any character.
std::vector<std::string_view> Characters(std::string_view text, bool isPattern)
{
    std::vector<std::string_view> characters;
    while (!text.empty()) {
        std::uint16_t count = 0;
        const char* const end = text.data() + text.size();
        const char* stop = std::from_chars(text.data() + 1, end, count).ptr;
        if (isPattern && text.front() == '{' && stop != text.data() + 1 && stop != end && *stop == '}') {
            characters.insert(characters.end(), count, std::string_view());
            text.remove_prefix(static_cast<std::size_t>(stop + 1 - text.data()));
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
           (line.isBare && MatchesLine(expected.pattern, Quoted(line.text)));
}

} // namespace

bool MatchesLine(std::string_view pattern, std::string_view line)
{
    return FirstUnmet(
               Characters(pattern, true), Characters(line, false),
               [](std::string_view character) { return character == "*"; },
               [](std::string_view wanted, std::string_view character) {
                   return wanted.empty() || wanted == character;
               }) == none;
}

std::string Difference(const std::vector<Expected>& block, const std::vector<AnswerLine>& lines)
{
    using Kind = Expected::Kind;
    std::vector<Expected> inOrder;
    std::ranges::copy_if(block, std::back_inserter(inOrder),
                         [](const Expected& expected) { return expected.kind == Kind::InOrder; });
    const std::size_t unmet =
        inOrder.empty() ? none
                        : FirstUnmet(
                              inOrder, lines, [](const Expected& expected) { return expected.pattern == "*"; }, Meets);
    constexpr std::string_view marks[] = {"> ", ">? ", ">! "};
    bool differs = unmet != none;
    std::string text = "  expected\n";
    std::size_t place = 0;
    for (const Expected& expected : block) {
        const bool isThere = std::ranges::any_of(lines, [&](const AnswerLine& line) { return Meets(expected, line); });
        const bool isMet =
            expected.kind == Kind::InOrder ? place++ != unmet : isThere == (expected.kind == Kind::Among);
        differs = differs || !isMet;
        text += isMet ? "    " : "  * ";
        text += std::string(marks[static_cast<std::size_t>(expected.kind)]) + expected.pattern + '\n';
    }
    text += unmet == inOrder.size() ? "  * and nothing more\n  came\n" : "  came\n";
    for (const AnswerLine& line : lines) {
        text += "    " + line.text + '\n';
    }
    return differs ? text + (lines.empty() ? "    nothing\n" : "") : std::string();
}

std::vector<std::string> SplitLines(std::string_view text)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = text.substr(0, end);
        lines.emplace_back(line.substr(0, line.size() - (line.ends_with('\r') ? 1 : 0)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

std::string_view FirstCharacter(std::string_view text)
{
    const auto isInside = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; };
    return {text.begin(), std::find_if_not(text.begin() + 1, text.end(), isInside)};
}

} // namespace quor
