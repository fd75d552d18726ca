// The grid: its lines, the snap, and the two commands that bring the selected element onto it.

#include "base/guard.h"
#include "base/narrow.h"
#include "document/view_document.h"
#include "editor/main_form.h"
#include "forms/bars.h"
#include "platform/settings.h"

namespace quor {

const std::string frmMain::editWords =
    std::string(appTitle) + " encountered an error while editing the view. Please try again.";

float RoundToStep(double value, float step)
{
    if (step == 0) {
        throw Failure(failures::divisionByZero);
    }
    return ToSingle(RoundHalfEven(value / step) * step);
}

float frmMain::Snapped(double twips, float step) const
{
    return m_snapToGrid ? RoundToStep(twips, step) : ToSingle(twips);
}

void frmMain::LoadGrid()
{
    // Each family of lines has the step of the other axis. New lines start hidden.
    m_canvas.SetGrid({StepY(), StepX(), static_cast<float>(m_canvas.ScrollMaxX()),
                      static_cast<float>(m_canvas.ScrollMaxY()), false});
}

void frmMain::ShowGrid()
{
    Guard(m_ports.reporter, Ref("frmMain.ShowGrid"), "Unable to display the grid.", [&] {
        GridLines grid = m_canvas.Grid();
        grid.visible = true;
        m_canvas.SetGrid(grid);
        m_view->RepaintAll();
        m_gridVisible = true;
    });
}

void frmMain::HideGrid()
{
    Guard(m_ports.reporter, Ref("frmMain.HideGrid"), "Unable to hide the grid.", [&] {
        GridLines grid = m_canvas.Grid();
        grid.visible = false;
        m_canvas.SetGrid(grid);
        m_view->RepaintAll();
        m_gridVisible = false;
    });
}

void frmMain::ToggleGrid()
{
    BarTool& tool = m_bars->Tool("miGrid");
    const bool shows = !tool.Checked();
    tool.Set(&BarTool::Checked, shows);
    if (shows) {
        ShowGrid();
    } else {
        HideGrid();
    }
    m_ports.settings.SetShowGrid(shows);
}

void frmMain::ToggleSnap()
{
    m_snapToGrid = !m_snapToGrid;
    m_bars->Tool("miSnapToGrid").Set(&BarTool::Checked, m_snapToGrid);
    m_ports.settings.SetSnapToGrid(m_snapToGrid);
}

// Both commands read the widget's place within the visible canvas and write view coordinates, as they always have.

void frmMain::AlignToGrid()
{
    Guard(m_ports.reporter, Ref("frmMain.AlignToGrid"), editWords, [&] {
        Element& element = *GetSelectedElement();
        Widget& widget = Selected();
        element.Set(&Element::ObjTop, RoundToStep(widget.Top(), StepY()));
        element.Set(&Element::ObjLeft, RoundToStep(widget.Left(), StepX()));
        PositionHandles(widget);
    });
}

void frmMain::SizeToGrid()
{
    Guard(m_ports.reporter, Ref("frmMain.SizeToGrid"), editWords, [&] {
        Element& element = *GetSelectedElement();
        Widget& widget = Selected();
        element.Set(&Element::ObjHeight, RoundToStep(widget.Height(), StepY()));
        element.Set(&Element::ObjWidth, RoundToStep(widget.Width(), StepX()));
        PositionHandles(widget);
    });
}

} // namespace quor
