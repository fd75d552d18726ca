// One element among few and among many: found by name, inserted, deleted.

#include "bench/cases.h"
#include "bench/rows.h"
#include "bench/world.h"

#include <algorithm>
#include <random>

namespace quor::bench {

namespace {

constexpr std::int64_t sampleSize = 500;

// So many names, evenly spread over the view and in a mixed order.
std::vector<std::string> SomeNames(std::int64_t count)
{
    std::vector<std::string> names;
    for (std::int64_t index = 0; index < sampleSize; ++index) {
        names.push_back(NameOf(index * count / sampleSize + 1));
    }
    std::shuffle(names.begin(), names.end(), std::mt19937(1));
    return names;
}

void Lookup(benchmark::State& state)
{
    FakeFiles files;
    World world(files);
    AddLeds(world.View(), state.range(0));
    Collection& leds = LedsOf(world.View());
    const std::vector<std::string> names = SomeNames(state.range(0));
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(&leds.Item(names[next]));
        next = next + 1 == names.size() ? 0 : next + 1;
    }
}

// Elements with default names, as the toolbox inserts them, and away again; the insertions count.
void Insert(benchmark::State& state)
{
    FakeFiles files;
    World world(files);
    AddLeds(world.View(), state.range(0));
    Collection& leds = LedsOf(world.View());
    std::vector<std::string> names(sampleSize);
    for (auto _ : state) {
        const double start = ProcessorTime();
        for (std::string& name : names) {
            name = leds.Add(0, 0, "", true).ObjName();
        }
        state.SetIterationTime(ProcessorTime() - start);
        for (const std::string& name : names) {
            leds.Remove(name);
        }
    }
}

// Elements from all over the view, and back again; the deletions count.
void Delete(benchmark::State& state)
{
    FakeFiles files;
    World world(files);
    AddLeds(world.View(), state.range(0));
    Collection& leds = LedsOf(world.View());
    const std::vector<std::string> names = SomeNames(state.range(0));
    for (auto _ : state) {
        const double start = ProcessorTime();
        for (const std::string& name : names) {
            leds.Remove(name);
        }
        state.SetIterationTime(ProcessorTime() - start);
        for (const std::string& name : names) {
            leds.Add(0, 0, name, true);
        }
    }
}

void Register(Results&)
{
    for (const std::int64_t size : memorySizes) {
        benchmark::RegisterBenchmark("lookup by name", Lookup)->Arg(size);
        benchmark::RegisterBenchmark("insert", Insert)->Arg(size)->UseManualTime();
        benchmark::RegisterBenchmark("delete", Delete)->Arg(size)->UseManualTime();
    }
}

void AddRows(const Results& results, std::vector<Row>& rows)
{
    const double mostTimes = 3;
    rows.push_back(Grown(results, "lookup by name", 1, mostTimes));
    rows.push_back(Grown(results, "insert", sampleSize, mostTimes));
    rows.push_back(Grown(results, "delete", sampleSize, mostTimes));
}

} // namespace

const Family editing{"edit", Register, AddRows};

} // namespace quor::bench
