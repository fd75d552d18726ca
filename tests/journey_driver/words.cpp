#include "tests/journey_driver/words.h"

#include <algorithm>

namespace quor {

namespace {

// Of a usage or a choice, and takes it off.
std::string_view NextPart(std::string_view& text, char end)
{
    const std::string_view part = text.substr(0, text.find(end));
    text.remove_prefix(std::min(part.size() + 1, text.size()));
    return part;
}

bool FitsSlot(std::string_view slot, const Word& word)
{
    bool fits = std::ranges::none_of(slot, [](char letter) { return letter >= 'a' && letter <= 'z'; });
    while (!fits && !slot.empty()) {
        fits = NextPart(slot, '|') == word.text;
    }
    return fits;
}

} // namespace

bool FitsUsage(std::string_view usage, std::span<const Word> words)
{
    if (words.front().isQuoted) {
        return false;
    }
    while (!usage.empty()) {
        std::string_view slot = NextPart(usage, ' ');
        const bool isOptional = slot.starts_with('[');
        slot = isOptional ? slot.substr(1, slot.size() - 2) : slot;
        const bool repeats = slot.ends_with("...");
        slot.remove_suffix(repeats ? 3 : 0);
        if (words.empty()) {
            return isOptional;
        }
        do {
            if (!FitsSlot(slot, words.front())) {
                return false;
            }
            words = words.subspan(1);
        } while (repeats && !words.empty());
    }
    return words.empty();
}

void TellFont(std::string_view name, const Font& font, const NamedValue& tell)
{
    constexpr double sizeUnits = 10'000; // in a point
    const auto attribute = [&](std::string_view of, const auto& value) {
        tell(std::string(name) + '.' + std::string(of), ValueText(value));
    };
    attribute("Bold", font.Bold());
    attribute("Charset", font.Charset);
    attribute("Italic", font.Italic);
    attribute("Name", font.Name);
    attribute("Size", static_cast<double>(font.Size) / sizeUnits);
    attribute("Strikethrough", font.Strikethrough);
    attribute("Underline", font.Underline);
    attribute("Weight", font.Weight());
}

} // namespace quor
