#pragma once
// The main form: the view being edited, its canvas, the bars, and everything that the user does to them.

#include "base/event.h"
#include "editor/editor_ports.h"
#include "editor/frm_view_toolbox.h"
#include "editor/mouse.h"
#include "forms/bars_layout.h"
#include "pages/page_host.h"
#include "support/grid_host.h"
#include "widgets/canvas.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quor {

class Bars;
class Element;
class PropertyPanel;
class Timer;
class clsCustView;

// To the nearest multiple of the step, exact halves to the even one; fails with 11 for a step of 0.
float RoundToStep(double value, float step);

// Why the form is asked to close.
enum class CloseReason : std::int16_t { User = 0, Code = 1, System = 2, TaskManager = 3 };

class frmMain final : public ToolDragHost, public PageHost, public GridHost {
public:
    static constexpr std::string_view caption = "Custom View Editor";

    explicit frmMain(const EditorPorts& ports);
    ~frmMain() override;
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;

    Event<> DragChanged; // a drag or a sizing began, moved or ended
    Event<> Unloaded;

    // Start and end (main_start.cpp). The tail is that of the command line.
    void Form_Load(const std::string& tail);
    bool QueryUnload(CloseReason reason);
    void Form_Unload();
    // QueryUnload, and Form_Unload if it agrees; true then.
    bool Close(CloseReason reason);
    // The bars' own question ahead of the close, which decides for all later ones, and the close if it was agreed. The
    // window's close box doesn't come by it.
    bool CloseThroughBar();
    bool IsUnloading() const noexcept { return m_unloading; }

    // The document commands (main_files.cpp). An empty path asks for one.
    void NewView();
    void OpenView(std::string path);
    bool SaveView(const std::string& path);
    // True if the view may be thrown away.
    bool QuerySave();
    // Of the view as it stands; 0 when it can't be worked out.
    std::int32_t GetCurrentChecksum();
    const std::string& CurrentFile() const noexcept { return m_currentFile; }
    std::int32_t SavedChecksum() const noexcept { return m_savedChecksum; }

    // Selection and handles (main_select.cpp).
    void SelectControl(Widget& widget);
    void ReleaseControl();
    void PositionHandles(const Widget& widget) override;
    void HideHandles();
    void SetStatusCaption(const Widget* widget) override;
    Widget* SelectedWidget() const noexcept override { return m_selected; }

    // The mouse (main_mouse.cpp); x and y are twips from the target's top left.
    void Press(const CanvasTarget& target, MouseButton button, float x, float y);
    void Release(const CanvasTarget& target, MouseButton button, float x, float y);
    void Drop(const CanvasTarget& target, float x, float y);
    void ssScroll_Click();
    // Gives up a drag or a sizing without a change.
    void CancelDrag();
    void BeginToolDrag(std::size_t index) override;
    bool IsDragging() const noexcept { return m_drag.index() != 0; }
    // For a pointer at that place of the visible canvas; none when nothing is dragged or sized.
    std::optional<DragOutline> OutlineAt(float x, float y) const;
    // A key on the canvas or a widget. Delete (46) asks for the deletion, Escape (27) gives up a drag or a sizing; no
    // other one does anything.
    void KeyDown(std::int16_t code);
    // The commands on the selection, at the pointer.
    void ShowToolPopup();

    // Sizing (main_size.cpp): from the press on a handle to the release. The distance is the pointer's since the press.
    void BeginSizing(std::size_t handle);
    void SizeBy(float dx, float dy);
    void EndSizing();
    bool IsSizing() const noexcept { return m_sizing.has_value(); }

    // Insert and delete (main_insert.cpp).
    void InsertElement(std::size_t type);
    void RequestDelete();
    void ClearView();

    // The grid (main_grid.cpp).
    void LoadGrid() override;
    void ShowGrid() override;
    void HideGrid() override;
    void ToggleGrid();
    void ToggleSnap();
    void AlignToGrid();
    void SizeToGrid();
    bool GridVisible() const noexcept override { return m_gridVisible; }
    std::int16_t GridSize() const noexcept override { return m_gridSize; }
    void SetGridSize(std::int16_t pixels) noexcept override { m_gridSize = pixels; }

    // Clipboard and order (main_clipboard.cpp).
    void CopyControl();
    void PasteControl();
    void ReorderControl(bool toFront);

    // The bars (main_bars.cpp).
    void ToggleBand(std::string_view tool, std::string_view band);
    // The bars as they were left: the user's file if there is one, else the default, which the first start makes.
    // Failures of these two go to the log alone.
    void LoadToolbarLayout();
    void SaveToolbarLayout();

    // The dialogs behind the bars (main_dialogs.cpp).
    void ShowCustomize();
    void ShowOptions();
    void ShowContents();
    void ShowAbout();

    // Does nothing: a view can't be loaded into another.
    void LoadCustomView(const std::string& name);

    Canvas& ssScroll() noexcept { return m_canvas; }
    Bars& abViewEdit() const noexcept { return *m_bars; }
    frmViewToolbox& Toolbox() const noexcept { return *m_toolbox; }
    PropertyPanel& Panel() const noexcept { return *m_panel; }
    clsCustView& View() const noexcept override { return *m_view; }
    Reporter& PageReporter() override { return m_ports.reporter; }
    CommonDialog& dlgProp() override { return m_ports.dlgProp; }
    MessageBoxes& PageBoxes() override { return m_ports.boxes; }
    Live& PageLive() override { return m_ports.live; }

private:
    enum class CloseState : std::int16_t { Undecided = 0, Agreed = 1, Refused = 2 };

    struct Sizing {
        std::size_t handle = 0;
        Widget* widget = nullptr;
        Area before; // view coordinates
    };

    static const std::string editWords; // of most failures while editing

    // What is dragged: nothing, a widget, or the button of the toolbox with that index.
    using DragSource = std::variant<std::monostate, Widget*, std::size_t>;

    void LoadSettings();
    void ObtainCatalog();
    void BindBars();
    bool LoadBarsFile(const std::function<void()>& load);
    void ReadCommandLine(const std::string& tail);
    std::unique_ptr<clsCustView> MakeView();
    void abViewEdit_QueryClose(bool& cancel);

    void Replace(std::unique_ptr<clsCustView> view);
    void PrepareFileDialog(std::int32_t flags);
    bool SaveAs();

    Element* GetSelectedElement() const;
    void ShowPropertyPages(std::string_view name, bool reload);
    Widget& Selected() const; // fails with 91 without a selection
    float GetCanvasLeft(const Widget& widget) const;
    float GetCanvasTop(const Widget& widget) const;
    void UpdateEditTools();

    void Widget_MouseDown(Widget& widget, MouseButton button, float x, float y);
    void ssScroll_Scroll();
    void Canvas_Release(bool isBackground, MouseButton button);
    void DropControl(DragSource source, float x, float y, float offsetTop, float offsetLeft);
    void MoveSelected(float x, float y);
    void AddElement(std::size_t type, float x, float y);
    void FinishSizing();

    void tmrDelControl_Timer();
    void DeleteSelected();

    // The grid's steps in twips.
    float StepX() const noexcept { return m_gridSize * twipsPerPixelX; }
    float StepY() const noexcept { return m_gridSize * twipsPerPixelY; }
    // With snap on to the nearest step, halves to the even one; a step of 0 fails with 11. Else the value.
    float Snapped(double twips, float step) const;
    Area LandingPlace(float left, float top, const Widget& sizes) const;
    Area SnappedFrame() const;

    void abViewEdit_ToolClick(const std::string& tool);
    void abViewEdit_Band(const std::string& band, bool isOpen);

    EditorPorts m_ports;
    Canvas m_canvas;
    std::unique_ptr<Bars> m_bars;
    const BarsLayout m_builtInLayout;
    std::unique_ptr<frmViewToolbox> m_toolbox;
    std::unique_ptr<clsCustView> m_view;
    std::unique_ptr<PropertyPanel> m_panel;
    std::unique_ptr<Timer> tmrDelControl;
    Widget* m_selected = nullptr;
    DragSource m_drag;
    std::int16_t DragAnchorX = 0; // twips, within the widget
    std::int16_t DragAnchorY = 0;
    std::optional<Sizing> m_sizing;
    std::optional<std::vector<std::uint8_t>> ClipboardBytes;
    std::string m_currentFile;
    std::int32_t m_savedChecksum = 0;
    std::int16_t m_gridSize = 0; // pixels
    bool m_gridVisible = false;
    bool m_snapToGrid = false;
    bool m_skipSavePrompt = false;
    bool m_unloading = false;
    bool m_replacesLayout = false; // by the close: what couldn't be read is not lost
    bool m_replacesUsage = false;
    CloseState m_closeState = CloseState::Undecided;
    std::vector<Subscription> m_subscriptions;
};

} // namespace quor
