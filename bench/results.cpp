#include "bench/results.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace quor::bench {

bool Results::ReportContext(const Context&)
{
    return true;
}

void Results::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Iteration && !run.error_occurred && run.iterations > 0) {
            // The processor's time alone, unless a benchmark asks for another.
            const double time = run.run_name.time_type.empty() ? run.cpu_accumulated_time : run.real_accumulated_time;
            Take(run.run_name.function_name + "/" + run.run_name.args, time / static_cast<double>(run.iterations));
        }
    }
}

double Results::Seconds(const std::string& name) const
{
    std::vector<double> seconds = m_seconds.at(name);
    const auto middle = seconds.begin() + static_cast<std::ptrdiff_t>(seconds.size() / 2);
    std::nth_element(seconds.begin(), middle, seconds.end());
    return *middle;
}

double ProcessorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

std::string Duration(double seconds)
{
    struct Unit {
        double scale;
        const char* name;
    };
    static constexpr Unit units[] = {{1, "s"}, {1e-3, "ms"}, {1e-6, "us"}, {1e-9, "ns"}};
    const Unit* unit = units;
    while (unit->scale > seconds && unit != std::end(units) - 1) {
        ++unit;
    }
    char text[32];
    std::snprintf(text, sizeof text, "%.3g %s", seconds / unit->scale, unit->name);
    return text;
}

void PrintRows(const std::vector<Row>& rows)
{
    std::printf("%-34s %7s %10s  %-34s %8s  %-8s\n", "case", "size", "figure", "beside", "ratio", "to reach");
    for (const Row& row : rows) {
        std::printf("%-34s %7s %10s  %-34s %8.3g  %s %-6.3g %s\n", row.name.c_str(), row.size.c_str(),
                    row.figure.c_str(), row.beside.c_str(), row.ratio, row.isAtLeast ? ">=" : "<=", row.limit,
                    row.Holds() ? "holds" : "falls short");
    }
}

} // namespace quor::bench
