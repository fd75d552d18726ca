// The document commands, and how the editor finds out whether the view has changed.

#include "base/guard.h"
#include "document/view_document.h"
#include "editor/main_form.h"
#include "editor/property_panel.h"
#include "format/container.h"
#include "platform/boxes.h"
#include "platform/common_dialog.h"
#include "platform/files.h"
#include "platform/settings.h"

namespace quor {

namespace {
using namespace dialog_flags;
constexpr std::int32_t saveFlags = overwritePrompt | hideReadOnly | pathMustExist | noReadOnlyReturn;
constexpr std::int32_t openFlags = fileMustExist | hideReadOnly | pathMustExist | noReadOnlyReturn;
static_assert(saveFlags == 0x8806 && openFlags == 0x9804);
} // namespace

void frmMain::NewView()
{
    Guard(m_ports.reporter, Ref("frmMain.NewView"),
          "Unable to create a new view. Please restart " + std::string(appTitle) +
              " and try again. If this problem persists, please reinstall the application.",
          [&] {
              if (!QuerySave()) {
                  return;
              }
              m_currentFile.clear();
              ReleaseControl();
              Replace(MakeView());
              m_view->Set(&clsCustView::ViewName, "My View");
              m_view->Set(&clsCustView::BGColor, colors::buttonFace);
              m_view->Set(&clsCustView::BGPicture, std::string());
              m_view->Set(&clsCustView::BGPicMode, picture_modes::centered);
              ShowPropertyPages(PropertyPanel::viewBand, true);
              m_savedChecksum = GetCurrentChecksum();
          });
}

void frmMain::OpenView(std::string path)
{
    Guard(m_ports.reporter, Ref("frmMain.OpenView"), "Unable to open the selected view. The file may be corrupt.", [&] {
        if (!QuerySave()) {
            return;
        }
        // Also for a user who cancels the dialog: the view on the screen has no file from here on.
        m_currentFile.clear();
        ReleaseControl();
        if (path.empty()) {
            PrepareFileDialog(openFlags);
            m_ports.dlgProp.ShowOpen();
            path = m_ports.dlgProp.FileName;
        }
        if (!path.empty()) {
            Replace(MakeView());
            if (m_view->LoadFile(path)) {
                m_currentFile = path;
                m_savedChecksum = GetCurrentChecksum();
            }
        }
        ReleaseControl();
    });
}

bool frmMain::SaveView(const std::string& path)
{
    bool isSaved = false;
    Guard(m_ports.reporter, Ref("frmMain.SaveView"),
          "An error occurred while saving the custom view file. Your file has NOT been saved. Please try again.", [&] {
              const bool ok = path.empty() ? SaveAs() : m_view->SaveFile(path);
              if (ok) {
                  m_savedChecksum = GetCurrentChecksum();
              }
              isSaved = ok;
          });
    return isSaved;
}

bool frmMain::SaveAs()
{
    PrepareFileDialog(saveFlags);
    m_ports.dlgProp.ShowSave();
    const std::string chosen = m_ports.dlgProp.FileName;
    if (chosen.empty()) {
        return false;
    }
    const bool first = m_view->SaveFile(chosen);
    // The view is written once more, to a file of this very name; its result is that of the command.
    const bool second = SaveView(first ? "True" : "False");
    if (second) {
        m_currentFile = chosen;
    }
    return second;
}

void frmMain::PrepareFileDialog(std::int32_t flags)
{
    CommonDialog& dialog = m_ports.dlgProp;
    dialog.FileName.clear();
    dialog.InitialDirectory = m_ports.settings.ViewsDirectory();
    dialog.Filter = "Quor Custom Views (*.qvw)|*.qvw";
    dialog.Flags = flags;
}

bool frmMain::QuerySave()
{
    const std::int32_t checksum = GetCurrentChecksum();
    bool hasChanged = checksum != 0 && checksum != m_savedChecksum;
    if (checksum != 0 && m_skipSavePrompt) {
        hasChanged = false;
        m_skipSavePrompt = false;
    }
    if (!hasChanged) {
        return true;
    }
    switch (m_ports.boxes.Show("Do you want to save changes to " + m_view->ViewName() + "?", "Custom View Editor",
                               BoxButtons::YesNoCancel)) {
    case BoxAnswer::Yes:
        return SaveView(m_currentFile);
    case BoxAnswer::No:
        return true;
    default:
        return false;
    }
}

std::int32_t frmMain::GetCurrentChecksum()
{
    Files& files = m_ports.files;
    const std::string path = m_view->SaveScratch();
    std::int32_t checksum = 0;
    if (!path.empty()) {
        IgnoreFailure([&] { checksum = ReadChecksumAtEnd(*files.Open(path, OpenMode::Read)); });
        IgnoreFailure([&] { files.DeleteFile(path); });
    }
    return checksum;
}

void frmMain::Replace(std::unique_ptr<clsCustView> view)
{
    CancelDrag();
    const CanvasHold hold(m_canvas);
    m_view = std::move(view);
}

} // namespace quor
