// Saving and finding changes, on the disk, beside the bare file operations.

#include "bench/cases.h"
#include "bench/floors.h"
#include "bench/rows.h"
#include "bench/world.h"
#include "editor/main_form.h"
#include "posix/disk_files.h"

#include <unistd.h>

namespace quor::bench {

namespace {

namespace fs = std::filesystem;

// A path of its own in the folder for temporary files; what lies there goes at the end.
class ScratchPath {
public:
    ScratchPath() = default;
    ~ScratchPath()
    {
        std::error_code ignored;
        fs::remove(m_path, ignored);
    }
    ScratchPath(const ScratchPath&) = delete;
    ScratchPath& operator=(const ScratchPath&) = delete;
    const fs::path& Path() const { return m_path; }

private:
    fs::path m_path = fs::temp_directory_path() / ("quor-bench-" + std::to_string(::getpid()) + ".qvw");
};

std::size_t FileSize(std::int64_t leds)
{
    DiskFiles files;
    World world(files);
    AddLeds(world.View(), leds);
    const ScratchPath target;
    world.View().SaveFile(target.Path());
    return fs::file_size(target.Path());
}

void SaveView(benchmark::State& state)
{
    DiskFiles files;
    World world(files);
    AddLeds(world.View(), state.range(0));
    const ScratchPath target;
    for (auto _ : state) {
        MustHold(world.View().SaveFile(target.Path()), "The view can't be saved.");
    }
}

void FlushBytes(benchmark::State& state)
{
    const std::size_t size = FileSize(state.range(0));
    const ScratchPath target;
    for (auto _ : state) {
        WriteFlushRename(target.Path(), size);
    }
}

void FindChanges(benchmark::State& state)
{
    DiskFiles files;
    World world(files);
    frmMain editor(world.PortsOfEditor());
    editor.Form_Load("");
    AddLeds(editor.View(), state.range(0));
    for (auto _ : state) {
        MustHold(editor.GetCurrentChecksum() != 0, "The view's checksum can't be worked out.");
    }
}

void WriteBytes(benchmark::State& state)
{
    const std::size_t size = FileSize(state.range(0));
    const ScratchPath target;
    for (auto _ : state) {
        WriteReadDelete(target.Path(), size);
    }
}

void Register(Results&)
{
    for (const std::int64_t size : fileSizes) {
        benchmark::RegisterBenchmark("save", SaveView)->Arg(size)->UseRealTime();
        benchmark::RegisterBenchmark("write, flush, rename", FlushBytes)->Arg(size)->UseRealTime();
        benchmark::RegisterBenchmark("change detection", FindChanges)->Arg(size);
        benchmark::RegisterBenchmark("write, read, delete", WriteBytes)->Arg(size);
    }
}

void AddRows(const Results& results, std::vector<Row>& rows)
{
    const double mostTimes = 3;
    const double mostSeconds = 0.1e-6;
    for (const std::int64_t size : fileSizes) {
        rows.push_back(NotOver(results, "save", size, "write, flush, rename", mostTimes));
    }
    rows.push_back(Exponent(results, "save", fileSizes));
    // Among few elements the price of a second file shows.
    for (const std::int64_t size : {std::int64_t{1'000}, largestFile}) {
        const double above =
            results.Seconds(Sized("change detection", size)) - results.Seconds(Sized("write, read, delete", size));
        const double seconds = above / static_cast<double>(size);
        rows.push_back({"change detection, an element", std::to_string(size), Duration(seconds),
                        Duration(mostSeconds) + " above the floor", seconds / mostSeconds, 1});
    }
    rows.push_back(Exponent(results, "change detection", fileSizes));
}

} // namespace

const Family saving{"save", Register, AddRows};

} // namespace quor::bench
