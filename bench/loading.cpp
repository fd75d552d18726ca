// Loading: from bytes in memory to elements and widget models, beside Qt's own loader of forms.

#include "bench/cases.h"
#include "bench/floors.h"
#include "bench/rows.h"
#include "bench/world.h"

#include <QWidget>

#include <malloc.h>

namespace quor::bench {

namespace {

const std::string path = "/view.qvw";

// How a view is filled.
using Fill = void (*)(clsCustView& view, std::int64_t count);

constexpr std::int64_t mixedSize = 3'000;

void Prepare(FakeFiles& files, Fill fill, std::int64_t count)
{
    World world(files);
    fill(world.View(), count);
    world.View().SaveFile(path);
}

void LoadView(benchmark::State& state, Fill fill)
{
    FakeFiles files;
    Prepare(files, fill, state.range(0));
    World world(files);
    for (auto _ : state) {
        MustHold(world.View().LoadFile(path), "The view can't be loaded.");
        state.PauseTiming();
        world.Renew();
        state.ResumeTiming();
    }
}

void LoadQtForm(benchmark::State& state)
{
    const std::string form = CheckBoxForm(state.range(0));
    for (auto _ : state) {
        auto widgets = LoadForm(form);
        state.PauseTiming();
        widgets.reset();
        state.ResumeTiming();
    }
}

std::size_t BytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

// What a view takes, in bytes an element.
double MeasureMemory(Fill fill, std::int64_t count)
{
    FakeFiles files;
    Prepare(files, fill, count);
    World world(files);
    const std::size_t before = BytesInUse();
    world.View().LoadFile(path);
    return static_cast<double>(BytesInUse() - before) / static_cast<double>(count);
}

void Register(Results& results)
{
    for (const std::int64_t size : fileSizes) {
        benchmark::RegisterBenchmark("load", LoadView, AddLeds)->Arg(size);
        benchmark::RegisterBenchmark("QUiLoader", LoadQtForm)->Arg(size);
    }
    benchmark::RegisterBenchmark("load, mixed", LoadView, AddMixed)->Arg(mixedSize);
    benchmark::RegisterBenchmark("QUiLoader", LoadQtForm)->Arg(mixedSize);
    results.Take("bytes of an LED", MeasureMemory(AddLeds, largestFile));
    results.Take("bytes of a mixed element", MeasureMemory(AddMixed, mixedSize));
}

Row TimeAnElement(const Results& results, const std::string& name, std::int64_t size, double most)
{
    const double seconds = results.Seconds(Sized(name, size)) / static_cast<double>(size);
    return {name + ", an element",       std::to_string(size), Duration(seconds),
            Duration(most) + " at most", seconds / most,       1};
}

Row MemoryOfAnElement(const Results& results, const std::string& what, std::int64_t size, double most)
{
    const double bytes = results.Seconds("bytes of " + what);
    return {"memory of " + what, std::to_string(size), Bytes(bytes), Bytes(most) + " at most", bytes / most, 1};
}

void AddRows(const Results& results, std::vector<Row>& rows)
{
    const double mostSeconds = 0.6e-6;
    const double mostSecondsMixed = 1e-6;
    const double mostBytes = 1024;
    const double mostBytesMixed = 1.2 * 1024;
    const double leastLead = 20;
    const double leastLeadMixed = 12;
    for (const std::int64_t size : fileSizes) {
        rows.push_back(FasterThan(results, "load", size, "QUiLoader", leastLead));
    }
    rows.push_back(FasterThan(results, "load, mixed", mixedSize, "QUiLoader", leastLeadMixed));
    for (const std::int64_t size : fileSizes) {
        rows.push_back(TimeAnElement(results, "load", size, mostSeconds));
    }
    rows.push_back(TimeAnElement(results, "load, mixed", mixedSize, mostSecondsMixed));
    rows.push_back(Exponent(results, "load", fileSizes));
    rows.push_back(MemoryOfAnElement(results, "an LED", largestFile, mostBytes));
    rows.push_back(MemoryOfAnElement(results, "a mixed element", mixedSize, mostBytesMixed));
}

} // namespace

const Family loading{"load", Register, AddRows};

} // namespace quor::bench
