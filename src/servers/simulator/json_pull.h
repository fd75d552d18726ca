#pragma once
// Reads JSON value by value, in the order in which it stands there. Whatever doesn't fit fails with 13 and words that
// name the line.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace quor {

class JsonPull {
public:
    // The text outlives the reader.
    explicit JsonPull(std::string_view text);

    // Calls with each key; the function takes the value. A key that is there twice doesn't fit.
    void Object(const std::function<void(const std::string& key)>& member);
    // Calls at each item; the function takes it.
    void Array(const std::function<void()>& item);
    std::string Text();
    double Number();
    bool Flag();
    void Skip(); // a value of any kind
    void Finish();

    // Whether the next value is a text, and so on; told by its first character.
    char Ahead();

    // "Line 12: " and the words.
    [[noreturn]] void Refuse(const std::string& words) const;

private:
    void SkipBlanks();
    bool TakeIf(char letter);
    void Take(char letter);
    bool TakeWord(std::string_view word);
    void Enter();
    void AppendEscape(std::string& text);
    unsigned CodeUnit();

    std::string_view m_text;
    std::size_t m_at = 0;
    int m_depth = 0;
};

} // namespace quor
