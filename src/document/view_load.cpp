// Loading a view from its file.

#include "base/guard.h"
#include "base/narrow.h"
#include "binding/live.h"
#include "document/kinds.h"
#include "document/view_document.h"
#include "format/container.h"
#include "platform/boxes.h"
#include "platform/load_progress.h"
#include "widgets/canvas.h"

namespace quor {

namespace {
// Views with more records than this show the progress form.
constexpr std::int32_t recordsWithoutProgress = 25;
} // namespace

bool clsCustView::LoadFile(const std::string& path)
{
    bool isLoaded = false;
    std::unique_ptr<OpenFile> file;
    m_verdict = LoadVerdict::Failure;
    Guard(m_ports.reporter, Ref("clsCustView.LoadFile"), "Unable to open the custom view file.",
          [&] { isLoaded = Open(path, file); });
    file.reset();
    m_ports.progress.CloseMe();
    if (!isLoaded) {
        IgnoreFailure([&] { ShowPlainGround(); });
    }
    return isLoaded;
}

bool clsCustView::Open(const std::string& path, std::unique_ptr<OpenFile>& file)
{
    if (!m_ports.files.FileExists(path)) {
        m_verdict = LoadVerdict::Missing;
        ShowMessage(path, " does not exist.");
        return false;
    }
    file = m_ports.files.Open(path, OpenMode::Read);
    ContainerReader reader(*file);
    const LoadVerdict verdict = Examine(reader);
    if (verdict == LoadVerdict::Ok) {
        ReadRecords(reader);
        m_verdict = LoadVerdict::Ok;
        return true;
    }
    switch (verdict) {
    case LoadVerdict::WrongFile:
        ShowMessage(path, " is not a Quor Custom View file.");
        break;
    case LoadVerdict::Newer:
        ShowMessage(path, " is from a newer version of Quor, and cannot be opened in this version.");
        break;
    case LoadVerdict::OldVersion:
        file.reset();
        AskToUpgrade(path, reader.Header().name, reader.Header().version);
        break;
    default:
        ShowMessage(path, " cannot be opened. The file may be corrupt.");
        break;
    }
    m_verdict = verdict;
    return false;
}

LoadVerdict clsCustView::Examine(ContainerReader& reader)
{
    const ViewHeader& header = reader.Header();
    if (!header.isViewFile) {
        return LoadVerdict::WrongFile;
    }
    if (header.IsNewer()) {
        return LoadVerdict::Newer;
    }
    if (header.IsOld()) {
        return LoadVerdict::OldVersion;
    }
    return reader.Sum() == reader.StoredSum() ? LoadVerdict::Ok : LoadVerdict::Corrupt;
}

void clsCustView::ShowMessage(const std::string& path, std::string_view words)
{
    m_ports.boxes.Show("The file \"" + path + "\"" + std::string(words), std::string(appTitle), BoxButtons::Ok);
}

void clsCustView::ReadRecords(ContainerReader& reader)
{
    const std::vector<std::string> names = reader.Names();
    const std::int32_t count = reader.Header().recordCount;
    m_ports.progress.Begin("Loading custom view...", Narrow<std::int16_t>(count), count > recordsWithoutProgress);
    // Add subtracts the scroll position, and the elements must land at the stored places.
    m_canvas.ScrollTo(m_canvas.ScrollOffsetX(), 0);
    m_canvas.ScrollTo(0, 0);
    const CanvasHold hold(m_canvas);
    for (std::int32_t index = 0; index < count; ++index) {
        const auto at = static_cast<std::size_t>(index);
        ReadRecord(reader.NextRecord(), at < names.size() ? std::string_view(names[at]) : std::string_view());
        m_ports.progress.IncrProgBar();
    }
    if (!m_ports.live.DesignMode) {
        RefreshAll();
    }
    SetAllVisible(true);
}

void clsCustView::ReadRecord(const RecordView& record, std::string_view name)
{
    if (record.type == view_file::viewRecord) {
        ReadFromArray(record.payload);
    } else if (FindKind(std::int32_t{record.type}) != nullptr) {
        CollectionOf(record.type).Add(0, 0, name, false).ReadFromArray(record.payload);
    }
}

} // namespace quor
