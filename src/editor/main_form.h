#pragma once
// The main form: the view being edited, its canvas, the bars, and what the user does to the selected element.

#include "base/guard.h"
#include "editor/canvas_mouse.h"
#include "editor/frm_view_toolbox.h"
#include "editor/view_grid.h"
#include "editor/view_session.h"
#include "forms/bars.h"
#include "forms/bars_layout.h"
#include "pages/page_host.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

class Element;
class PropertyPanel;
class Timer;

class frmMain final : public PageHost {
public:
    static constexpr std::string_view caption = "Custom View Editor";

    // Of most failures while editing.
    static constexpr std::string_view editWords =
        "Quor Custom View Editor encountered an error while editing the view. Please try again.";

    explicit frmMain(const EditorPorts& ports);
    ~frmMain() override;
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;

    Event<> Unloaded;

    // The tail is that of the command line.
    void Form_Load(const std::string& tail);
    // Unloads the form unless the session refuses; true then.
    bool Close(CloseReason reason);
    // The same behind the bars' own question. The window's close box doesn't come by it.
    bool CloseThroughBar();
    bool IsUnloading() const noexcept { return m_unloading; }

    // The document commands, as the session tells them.
    void NewView() { m_session.NewView(); }
    void OpenView(std::string path) { m_session.OpenView(std::move(path)); }
    bool SaveView(const std::string& path) { return m_session.SaveView(path); }
    bool QuerySave() { return m_session.QuerySave(); }
    std::int32_t GetCurrentChecksum() { return m_session.GetCurrentChecksum(); }

    // Selection and handles (main_edit.cpp).
    void SelectControl(Widget& widget);
    void ReleaseControl();
    void PositionHandles(const Widget& widget) override;
    void HideHandles();
    void SetStatusCaption(const Widget* widget) override;
    void ShowPropertyPages(std::string_view name, bool reload);
    Widget* SelectedWidget() const noexcept override { return m_selected; }
    Widget& Selected() const; // fails with 91 without a selection
    Element& SelectedElement() const;

    // What is done to the view and to the selected element (main_edit.cpp).
    void InsertElement(std::size_t type);
    void RequestDelete(); // comes a moment later
    void ClearView();
    void CopyControl();
    void PasteControl();
    void ReorderControl(bool toFront);
    void AlignToGrid();
    void SizeToGrid();

    // A key on the canvas or a widget. Delete (46) asks for the deletion, Escape (27) gives up a drag or a sizing; no
    // other one does anything.
    void KeyDown(std::int16_t code);
    // The commands on the selection, at the pointer.
    void ShowToolPopup();

    // The bars and the dialogs behind them (main_bars.cpp).
    void ToggleBand(std::string_view tool, std::string_view band);
    void ShowCustomize();
    void ShowOptions();
    void ShowContents();
    void ShowAbout();

    ViewSession& Session() noexcept { return m_session; }
    CanvasMouse& Mouse() noexcept { return m_mouse; }
    ViewGrid& Grid() noexcept { return m_grid; }
    Canvas& ssScroll() noexcept { return m_canvas; }
    Bars& abViewEdit() const noexcept { return *m_bars; }
    frmViewToolbox& Toolbox() noexcept { return m_toolbox; }
    PropertyPanel& Panel() const noexcept { return *m_panel; }
    clsCustView& View() const noexcept override { return m_session.View(); }
    Reporter& PageReporter() override { return m_ports.reporter; }
    CommonDialog& dlgProp() override { return m_ports.dlgProp; }
    MessageBoxes& PageBoxes() override { return m_ports.boxes; }
    Live& PageLive() override { return m_ports.live; }

private:
    // The guarded procedure of this form.
    template <class Body> void Try(RefNumber ref, std::string_view words, Body&& body)
    {
        Guard(m_ports.reporter, ref, words, std::forward<Body>(body));
    }

    void Form_Unload();
    void ObtainCatalog();

    // The bars as they were left: the user's file if there is one, else the default, which the first start makes.
    // Failures of these two go to the log alone.
    void LoadToolbarLayout();
    void SaveToolbarLayout();
    bool LoadBarsFile(void (*load)(Bars& bars, Files& files, const std::string& path), const std::string& path);

    void BindEvents();
    void abViewEdit_ToolClick(const std::string& tool);
    void abViewEdit_Band(const std::string& band, bool isOpen);
    void tmrDelControl_Timer();
    void DeleteSelected();
    void UpdateEditTools();

    EditorPorts m_ports;
    Canvas m_canvas;
    std::unique_ptr<Bars> m_bars;
    const BarsLayout m_builtInLayout;
    ViewGrid m_grid;
    CanvasMouse m_mouse;
    frmViewToolbox m_toolbox;
    std::unique_ptr<PropertyPanel> m_panel;
    ViewSession m_session;
    std::unique_ptr<Timer> tmrDelControl;
    Widget* m_selected = nullptr;
    std::optional<std::vector<std::uint8_t>> ClipboardBytes;
    bool m_unloading = false;
    bool m_replacesLayout = false; // by the close: what couldn't be read is not lost
    bool m_replacesUsage = false;
    std::vector<Subscription> m_subscriptions;
};

} // namespace quor
