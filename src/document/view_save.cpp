// Saving a view to its file.

#include "base/guard.h"
#include "document/format/container.h"
#include "document/format/record.h"
#include "document/view_document.h"

namespace quor {

bool clsCustView::SaveFile(const std::string& path)
{
    Files& files = m_ports.files;
    std::string scratch;
    std::unique_ptr<OpenFile> file;
    const bool isSaved =
        Guard(m_ports.reporter, Ref("clsCustView.SaveFile"), "Unable to save the custom view file.", [&] {
            const std::string name = files.TempFolder() + "/" + files.TempName();
            if (files.FileExists(name)) {
                files.DeleteFile(name);
            }
            file = files.Open(name, OpenMode::Scratch);
            scratch = name;
            WriteContainer(*file);
            file->Close();
            file.reset();
            files.CopyFile(scratch, path);
            files.DeleteFile(scratch);
        });
    if (!isSaved && !scratch.empty()) {
        file.reset();
        IgnoreFailure([&] { files.DeleteFile(scratch); });
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
