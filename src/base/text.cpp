#include "base/text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace quor {

namespace {

// The characters of the bytes 0x80 to 0x9F; the others are equal to their byte.
constexpr std::array<char16_t, 32> highControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
constexpr char32_t noCharacter = 0xFFFFFFFF;

void AppendUtf8(std::string& text, char32_t character)
{
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0U | (character >> 6U));
        text += static_cast<char>(0x80U | (character & 0x3FU));
    } else {
        text += static_cast<char>(0xE0U | (character >> 12U));
        text += static_cast<char>(0x80U | ((character >> 6U) & 0x3FU));
        text += static_cast<char>(0x80U | (character & 0x3FU));
    }
}

char32_t NextBeyondAscii(std::string_view& text) noexcept
{
    const auto first = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    const std::size_t length = first >= 0xF0 && first < 0xF5 ? 3 : first >= 0xE0 ? 2 : first >= 0xC2 ? 1 : 0;
    if (length == 0 || first >= 0xF5 || text.size() < length) {
        return noCharacter;
    }
    char32_t character = first & (0x3FU >> length);
    for (std::size_t index = 0; index < length; ++index) {
        const auto byte = static_cast<unsigned char>(text[index]);
        if ((byte & 0xC0U) != 0x80) {
            return noCharacter;
        }
        character = (character << 6U) | (byte & 0x3FU);
    }
    const char32_t least = length == 3 ? 0x10000 : length == 2 ? 0x800 : 0x80;
    if (character < least || character > 0x10FFFF || (character >= 0xD800 && character < 0xE000)) {
        return noCharacter;
    }
    text.remove_prefix(length);
    return character;
}

// Takes the next character off the text; a byte that begins none is noCharacter.
inline char32_t Next(std::string_view& text) noexcept
{
    const auto first = static_cast<unsigned char>(text.front());
    if (first >= 0x80) {
        return NextBeyondAscii(text);
    }
    text.remove_prefix(1);
    return first;
}

// Neither a control character nor one that turns the direction of writing, or begins a line, for what follows it.
bool IsHarmless(char32_t character) noexcept
{
    const auto isWithin = [&](char32_t first, char32_t last) { return character >= first && character <= last; };
    return character != noCharacter && !isWithin(0, 0x1F) && !isWithin(0x7F, 0x9F) && character != 0x061C &&
           !isWithin(0x200E, 0x200F) && !isWithin(0x2028, 0x202E) && !isWithin(0x2066, 0x2069);
}

void AppendHex(std::string& text, unsigned value, unsigned digits)
{
    while (digits-- > 0) {
        text += "0123456789abcdef"[(value >> (4 * digits)) & 15U];
    }
}

std::uint8_t AnsiByte(char32_t character) noexcept
{
    if (character < 0x80 || (character >= 0xA0 && character < 0x100)) {
        return static_cast<std::uint8_t>(character);
    }
    const auto* found = std::find(highControls.begin(), highControls.end(), character);
    return found == highControls.end() ? std::uint8_t{'?'}
                                       : static_cast<std::uint8_t>(0x80 + (found - highControls.begin()));
}

char32_t Folded(char32_t character) noexcept
{
    if (character < 0x80) {
        return character >= 'A' && character <= 'Z' ? character + 32 : character;
    }
    if (character >= 0xC0 && character <= 0xDE && character != 0xD7) {
        return character + 32;
    }
    switch (character) {
    case 0x0160:
    case 0x0152:
    case 0x017D:
        return character + 1;
    case 0x0178:
        return 0xFF;
    default:
        return character;
    }
}

template <class Number> std::string ShortestDecimal(Number number)
{
    char buffer[400];
    const auto end = std::to_chars(std::begin(buffer), std::end(buffer), number, std::chars_format::fixed).ptr;
    std::string text(buffer, end);
    return text == "-0" ? "0" : text;
}

} // namespace

char16_t FromAnsi(std::uint8_t byte) noexcept
{
    return byte >= 0x80 && byte < 0xA0 ? highControls[byte - 0x80U] : byte;
}

std::string FromAnsi(std::span<const std::uint8_t> bytes)
{
    if (std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte < 0x80; })) {
        return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
    }
    std::string text;
    text.reserve(bytes.size() * 2);
    for (const std::uint8_t byte : bytes) {
        AppendUtf8(text, FromAnsi(byte));
    }
    return text;
}

std::uint8_t* WriteAnsi(std::uint8_t* to, std::string_view text) noexcept
{
    while (!text.empty()) {
        *to++ = AnsiByte(Next(text));
    }
    return to;
}

void AppendAnsi(std::vector<std::uint8_t>& bytes, std::string_view text)
{
    const std::size_t start = bytes.size();
    bytes.resize(start + text.size());
    bytes.resize(static_cast<std::size_t>(WriteAnsi(bytes.data() + start, text) - bytes.data()));
}

std::string CharactersBeyondAnsi(std::string_view text)
{
    std::string beyond;
    while (!text.empty()) {
        const std::string_view from = text;
        const char32_t character = Next(text);
        const std::string_view bytes = from.substr(0, from.size() - text.size());
        if (character != '?' && AnsiByte(character) == '?' && beyond.find(bytes) == std::string::npos) {
            beyond += bytes;
        }
    }
    return beyond;
}

bool SameText(std::string_view left, std::string_view right) noexcept
{
    if (left == right) {
        return true;
    }
    while (!left.empty() && !right.empty()) {
        if (left.front() == right.front() && static_cast<unsigned char>(left.front()) < 0x80) {
            left.remove_prefix(1);
            right.remove_prefix(1);
        } else if (Folded(Next(left)) != Folded(Next(right))) {
            return false;
        }
    }
    return left.empty() && right.empty();
}

std::size_t FoldedHash(std::string_view text) noexcept
{
    std::size_t hash = 14695981039346656037U;
    while (!text.empty()) {
        hash = (hash ^ Folded(Next(text))) * 1099511628211U;
    }
    return hash ^ (hash >> 32U);
}

std::size_t CharacterCount(std::string_view text) noexcept
{
    std::size_t count = 0;
    while (!text.empty()) {
        Next(text);
        ++count;
    }
    return count;
}

std::string FitField(std::string_view text, std::size_t width)
{
    std::string_view rest = text;
    std::size_t count = 0;
    for (; count < width && !rest.empty(); ++count) {
        Next(rest);
    }
    std::string field(text.substr(0, text.size() - rest.size()));
    field.append(width - count, ' ');
    return field;
}

std::string_view TrimBlanks(std::string_view text) noexcept
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string Escaped(std::string_view text)
{
    std::string escaped;
    while (!text.empty()) {
        const std::string_view before = text;
        const char32_t character = Next(text);
        if (IsHarmless(character)) {
            escaped += before.substr(0, before.size() - text.size());
        } else if (character < 0x80 || character == noCharacter) {
            escaped += "\\x";
            AppendHex(escaped, static_cast<unsigned char>(before.front()), 2);
        } else {
            escaped += "\\u";
            AppendHex(escaped, character, 4);
        }
    }
    return escaped;
}

std::string Decimal(double number)
{
    return ShortestDecimal(number);
}

std::string Decimal(float number)
{
    return ShortestDecimal(number);
}

} // namespace quor
