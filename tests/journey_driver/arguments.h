#pragma once
// The words behind a step's first one, checked against the shape that the step's row tells.
//
// A shape is the usage as people read it: `WHERE X Y [left|right|middle]`. Words in capitals are names of arguments, of
// which some are numbers; others stand for themselves. What may be left out is in brackets, `...` repeats the word.

#include "tests/journey_driver/journey.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace quor {

class Arguments {
public:
    explicit Arguments(std::span<const Word> words) : m_words(words) {}

    // Fails with JourneyError, which tells the shape.
    void Check(std::string_view step, std::string_view shape) const;

    std::size_t Count() const noexcept { return m_words.size(); }
    bool Has(std::size_t index) const noexcept { return index < m_words.size(); }
    std::span<const Word> From(std::size_t index) const { return m_words.subspan(index); }

    // Empty where the word was left out.
    const std::string& operator[](std::size_t index) const;
    bool IsQuoted(std::size_t index) const { return m_words[index].isQuoted; }

    // Fail with JourneyError where the word is something else.
    double Number(std::size_t index) const;
    std::int32_t Integer(std::size_t index) const;

private:
    std::span<const Word> m_words;
};

// Fail with JourneyError where the text is something else.
double ToNumber(std::string_view text);
std::int32_t ToInteger(std::string_view text);
bool ToBoolean(std::string_view text); // true, false

} // namespace quor
