#pragma once
// The lines of one event, put into the order of the elements that they are about. Those of one element keep their
// order, its click action first.

#include "tests/journey_driver/output.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace quor {

class RaisedLines {
public:
    // What is told from now on follows from this source of the element.
    void Begin(std::size_t element, bool isAction) { m_place = {element, isAction ? 0 : 1}; }

    void Add(std::size_t element, std::string line)
    {
        const Place place = m_place.first == element ? m_place : Place{element, 1};
        m_lines.emplace_back(place, std::move(line));
    }

    void Print(Output& out)
    {
        std::stable_sort(m_lines.begin(), m_lines.end(),
                         [](const auto& left, const auto& right) { return left.first < right.first; });
        for (auto& [place, line] : m_lines) {
            out.Line(std::move(line));
        }
    }

private:
    using Place = std::pair<std::size_t, int>;

    Place m_place;
    std::vector<std::pair<Place, std::string>> m_lines;
};

} // namespace quor
