#include "tests/journey_driver/output.h"

#include "tests/support/quoted.h"

#include <algorithm>

namespace quor {

std::vector<std::string> SplitLines(std::string_view text)
{
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        line.remove_suffix(line.ends_with('\r') ? 1 : 0);
        lines.emplace_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

void Output::Line(std::string line)
{
    Add({std::move(line), {}});
}

void Output::Text(const std::string& text)
{
    for (std::string& line : SplitLines(text)) {
        std::string quoted = Quoted(line);
        Add({std::move(line), std::move(quoted)});
    }
}

void Output::Add(AnswerLine line)
{
    if (m_isOver) {
        return;
    }
    if (onLine) {
        onLine(line.text);
    }
    m_pending.push_back(std::move(line));
}

} // namespace quor
