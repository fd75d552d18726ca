#pragma once
// The view being edited and its file: new, open and save, whether it has changed, and whether it may go.

#include "editor/editor_ports.h"

#include <cstdint>
#include <memory>
#include <string>

namespace quor {

class clsCustView;
class frmMain;

// Why the form is asked to close.
enum class CloseReason : std::int16_t { User = 0, Code = 1, System = 2, TaskManager = 3 };

class ViewSession {
public:
    // Gives the form's canvas the arrays of widgets, and makes a first view.
    ViewSession(frmMain& main, const EditorPorts& ports);
    ~ViewSession();

    clsCustView& View() const noexcept { return *m_view; }
    const std::string& CurrentFile() const noexcept { return m_currentFile; } // empty for none
    std::int32_t SavedChecksum() const noexcept { return m_savedChecksum; }

    // Opens what the tail of the command line names.
    void ReadCommandLine(const std::string& tail);

    // An empty path asks for one.
    void NewView();
    void OpenView(std::string path);
    bool SaveView(const std::string& path);
    // True if the view may be thrown away.
    bool QuerySave();
    // Of the view as it stands; 0 when it can't be worked out.
    std::int32_t GetCurrentChecksum();

    // False refuses the close.
    bool QueryUnload(CloseReason reason);
    // The bars' own question, which decides for all later ones; true cancels.
    void abViewEdit_QueryClose(bool& cancel);

private:
    enum class CloseState : std::int16_t { Undecided = 0, Agreed = 1, Refused = 2 };

    std::unique_ptr<clsCustView> MakeView();
    void Replace(std::unique_ptr<clsCustView> view);
    void PrepareFileDialog(std::int32_t flags);
    bool SaveAs();

    frmMain& m_main;
    EditorPorts m_ports;
    std::unique_ptr<clsCustView> m_view;
    std::string m_currentFile;
    std::int32_t m_savedChecksum = 0;
    bool m_skipSavePrompt = false;
    CloseState m_closeState = CloseState::Undecided;
};

} // namespace quor
