#pragma once
// What a run of the benchmarks measured, and the table made of it.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace quor::bench {

// Collects the repetitions of each benchmark while they run.
class Results final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;

    bool Has(const std::string& name) const { return m_seconds.count(name) != 0; }
    // Seconds a run, the median of the repetitions.
    double Seconds(const std::string& name) const;
    // For figures that Google Benchmark doesn't take: start-up times, sizes in memory.
    void Take(const std::string& name, double figure) { m_seconds[name].push_back(figure); }

private:
    std::map<std::string, std::vector<double>> m_seconds;
};

// A line of the table: the ratio of the figure to what is measured beside it, and the ratio to reach.
struct Row {
    std::string name;
    std::string size;
    std::string figure;
    std::string beside;
    double ratio = 0;
    double limit = 0;
    bool isAtLeast = false; // the ratio has to reach the limit; otherwise it must not pass it

    bool Holds() const { return isAtLeast ? ratio >= limit : ratio <= limit; }
};

void PrintRows(const std::vector<Row>& rows);

// Seconds that this thread has had of a processor: a busy machine shows less than on a clock.
double ProcessorTime();

// "0.41 us", "1.2 ms": three digits and the unit that fits.
std::string Duration(double seconds);

} // namespace quor::bench
