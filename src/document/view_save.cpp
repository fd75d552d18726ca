// Saving a view to its file.

#include "base/guard.h"
#include "document/view_document.h"
#include "format/container.h"
#include "format/record.h"
#include "platform/scratch_file.h"

namespace quor {

bool clsCustView::SaveFile(const std::string& path)
{
    return Save([&](const ScratchFile& scratch) { m_ports.files.CopyFile(scratch.Path(), path); });
}

std::string clsCustView::SaveScratch()
{
    std::string path;
    const bool isSaved = Save([&](const ScratchFile& scratch) {
        path = scratch.PathBeside();
        m_ports.files.CopyScratch(scratch.Path(), path);
    });
    return isSaved ? path : std::string();
}

bool clsCustView::Save(const std::function<void(const ScratchFile&)>& copy)
{
    constexpr RefNumber ref = Ref("clsCustView.SaveFile");
    ScratchFile scratch(m_ports.files);
    const bool isSaved = Guard(m_ports.reporter, ref, "Unable to save the custom view file.", [&] {
        scratch.Fill([this](OpenFile& file) { WriteContainer(file); });
        copy(scratch);
    });
    if (isSaved) {
        GuardToLog(m_ports.reporter, ref, "The custom view file is saved.", [&] { scratch.Delete(); });
    }
    return isSaved;
}

void clsCustView::WriteContainer(OpenFile& file)
{
    ContainerWriter writer(file, GetCount() + 1, ViewName(), ViewCategory());
    std::vector<std::uint8_t> record;
    RecordWriter own(record, view_file::viewRecord);
    Fields(own);
    const std::int32_t ownSum = own.Finish();
    writer.WriteRecord(record, ownSum, ViewName());
    for (Element* element : *m_order) {
        std::int32_t sum = 0;
        element->SaveToArray(record, sum);
        writer.WriteRecord(record, sum, element->ObjName());
    }
    writer.Finish();
}

} // namespace quor
