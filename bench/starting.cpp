// The start of the editor, from the start of its process to its painted main window, beside an empty main window.

#include "bench/cases.h"
#include "bench/rows.h"
#include "bench/startup/startup.h"

namespace quor::bench {

namespace {

void Measure(Results& results)
{
    constexpr int starts = 15;
    for (int start = 0; start < starts; ++start) {
        results.Take("empty window", SecondsToPaint(QUOR_PROGRAMS "/quor-empty-window"));
        results.Take("editor", SecondsToPaint(QUOR_PROGRAMS "/quor-view-editor"));
    }
}

void AddRows(const Results& results, std::vector<Row>& rows)
{
    const double splash = 0.1;
    const double mostAbove = 0.06;
    const double empty = results.Seconds("empty window");
    const double above = results.Seconds("editor") - splash - empty;
    rows.push_back({"start, above an empty window", "", Duration(above),
                    Duration(empty) + " empty, " + Duration(mostAbove) + " above it", above / mostAbove, 1});
}

} // namespace

const Family starting{"start", Measure, AddRows};

} // namespace quor::bench
