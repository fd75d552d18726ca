#include "servers/simulator/json_pull.h"

#include "base/failure.h"

#include <algorithm>
#include <charconv>
#include <set>

namespace quor {

namespace {

constexpr int deepest = 32;
constexpr std::string_view blanks = " \t\r\n";

void AppendCharacter(std::string& text, unsigned code)
{
    if (code < 0x80) {
        text += static_cast<char>(code);
        return;
    }
    int bytes = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3; // behind the first
    constexpr unsigned firsts[] = {0, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(firsts[bytes] | (code >> (bytes * 6)));
    while (bytes-- > 0) {
        text += static_cast<char>(0x80 | ((code >> (bytes * 6)) & 0x3F));
    }
}

} // namespace

JsonPull::JsonPull(std::string_view text) : m_text(text)
{
    if (m_text.starts_with("\xEF\xBB\xBF")) {
        m_at = 3;
    }
}

void JsonPull::Refuse(const std::string& words) const
{
    const auto end = m_text.begin() + static_cast<std::ptrdiff_t>(std::min(m_at, m_text.size()));
    const auto line = std::count(m_text.begin(), end, '\n') + 1;
    throw Failure(failures::typeMismatch, "Line " + std::to_string(line) + ": " + words);
}

void JsonPull::SkipBlanks()
{
    m_at = std::min(m_text.find_first_not_of(blanks, m_at), m_text.size());
}

char JsonPull::Ahead()
{
    SkipBlanks();
    if (m_at == m_text.size()) {
        Refuse("the file ends in the middle.");
    }
    return m_text[m_at];
}

bool JsonPull::TakeIf(char letter)
{
    if (Ahead() != letter) {
        return false;
    }
    ++m_at;
    return true;
}

void JsonPull::Take(char letter)
{
    if (!TakeIf(letter)) {
        Refuse(std::string("there is no ") + letter + " where one is wanted.");
    }
}

bool JsonPull::TakeWord(std::string_view word)
{
    SkipBlanks();
    if (!m_text.substr(m_at).starts_with(word)) {
        return false;
    }
    m_at += word.size();
    return true;
}

void JsonPull::Enter()
{
    if (++m_depth > deepest) {
        Refuse("too many brackets within each other.");
    }
}

void JsonPull::Object(const std::function<void(const std::string& key)>& member)
{
    Take('{');
    Enter();
    std::set<std::string> keys;
    if (!TakeIf('}')) {
        do {
            const std::string key = Text();
            if (!keys.insert(key).second) {
                Refuse("\"" + key + "\" is there twice.");
            }
            Take(':');
            member(key);
        } while (TakeIf(','));
        Take('}');
    }
    --m_depth;
}

void JsonPull::Array(const std::function<void()>& item)
{
    Take('[');
    Enter();
    if (!TakeIf(']')) {
        do {
            item();
        } while (TakeIf(','));
        Take(']');
    }
    --m_depth;
}

std::string JsonPull::Text()
{
    if (Ahead() != '"') {
        Refuse("a text in quotes is wanted.");
    }
    ++m_at;
    std::string text;
    for (;;) {
        if (m_at == m_text.size() || static_cast<unsigned char>(m_text[m_at]) < ' ') {
            Refuse("the text has no end.");
        }
        const char letter = m_text[m_at++];
        if (letter == '"') {
            return text;
        }
        if (letter == '\\') {
            AppendEscape(text);
        } else {
            text += letter;
        }
    }
}

void JsonPull::AppendEscape(std::string& text)
{
    constexpr std::string_view letters = "\"\\/bfnrt";
    constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
    const char letter = m_at < m_text.size() ? m_text[m_at++] : '\0';
    if (const std::size_t found = letters.find(letter); found != std::string_view::npos) {
        text += meanings[found];
        return;
    }
    if (letter != 'u') {
        Refuse("unknown escape in a text.");
    }
    unsigned code = CodeUnit();
    if (code >= 0xD800 && code < 0xDC00 && m_text.substr(m_at).starts_with("\\u")) {
        m_at += 2;
        const unsigned low = CodeUnit();
        code = low >= 0xDC00 && low < 0xE000 ? 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00) : 0xD800;
    }
    if (code >= 0xD800 && code < 0xE000) {
        Refuse("half a character in a text.");
    }
    AppendCharacter(text, code);
}

unsigned JsonPull::CodeUnit()
{
    unsigned unit = 0;
    const std::string_view digits = m_text.substr(m_at, 4);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), unit, 16);
    if (digits.size() != 4 || error != std::errc() || end != digits.data() + 4) {
        Refuse("four hexadecimal digits are wanted behind \\u.");
    }
    m_at += 4;
    return unit;
}

double JsonPull::Number()
{
    const char first = Ahead();
    double number = 0;
    const char* begin = m_text.data() + m_at;
    const auto [end, error] = std::from_chars(begin, m_text.data() + m_text.size(), number);
    if ((first != '-' && (first < '0' || first > '9')) || error != std::errc()) {
        Refuse("a number is wanted.");
    }
    m_at += static_cast<std::size_t>(end - begin);
    return number;
}

bool JsonPull::Flag()
{
    const bool flag = TakeWord("true");
    if (!flag && !TakeWord("false")) {
        Refuse("true or false is wanted.");
    }
    return flag;
}

void JsonPull::Skip()
{
    switch (Ahead()) {
    case '{':
        return Object([this](const std::string&) { Skip(); });
    case '[':
        return Array([this] { Skip(); });
    case '"':
        Text();
        return;
    case 't':
    case 'f':
        Flag();
        return;
    case 'n':
        if (!TakeWord("null")) {
            Refuse("a value is wanted.");
        }
        return;
    default:
        Number();
        return;
    }
}

void JsonPull::Finish()
{
    SkipBlanks();
    if (m_at != m_text.size()) {
        Refuse("something stands behind the end.");
    }
}

} // namespace quor
