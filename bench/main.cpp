// quor-view-bench [WORD]: measures the families of cases (load, save, edit, live, values, start, panel, frames, paint),
// or the one that is named, and prints the table. Ends with 1 if a case falls short.

#include "bench/cases.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace {

using namespace quor::bench;

void RunBenchmarks(Results& results)
{
    // Repetitions of all cases in a mixed order: a busy moment of the machine doesn't hit one case alone.
    std::string arguments[] = {"quor-view-bench", "--benchmark_enable_random_interleaving=true",
                               "--benchmark_repetitions=9", "--benchmark_min_time=0.03"};
    char* pointers[std::size(arguments)];
    std::transform(std::begin(arguments), std::end(arguments), std::begin(pointers),
                   [](std::string& argument) { return argument.data(); });
    int count = std::size(pointers);
    benchmark::Initialize(&count, pointers);
    benchmark::RunSpecifiedBenchmarks(&results);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const std::string_view word = argc > 1 ? argv[1] : "";

    Results results;
    std::vector<const Family*> chosen;
    for (const Family* family :
         {&loading, &saving, &editing, &binding, &values, &starting, &panel, &frames, &painting}) {
        if (word.empty() || word == family->name) {
            family->prepare(results);
            chosen.push_back(family);
        }
    }
    if (chosen.empty()) {
        std::fprintf(
            stderr,
            "There is no family of this name; there are load, save, edit, live, values, start, panel, frames and "
            "paint.\n");
        return 2;
    }
    if (chosen.front() != &starting) { // which has measured itself
        RunBenchmarks(results);
    }
    std::vector<Row> rows;
    for (const Family* family : chosen) {
        family->addRows(results, rows);
    }
    PrintRows(rows);
    return std::all_of(rows.begin(), rows.end(), [](const Row& row) { return row.Holds(); }) ? 0 : 1;
}
