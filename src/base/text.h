#pragma once
// Text: UTF-8 in the program, windows-1252 in files.
//
// Bytes that windows-1252 leaves undefined are the control characters of the same value, so all 256 map one to one.

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace quor {

// The character of a byte.
char16_t FromAnsi(std::uint8_t byte) noexcept;

// The characters of a byte text as UTF-8.
std::string FromAnsi(std::span<const std::uint8_t> bytes);

// Writes the text's bytes, of which there are at most text.size(), and gives their end. A character outside the code
// page, or a byte that is no UTF-8, becomes '?'.
std::uint8_t* WriteAnsi(std::uint8_t* to, std::string_view text) noexcept;

// Appends the text's bytes as WriteAnsi does.
void AppendAnsi(std::vector<std::uint8_t>& bytes, std::string_view text);

// The characters of the text that windows-1252 lacks, each once.
std::string CharactersBeyondAnsi(std::string_view text);

// Equal regardless of the case of the letters of windows-1252.
bool SameText(std::string_view left, std::string_view right) noexcept;

// Equal for texts that are SameText.
std::size_t FoldedHash(std::string_view text) noexcept;

// How many characters.
std::size_t CharacterCount(std::string_view text) noexcept;

// Exactly `width` characters: cut at the right or filled with blanks.
std::string FitField(std::string_view text, std::size_t width);

// Without blanks on both ends.
std::string_view TrimBlanks(std::string_view text) noexcept;

// What is safe to show on one line: control characters, those that turn the direction of writing, and bytes that are no
// UTF-8 come as "\x1b" or "\u202e".
std::string Escaped(std::string_view text);

// The whole text as a number, for whole ones to that base; nothing for another text.
template <class Number, class... Base> std::optional<Number> ReadNumber(std::string_view text, Base... base)
{
    Number number{};
    const char* end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number, base...);
    return read.ec == std::errc() && read.ptr == end ? std::optional(number) : std::nullopt;
}

// The shortest decimal text that reads back as the number, never with an exponent: "12", "-0.5".
std::string Decimal(double number);
std::string Decimal(float number);

} // namespace quor
