#include "bench/world.h"

#include "document/kinds.h"

#include <cstdio>
#include <cstdlib>

namespace quor::bench {

void MustHold(bool condition, const std::string& words)
{
    if (!condition) {
        std::fprintf(stderr, "%s\n", words.c_str());
        std::_Exit(2);
    }
}

void NoReporter::ShowError(const ErrorReport& report) noexcept
{
    MustHold(false, report.message + " " + report.description);
}

Collection& LedsOf(clsCustView& view)
{
    constexpr std::int32_t type = 3;
    return view.CollectionOf(type);
}

std::string NameOf(std::int64_t number)
{
    return "a" + std::to_string(number);
}

namespace {

void AddInRows(Collection& collection, std::int64_t number)
{
    const std::int64_t perRow = 100;
    const float pitch = 300;
    collection.Add(static_cast<float>(number / perRow) * pitch, static_cast<float>(number % perRow) * pitch,
                   NameOf(number), true);
}

} // namespace

void AddLeds(clsCustView& view, std::int64_t count)
{
    for (std::int64_t number = 1; number <= count; ++number) {
        AddInRows(LedsOf(view), number);
    }
}

void AddMixed(clsCustView& view, std::int64_t count)
{
    const auto kinds = static_cast<std::int64_t>(Kinds().size());
    for (std::int64_t number = 1; number <= count; ++number) {
        AddInRows(view.CollectionOf(static_cast<std::int32_t>(number % kinds)), number);
    }
}

World::World(Files& files) : m_files(files)
{
    m_desk.live.DesignMode = true;
    AddWidgetArrays(m_canvas);
    Renew();
}

void World::Renew()
{
    m_view.reset();
    m_view = std::make_unique<clsCustView>(m_desk.PortsOfView(m_reporter, m_files), m_canvas);
}

EditorPorts World::PortsOfEditor()
{
    return m_desk.PortsOfEditor(m_reporter, m_files);
}

} // namespace quor::bench
