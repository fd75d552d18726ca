#include "editor/view_session.h"

#include "base/guard.h"
#include "base/text.h"
#include "binding/live.h"
#include "document/kinds.h"
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

constexpr std::string_view openPrefix = "/Open ";

constexpr std::string_view queryWords =
    "Unable to determine if your file has changed. Quor Custom View Editor will now shut down.";
} // namespace

ViewSession::ViewSession(frmMain& main, const EditorPorts& ports) : m_main(main), m_ports(ports)
{
    AddWidgetArrays(main.ssScroll());
    main.ssScroll().SetTracer(*ports.live.Tracer);
    m_view = MakeView();
}

ViewSession::~ViewSession() = default;

std::unique_ptr<clsCustView> ViewSession::MakeView()
{
    return std::make_unique<clsCustView>(ViewPorts{m_ports.files, m_ports.boxes, m_ports.reporter, m_ports.timers,
                                                   m_ports.pictures, m_ports.progress, m_ports.live},
                                         m_main.ssScroll());
}

void ViewSession::Replace(std::unique_ptr<clsCustView> view)
{
    m_main.Mouse().CancelDrag();
    const CanvasHold hold(m_main.ssScroll());
    m_view = std::move(view);
}

void ViewSession::ReadCommandLine(const std::string& tail)
{
    if (CharacterCount(tail) <= openPrefix.size()) {
        m_savedChecksum = GetCurrentChecksum();
        return;
    }
    m_skipSavePrompt = true;
    // Whatever the first six characters are, and however many bytes they take.
    OpenView(tail.substr(FitField(tail, openPrefix.size()).size()));
}

void ViewSession::NewView()
{
    Guard(
        m_ports.reporter, Ref("frmMain.NewView"),
        "Unable to create a new view. Please restart Quor Custom View Editor and try again. If this problem persists, "
        "please reinstall the application.",
        [&] {
            if (!QuerySave()) {
                return;
            }
            m_currentFile.clear();
            m_main.ReleaseControl();
            Replace(MakeView());
            m_view->Set(&clsCustView::ViewName, "My View");
            m_view->Set(&clsCustView::BGColor, colors::buttonFace);
            m_view->Set(&clsCustView::BGPicture, std::string());
            m_view->Set(&clsCustView::BGPicMode, picture_modes::centered);
            m_main.ShowPropertyPages(PropertyPanel::viewBand, true);
            m_savedChecksum = GetCurrentChecksum();
        });
}

void ViewSession::OpenView(std::string path)
{
    Guard(m_ports.reporter, Ref("frmMain.OpenView"), "Unable to open the selected view. The file may be corrupt.", [&] {
        if (!QuerySave()) {
            return;
        }
        // Also for a user who cancels the dialog: the view on the screen has no file from here on.
        m_currentFile.clear();
        m_main.ReleaseControl();
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
        m_main.ReleaseControl();
    });
}

bool ViewSession::SaveView(const std::string& path)
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

bool ViewSession::SaveAs()
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

void ViewSession::PrepareFileDialog(std::int32_t flags)
{
    CommonDialog& dialog = m_ports.dlgProp;
    dialog.FileName.clear();
    dialog.InitialDirectory = m_ports.settings.ViewsDirectory();
    dialog.Filter = "Quor Custom Views (*.qvw)|*.qvw";
    dialog.Flags = flags;
}

bool ViewSession::QuerySave()
{
    const std::int32_t checksum = GetCurrentChecksum();
    const bool skips = checksum != 0 && std::exchange(m_skipSavePrompt, false);
    if (checksum == 0 || checksum == m_savedChecksum || skips) {
        return true;
    }
    const BoxAnswer answer = m_ports.boxes.Show("Do you want to save changes to " + m_view->ViewName() + "?",
                                                "Custom View Editor", BoxButtons::YesNoCancel);
    return answer == BoxAnswer::Yes ? SaveView(m_currentFile) : answer == BoxAnswer::No;
}

std::int32_t ViewSession::GetCurrentChecksum()
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

bool ViewSession::QueryUnload(CloseReason reason)
{
    bool agrees = true;
    Guard(m_ports.reporter, Ref("frmMain.Form_QueryUnload"), queryWords, [&] {
        if (reason != CloseReason::System && reason != CloseReason::TaskManager) {
            agrees = m_closeState == CloseState::Undecided ? QuerySave() : m_closeState == CloseState::Agreed;
        }
    });
    return agrees;
}

void ViewSession::abViewEdit_QueryClose(bool& cancel)
{
    Guard(m_ports.reporter, Ref("frmMain.abViewEdit_QueryClose"), queryWords, [&] {
        const bool agrees = QuerySave();
        m_closeState = agrees ? CloseState::Agreed : CloseState::Refused;
        cancel = !agrees;
    });
}

} // namespace quor
