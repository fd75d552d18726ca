#pragma once
// The lines that come out of a journey.

#include "tests/journey_driver/answers.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quor {

std::vector<std::string> SplitLines(std::string_view text);

class Output {
public:
    // Called with each line as it comes; may be none.
    std::function<void(const std::string&)> onLine;

    void Line(std::string line);

    // A bare text, as the lines that it has.
    void Text(const std::string& text);

    // The lines since the last time.
    std::vector<AnswerLine> Take() { return std::exchange(m_pending, {}); }

    // Nothing that comes from now on counts.
    void End() { m_isOver = true; }

private:
    void Add(AnswerLine line);

    std::vector<AnswerLine> m_pending;
    bool m_isOver = false;
};

} // namespace quor
