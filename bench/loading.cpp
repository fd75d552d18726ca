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

void Prepare(FakeFiles& files, std::int64_t leds)
{
    World world(files);
    AddLeds(world.View(), leds);
    world.View().SaveFile(path);
}

void LoadView(benchmark::State& state)
{
    FakeFiles files;
    Prepare(files, state.range(0));
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

void MeasureMemory(Results& results)
{
    FakeFiles files;
    Prepare(files, largestFile);
    World world(files);
    const std::size_t before = BytesInUse();
    world.View().LoadFile(path);
    results.Take("bytes of a view", static_cast<double>(BytesInUse() - before));
}

void Register(Results& results)
{
    for (const std::int64_t size : fileSizes) {
        benchmark::RegisterBenchmark("load", LoadView)->Arg(size);
        benchmark::RegisterBenchmark("QUiLoader", LoadQtForm)->Arg(size);
    }
    MeasureMemory(results);
}

void AddRows(const Results& results, std::vector<Row>& rows)
{
    const double mostSeconds = 0.6e-6;
    const double mostBytes = 1024;
    const double leastLead = 20;
    for (const std::int64_t size : fileSizes) {
        rows.push_back(FasterThan(results, "load", size, "QUiLoader", leastLead));
    }
    for (const std::int64_t size : fileSizes) {
        const double seconds = results.Seconds(Sized("load", size)) / static_cast<double>(size);
        rows.push_back({"load, an element", std::to_string(size), Duration(seconds), Duration(mostSeconds) + " at most",
                        seconds / mostSeconds, 1});
    }
    rows.push_back(Exponent(results, "load", fileSizes));
    const double bytes = results.Seconds("bytes of a view") / static_cast<double>(largestFile);
    rows.push_back({"memory, an element", std::to_string(largestFile), Bytes(bytes), Bytes(mostBytes) + " at most",
                    bytes / mostBytes, 1});
}

} // namespace

const Family loading{"load", Register, AddRows};

} // namespace quor::bench
