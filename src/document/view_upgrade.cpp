// Old files: the question, the rewriting in place with a backup, and the load a moment later.

#include "base/guard.h"
#include "document/view_document.h"
#include "format/upgrade.h"
#include "platform/boxes.h"
#include "platform/timer.h"
#include "platform/whole_file.h"

namespace quor {

namespace {
constexpr int reloadDelay = 100; // milliseconds, so that the open command has returned by then
}

void clsCustView::AskToUpgrade(const std::string& path, const std::string& name, int version)
{
    const std::string question = name + " was created using an older version of " + std::string(appTitle) +
                                 ". Do you want to convert this file to the current version?";
    if (m_ports.boxes.Show(question, "Convert file", BoxButtons::YesNo) == BoxAnswer::Yes) {
        StartUpgrade(path, version);
    }
}

void clsCustView::StartUpgrade(const std::string& path, int version)
{
    const auto rewrite = [&](auto upgrade) {
        const std::vector<std::uint8_t> old = ReadWhole(*m_ports.files.Open(path, OpenMode::Read));
        FinishUpgrade(upgrade(old), path);
    };
    if (version == 1) {
        rewrite(UpgradeToVersion2);
    }
    if (version == 1 || version == 2) {
        rewrite(UpgradeToVersion3);
    }
}

void clsCustView::FinishUpgrade(std::span<const std::uint8_t> bytes, const std::string& link)
{
    Files& files = m_ports.files;
    const std::string path = files.FollowLinks(link); // else the link would become the backup
    const std::string backup = BackupPath(path);
    if (backup == path) {
        throw Failure(failures::pathFileAccess, "The backup would have the name of the file itself.");
    }
    if (files.FileExists(backup)) {
        files.DeleteFile(backup);
    }
    files.MoveFile(path, backup);
    const std::unique_ptr<OpenFile> file = files.OpenLike(path, backup);
    file->Write(0, bytes);
    file->Close();
    FilePath = link;
    m_LoadViewTimer = m_ports.timers.Make();
    m_reload = m_LoadViewTimer->Fired.Subscribe([this] { m_LoadViewTimer_Timer(); });
    m_LoadViewTimer->SetInterval(reloadDelay);
    m_LoadViewTimer->SetEnabled(true);
}

void clsCustView::m_LoadViewTimer_Timer()
{
    Guard(m_ports.reporter, Ref("clsCustView.m_LoadViewTimer"),
          "An error occurred while converting your file (" + FilePath +
              "). The file may be corrupt. If necessary, restore the backup file (.bak).",
          [&] {
              m_LoadViewTimer->SetEnabled(false);
              LoadFile(FilePath);
          });
}

} // namespace quor
