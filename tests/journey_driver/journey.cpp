#include "tests/journey_driver/journey.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace quor {

namespace {

constexpr std::string_view blanks = " \t";

// Reads the words of one line.
class WordReader {
public:
    explicit WordReader(std::string_view line) : m_rest(line) {}

    std::vector<Word> All()
    {
        std::vector<Word> words;
        while (SkipBlanks()) {
            words.push_back(m_rest.front() == '"' ? Quoted() : Plain());
        }
        return words;
    }

private:
    bool SkipBlanks()
    {
        m_rest.remove_prefix(std::min(m_rest.find_first_not_of(blanks), m_rest.size()));
        return !m_rest.empty();
    }

    // The length of a JSON array at the front, 0 if there is none.
    std::size_t ArrayLength() const
    {
        int depth = 0;
        bool isInText = false;
        for (std::size_t at = 0; at < m_rest.size(); ++at) {
            const char letter = m_rest[at];
            if (isInText) {
                at += letter == '\\' ? 1 : 0;
                isInText = letter != '"';
            } else if (letter == '"') {
                isInText = true;
            } else if (letter == '[') {
                ++depth;
            } else if (letter == ']') {
                --depth;
            }
            if (depth == 0) {
                return at == 0 ? 0 : at + 1;
            }
        }
        return 0;
    }

    Word Plain()
    {
        const std::size_t array = ArrayLength();
        const std::size_t end = m_rest.find_first_of(blanks, array);
        const std::string_view word = m_rest.substr(0, end);
        if (array == word.size()) {
            m_rest.remove_prefix(array);
            return {std::string(word), false};
        }
        if (word.find('"') != std::string_view::npos) {
            throw JourneyError("a quote within a word");
        }
        m_rest.remove_prefix(word.size());
        return {std::string(word), false};
    }

    Word Quoted()
    {
        Word word{{}, true};
        Next();
        for (char letter = Next(); letter != '"'; letter = Next()) {
            if (letter == '\\') {
                AppendEscape(word.text);
            } else {
                word.text += letter;
            }
        }
        if (!m_rest.empty() && blanks.find(m_rest.front()) == std::string_view::npos) {
            throw JourneyError("no blank behind a quote");
        }
        return word;
    }

    char Next()
    {
        if (m_rest.empty()) {
            throw JourneyError("a quote without an end");
        }
        const char letter = m_rest.front();
        m_rest.remove_prefix(1);
        return letter;
    }

    void AppendEscape(std::string& text)
    {
        constexpr std::string_view letters = "\"\\/bfnrt";
        constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
        const char letter = Next();
        if (const std::size_t at = letters.find(letter); at != std::string_view::npos) {
            text += meanings[at];
        } else if (letter == 'u') {
            AppendCharacter(text, CodePoint());
        } else {
            throw JourneyError("an unknown escape");
        }
    }

    std::uint32_t CodePoint()
    {
        const std::uint32_t first = CodeUnit();
        if (first < 0xD800 || first > 0xDFFF) {
            return first;
        }
        const bool isPair = first < 0xDC00 && m_rest.starts_with("\\u");
        m_rest.remove_prefix(isPair ? 2 : 0);
        const std::uint32_t second = isPair ? CodeUnit() : 0;
        if (second < 0xDC00 || second > 0xDFFF) {
            throw JourneyError("half a surrogate pair");
        }
        return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
    }

    std::uint32_t CodeUnit()
    {
        std::uint32_t unit = 0;
        const std::string_view digits = m_rest.substr(0, 4);
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), unit, 16);
        if (error != std::errc() || digits.size() != 4 || end != digits.data() + 4) {
            throw JourneyError("four hexadecimal digits are wanted behind \\u");
        }
        m_rest.remove_prefix(4);
        return unit;
    }

    static void AppendCharacter(std::string& text, std::uint32_t code)
    {
        const auto continuation = [&](int shift) { text += static_cast<char>(0x80 | ((code >> shift) & 0x3F)); };
        if (code < 0x80) {
            text += static_cast<char>(code);
            return;
        }
        if (code < 0x800) {
            text += static_cast<char>(0xC0 | (code >> 6));
        } else if (code < 0x10000) {
            text += static_cast<char>(0xE0 | (code >> 12));
            continuation(6);
        } else {
            text += static_cast<char>(0xF0 | (code >> 18));
            continuation(12);
            continuation(6);
        }
        continuation(0);
    }

    std::string_view m_rest;
};

Expected ReadExpected(std::string_view line)
{
    line.remove_prefix(1);
    Expected expected;
    if (line.starts_with('?') || line.starts_with('!')) {
        expected.kind = line.front() == '?' ? Expected::Kind::Among : Expected::Kind::Never;
        line.remove_prefix(1);
    }
    if (!line.empty() && line.front() != ' ') {
        throw JourneyError("no blank behind the mark of an answer");
    }
    expected.pattern = line.substr(line.empty() ? 0 : 1);
    return expected;
}

void ReadLine(Journey& journey, std::string_view line, int number)
{
    const std::size_t start = line.find_first_not_of(blanks);
    if (start == std::string_view::npos || line[start] == '#') {
        return;
    }
    if (line[start] != '>') {
        journey.push_back({number, WordReader(line).All(), {}});
        return;
    }
    if (journey.empty() || journey.back().answers.empty()) {
        journey.push_back({number, {}, {}});
    }
    journey.back().answers.push_back(ReadExpected(line.substr(start)));
}

} // namespace

Journey ReadJourney(std::string_view text)
{
    Journey journey;
    if (text.starts_with("\xEF\xBB\xBF")) {
        text.remove_prefix(3);
    }
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        try {
            ReadLine(journey, line, number);
        } catch (const JourneyError& error) {
            throw JourneyError(std::to_string(number) + ": " + error.what());
        }
    }
    return journey;
}

} // namespace quor
