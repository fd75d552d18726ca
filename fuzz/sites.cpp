// A file of sites: a server that it tells answers each of its units and runs.

#include "base/failure.h"
#include "fuzz/harness.h"
#include "servers/simulator/simulated_server.h"
#include "tests/support/fake_timers.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace quor;
    ServerPlan plan;
    try {
        plan = ReadServerPlan(TextOf(data, size));
    } catch (const Failure& failure) {
        Require(failure.Description().ends_with('.'), "a refusal says what is wrong");
        return 0;
    }
    FakeTimers timers;
    SimulatedServer server(timers, plan, 1);
    server.Start();
    server.Sites().ForEach([](TeskSite& site) { site.Units().ForEach([](TeskUnit& unit) { unit.RequestConfig(); }); });
    constexpr int someSteps = 5000; // milliseconds
    timers.Advance(someSteps);
    return 0;
}
