// One event of the server among many sources, and the sources themselves: made, bound to something else, ended.

#include "bench/cases.h"
#include "bench/rows.h"
#include "binding/bln_data_source.h"
#include "binding/live.h"
#include "tests/support/fake_server.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace quor::bench {

namespace {

constexpr std::int64_t sites = 100;
constexpr std::int64_t units = 8;
constexpr std::int64_t manySources = 10'000;
constexpr std::int64_t fewSources = 1'000;

const std::string valuesEvent = "values to one unit";
const std::string valuesEventAlone = "values to the same alone";
const std::string qtSignal = "Qt signal, each compares";

std::string SiteName(std::int64_t index)
{
    return "Site " + std::to_string(index % sites);
}

class Owner final : public BlnOwner {
public:
    std::int64_t updates = 0;

    void m_BlnDataSource_UpdateBlnData(bool /*value*/, bool /*mute*/) override { ++updates; }
};

class World {
public:
    World() { live.Server = &server; }

    std::unique_ptr<clsBlnDataSource> Make(std::int64_t index)
    {
        auto source = std::make_unique<clsBlnDataSource>(live, owner);
        source->Set(&clsBlnDataSource::BlnDataType, watch::statusOn);
        source->Set(&clsBlnDataSource::Channel, 1);
        Bind(*source, index);
        return source;
    }

    // Spread over all units.
    static void Bind(clsBlnDataSource& source, std::int64_t index)
    {
        source.Set(&clsBlnDataSource::Site, SiteName(index));
        source.Set(&clsBlnDataSource::Unit, static_cast<std::uint8_t>(index / sites % units));
    }

    void Fill(std::int64_t count)
    {
        for (std::int64_t index = 0; index < count; ++index) {
            sources.push_back(Make(index));
        }
    }

    FakeServer server;
    Live live;
    Owner owner;
    std::vector<std::unique_ptr<clsBlnDataSource>> sources;
};

ValuesEvent EventOf(const std::string& site)
{
    return {site, 0, 0, 1, 0, 0, 0, ServerArray<float>(std::vector<float>(16))};
}

void RaiseValues(benchmark::State& state, World& world)
{
    const ValuesEvent event = EventOf(SiteName(0));
    for (auto _ : state) {
        world.server.Values.Raise(event);
    }
    state.counters["receivers"] =
        static_cast<double>(world.owner.updates) / static_cast<double>(std::max<std::int64_t>(1, state.iterations()));
}

void ValuesAmongMany(benchmark::State& state)
{
    World world;
    world.Fill(state.range(0));
    RaiseValues(state, world);
}

// As many receivers, and no other source.
void ValuesAlone(benchmark::State& state)
{
    World world;
    for (std::int64_t index = 0; index < state.range(0); index += sites * units) {
        world.sources.push_back(world.Make(0));
    }
    RaiseValues(state, world);
}

void QtSignal(benchmark::State& state)
{
    QWidget sender;
    std::vector<std::unique_ptr<QObject>> receivers;
    std::int64_t hits = 0;
    for (std::int64_t index = 0; index < state.range(0); ++index) {
        receivers.push_back(std::make_unique<QObject>());
        QObject::connect(&sender, &QWidget::windowTitleChanged, receivers.back().get(),
                         [&hits, own = QString::fromStdString(SiteName(index))](const QString& site) {
                             hits += site == own ? 1 : 0;
                         });
    }
    const QString site = QString::fromStdString(SiteName(0));
    for (auto _ : state) {
        Q_EMIT sender.windowTitleChanged(site);
    }
    benchmark::DoNotOptimize(hits);
}

// Each of these counts one of three steps.
template <class Step> void Time(benchmark::State& state, const Step& step)
{
    World world;
    for (auto _ : state) {
        state.SetIterationTime(step(world, state.range(0)));
        world.sources.clear();
    }
}

double Took(const std::function<void()>& work)
{
    const double start = ProcessorTime();
    work();
    return ProcessorTime() - start;
}

void Build(benchmark::State& state)
{
    Time(state, [](World& world, std::int64_t count) { return Took([&] { world.Fill(count); }); });
}

void Rebind(benchmark::State& state)
{
    Time(state, [](World& world, std::int64_t count) {
        world.Fill(count);
        return Took([&] {
            std::int64_t index = 7;
            for (const auto& source : world.sources) {
                World::Bind(*source, index += 13);
            }
        });
    });
}

void Destroy(benchmark::State& state)
{
    Time(state, [](World& world, std::int64_t count) {
        world.Fill(count);
        return Took([&] { world.sources.clear(); });
    });
}

const std::pair<std::string, void (*)(benchmark::State&)> steps[] = {
    {"build sources", Build}, {"rebind sources", Rebind}, {"destroy sources", Destroy}};

void Register(Results&)
{
    benchmark::RegisterBenchmark(valuesEvent.c_str(), ValuesAmongMany)->Arg(manySources);
    benchmark::RegisterBenchmark(valuesEventAlone.c_str(), ValuesAlone)->Arg(manySources);
    benchmark::RegisterBenchmark(qtSignal.c_str(), QtSignal)->Arg(manySources);
    for (const auto& [name, run] : steps) {
        for (const std::int64_t count : {fewSources, manySources}) {
            benchmark::RegisterBenchmark(name.c_str(), run)->Arg(count)->UseManualTime();
        }
    }
}

// What one costs among many against one among few. Twice as much is what the processor's caches may make of it.
Row PerSource(const Results& results, const std::string& name)
{
    const double mostTimes = 2;
    const auto one = [&](std::int64_t count) {
        return results.Seconds(Sized(name, count)) / static_cast<double>(count);
    };
    return {name + ", each",
            std::to_string(manySources),
            Duration(one(manySources)),
            Duration(one(fewSources)) + " among " + std::to_string(fewSources),
            one(manySources) / one(fewSources),
            mostTimes};
}

void AddRows(const Results& results, std::vector<Row>& rows)
{
    const double timesCheaper = 500;
    const double eventAllowed = 200e-9;
    const double receiverAllowed = 30e-9;
    const double mostTimesAlone = 2;
    const double sourceAllowed = 1e-6;
    const auto receivers = (manySources + sites * units - 1) / (sites * units);
    rows.push_back(FasterThan(results, valuesEvent, manySources, qtSignal, timesCheaper));
    rows.push_back(
        Within(results, valuesEvent, manySources, eventAllowed + receiverAllowed * static_cast<double>(receivers)));
    rows.push_back(NotOver(results, valuesEvent, manySources, valuesEventAlone, mostTimesAlone));
    for (const auto& [name, run] : steps) {
        rows.push_back(Within(results, name, manySources, sourceAllowed * static_cast<double>(manySources)));
        rows.push_back(PerSource(results, name));
    }
}

} // namespace

const Family binding{"live", Register, AddRows};

} // namespace quor::bench
