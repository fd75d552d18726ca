#include "editor/view_grid.h"

#include "base/guard.h"
#include "base/narrow.h"
#include "document/view_document.h"
#include "editor/main_form.h"
#include "platform/settings.h"

namespace quor {

static_assert(twipsPerPixelX == twipsPerPixelY, "the grid has one step");

float ViewGrid::Rounded(double twips) const
{
    const float step = m_size * twipsPerPixelX;
    if (step == 0) {
        throw Failure(failures::divisionByZero);
    }
    return ToSingle(RoundHalfEven(twips / step) * step);
}

float ViewGrid::Snapped(double twips) const
{
    return m_snaps ? Rounded(twips) : ToSingle(twips);
}

void ViewGrid::Load()
{
    Canvas& canvas = m_main.ssScroll();
    const float step = m_size * twipsPerPixelX;
    canvas.SetGrid(
        {step, step, static_cast<float>(canvas.ScrollMaxX()), static_cast<float>(canvas.ScrollMaxY()), false});
}

void ViewGrid::Show(bool show)
{
    Guard(m_ports.reporter, show ? Ref("frmMain.ShowGrid") : Ref("frmMain.HideGrid"),
          show ? "Unable to display the grid." : "Unable to hide the grid.", [&] {
              GridLines lines = m_main.ssScroll().Grid();
              lines.visible = show;
              m_main.ssScroll().SetGrid(lines);
              m_main.View().RepaintAll();
              m_isShown = show;
          });
}

void ViewGrid::LoadSettings()
{
    const bool show = m_ports.settings.ShowGrid();
    Show(show);
    m_main.abViewEdit().Tool("miGrid").Set(&BarTool::Checked, show);
    SetSnap(m_ports.settings.SnapToGrid());
}

void ViewGrid::Toggle()
{
    BarTool& tool = m_main.abViewEdit().Tool("miGrid");
    const bool show = !tool.Checked();
    tool.Set(&BarTool::Checked, show);
    Show(show);
    m_ports.settings.SetShowGrid(show);
}

void ViewGrid::ToggleSnap()
{
    SetSnap(!m_snaps);
    m_ports.settings.SetSnapToGrid(m_snaps);
}

void ViewGrid::SetSnap(bool snaps)
{
    m_snaps = snaps;
    m_main.abViewEdit().Tool("miSnapToGrid").Set(&BarTool::Checked, snaps);
}

} // namespace quor
