#include "tests/journey_driver/arguments.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace quor {

namespace {

struct Slot {
    std::string_view word; // a name in capitals, or words with strokes between them
    bool isOptional = false;
    bool repeats = false;
};

Slot ReadSlot(std::string_view text)
{
    Slot slot{text};
    if (slot.word.starts_with('[')) {
        slot.isOptional = true;
        slot.word = slot.word.substr(1, slot.word.size() - 2);
    }
    if (slot.word.ends_with("...")) {
        slot.repeats = true;
        slot.word.remove_suffix(3);
    }
    return slot;
}

std::vector<Slot> ReadShape(std::string_view shape)
{
    std::vector<Slot> slots;
    while (!shape.empty()) {
        const std::size_t end = std::min(shape.find(' '), shape.size());
        slots.push_back(ReadSlot(shape.substr(0, end)));
        shape.remove_prefix(std::min(end + 1, shape.size()));
    }
    return slots;
}

bool IsName(std::string_view word)
{
    return std::none_of(word.begin(), word.end(), [](char letter) { return letter >= 'a' && letter <= 'z'; });
}

template <class T> bool Reads(std::string_view text, T& value)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size();
}

bool IsOneOf(std::string_view choices, std::string_view word)
{
    while (!choices.empty()) {
        const std::size_t end = std::min(choices.find('|'), choices.size());
        if (choices.substr(0, end) == word) {
            return true;
        }
        choices.remove_prefix(std::min(end + 1, choices.size()));
    }
    return false;
}

bool Fits(const Slot& slot, const std::string& word)
{
    constexpr std::string_view integers[] = {"N", "MS", "CODE", "NUMBER", "RIGHT"};
    constexpr std::string_view numbers[] = {"X", "Y", "DX", "DY", "SIZE"};
    if (!IsName(slot.word)) {
        return IsOneOf(slot.word, word);
    }
    if (std::ranges::find(integers, slot.word) != std::end(integers)) {
        std::int32_t value = 0;
        return Reads(word, value);
    }
    double value = 0;
    return std::ranges::find(numbers, slot.word) == std::end(numbers) || Reads(word, value);
}

bool Fit(const std::vector<Slot>& slots, std::span<const Word> words)
{
    std::size_t at = 0;
    for (const Slot& slot : slots) {
        if (at == words.size()) {
            return slot.isOptional;
        }
        do {
            if (!Fits(slot, words[at].text)) {
                return false;
            }
            ++at;
        } while (slot.repeats && at < words.size());
    }
    return at == words.size();
}

} // namespace

void Arguments::Check(std::string_view step, std::string_view shape) const
{
    if (!Fit(ReadShape(shape), m_words)) {
        throw JourneyError("wanted is: " + std::string(step) + ' ' + std::string(shape));
    }
}

const std::string& Arguments::operator[](std::size_t index) const
{
    static const std::string none;
    return Has(index) ? m_words[index].text : none;
}

double Arguments::Number(std::size_t index) const
{
    return ToNumber((*this)[index]);
}

std::int32_t Arguments::Integer(std::size_t index) const
{
    return ToInteger((*this)[index]);
}

double ToNumber(std::string_view text)
{
    double value = 0;
    if (!Reads(text, value)) {
        throw JourneyError("no number: " + std::string(text));
    }
    return value;
}

std::int32_t ToInteger(std::string_view text)
{
    std::int32_t value = 0;
    if (!Reads(text, value)) {
        throw JourneyError("no whole number: " + std::string(text));
    }
    return value;
}

bool ToBoolean(std::string_view text)
{
    if (text != "true" && text != "false") {
        throw JourneyError("neither true nor false: " + std::string(text));
    }
    return text == "true";
}

} // namespace quor
