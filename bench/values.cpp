// A unit's values on their way from the server to the places of the canvas that must be painted anew, and what that
// allocates.

#include "bench/cases.h"
#include "bench/rows.h"
#include "bench/world.h"
#include "binding/bln_data_source.h"
#include "binding/mtr_data_source.h"
#include "document/kinds.h"
#include "document/view_document.h"
#include "elements/element.h"
#include "tests/support/fake_server.h"

#include <cstdlib>
#include <new>
#include <optional>

namespace {
std::uint64_t allocations = 0;
}

void* operator new(std::size_t size)
{
    ++allocations;
    if (void* memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

namespace quor::bench {

namespace {

constexpr std::int64_t instruments = 1'000;
const std::string road = "values to what shows them";
const std::string roadAllocates = "allocations on the way";

// Instruments of all kinds that show values, on the channels of one unit.
class LiveView {
public:
    LiveView()
    {
        m_desk.live.Server = &m_server;
        AddWidgetArrays(m_canvas);
        m_view.emplace(m_desk.PortsOfView(m_reporter), m_canvas);
        AddMixed(*m_view, instruments);
        std::uint8_t channel = 0;
        for (Element* element : m_view->CtlOrder()) {
            channel = static_cast<std::uint8_t>(channel % 16 + 1);
            if (clsMtrDataSource* meter = element->MeterSource()) {
                meter->Set(&clsMtrDataSource::Site, site);
                meter->Set(&clsMtrDataSource::Channel, channel);
            } else if (clsBlnDataSource* status = element->StatusSource()) {
                status->Set(&clsBlnDataSource::BlnDataType, watch::statusOn);
                status->Set(&clsBlnDataSource::Site, site);
                status->Set(&clsBlnDataSource::Channel, channel);
            }
        }
        m_subscription = m_canvas.Changed.Subscribe([this](const Area& /*area*/) { ++m_changed; });
    }

    // Other values than the last ones.
    void Raise()
    {
        ++m_step;
        const ValuesEvent& event = m_events[m_step % m_events.size()];
        m_server.Values.Raise(event);
    }

    std::int64_t Changed() const noexcept { return m_changed; }

private:
    static constexpr const char* site = "Site";

    static ValuesEvent EventOf(int step)
    {
        std::vector<float> values;
        for (int channel = 0; channel < 16; ++channel) {
            values.push_back(static_cast<float>((step * 37 + channel * 5) % 100));
        }
        return {site, 0, 0, static_cast<std::int16_t>(step % 2 == 0 ? -1 : 0), 0, 0, 0, ServerArray(values)};
    }

    FakeServer m_server;
    FakeDesk m_desk;
    NoReporter m_reporter;
    Canvas m_canvas;
    std::optional<clsCustView> m_view;
    Subscription m_subscription;
    std::vector<ValuesEvent> m_events{EventOf(0), EventOf(1), EventOf(2), EventOf(3)};
    std::size_t m_step = 0;
    std::int64_t m_changed = 0;
};

void RaiseValues(benchmark::State& state)
{
    LiveView view;
    for (auto _ : state) {
        view.Raise();
    }
    MustHold(view.Changed() > 0, "No value was shown.");
}

void Prepare(Results& results)
{
    benchmark::RegisterBenchmark(road.c_str(), RaiseValues)->Arg(instruments);
    LiveView view;
    for (int step = 0; step < 8; ++step) {
        view.Raise();
    }
    const std::uint64_t before = allocations;
    for (int step = 0; step < 8; ++step) {
        view.Raise();
    }
    results.Take(Sized(roadAllocates, instruments), static_cast<double>(allocations - before));
}

void AddRows(const Results& results, std::vector<Row>& rows)
{
    const double valueAllowed = 300e-9;
    rows.push_back(Within(results, road, instruments, valueAllowed * static_cast<double>(instruments)));
    const double made = results.Seconds(Sized(roadAllocates, instruments));
    rows.push_back(
        {roadAllocates, std::to_string(instruments), std::to_string(static_cast<int>(made)), "none", made, 0});
}

} // namespace

const Family values{"values", Prepare, AddRows};

} // namespace quor::bench
