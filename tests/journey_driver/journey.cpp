#include "tests/journey_driver/journey.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <sstream>
#include <utility>

namespace quor {

namespace {

constexpr std::string_view blanks = " \t";

// The word at which the line stands. A text in quotes and an array are JSON, and may have blanks in them.
Word ReadWord(std::istringstream& line)
{
    const bool isQuoted = line.peek() == '"';
    if (isQuoted || line.peek() == '[') {
        try {
            nlohmann::json json;
            line >> json;
            return {isQuoted ? json.get<std::string>() : json.dump(), isQuoted};
        } catch (const nlohmann::json::exception& error) {
            throw JourneyError(error.what());
        }
    }
    Word word;
    line >> word.text;
    MustBe(word.text.find('"') == std::string::npos, "a quote within a word");
    return word;
}

std::vector<Word> ReadWords(const std::string& text)
{
    std::istringstream line(text);
    std::vector<Word> words;
    while (!(line >> std::ws).eof()) {
        words.push_back(ReadWord(line));
        MustBe(line.eof() || std::isspace(line.peek()) != 0 || line.peek() == EOF, "no blank behind a word");
    }
    return words;
}

void ReadExpected(std::vector<Expected>& block, std::string_view line)
{
    using enum Expected::Kind;
    constexpr std::pair<std::string_view, Expected::Kind> marks[] = {
        {">", InOrder}, {">>", InOrder}, {">?", Among}, {">!", Never}};
    const std::string_view mark = line.substr(0, line.find(' '));
    const auto* kind = std::ranges::find(marks, mark, &std::pair<std::string_view, Expected::Kind>::first);
    MustBe(kind != std::end(marks), "no blank behind the mark of an answer");
    if (mark == ">>") {
        block.push_back({InOrder, "*"});
    }
    block.push_back({kind->second, std::string(line.substr(std::min(mark.size() + 1, line.size())))});
}

void ReadLine(Journey& journey, const std::string& line, int number)
{
    const std::size_t start = line.find_first_not_of(blanks);
    if (start == std::string::npos || line[start] == '#') {
        return;
    }
    if (line[start] != '>') {
        journey.push_back({number, ReadWords(line), {}});
        return;
    }
    if (journey.empty() || journey.back().answers.empty()) {
        journey.push_back({number, {}, {}});
    }
    ReadExpected(journey.back().answers, std::string_view(line).substr(start));
}

} // namespace

Journey ReadJourney(std::string_view text)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF"; // of UTF-8
    Journey journey;
    int number = 0;
    for (const std::string& line : SplitLines(text.substr(text.starts_with(mark) ? mark.size() : 0))) {
        ++number;
        try {
            ReadLine(journey, line, number);
        } catch (const JourneyError& error) {
            throw JourneyError(std::to_string(number) + ": " + error.what());
        }
    }
    return journey;
}

} // namespace quor
