#pragma once
// The grid: its pitch, the lines that show it, and the snap to it.

#include "editor/editor_ports.h"

#include <cstdint>

namespace quor {

class frmMain;

class ViewGrid {
public:
    ViewGrid(frmMain& main, const EditorPorts& ports) : m_main(main), m_ports(ports) {}

    std::int16_t Size() const noexcept { return m_size; } // pixels
    void SetSize(std::int16_t pixels) noexcept { m_size = pixels; }

    // New lines, hidden, of the present pitch. Others keep that of their load.
    void Load();
    void Show(bool show);
    bool IsShown() const noexcept { return m_isShown; }

    // What the settings say of lines and snap.
    void LoadSettings();
    void Toggle();
    void ToggleSnap();

    // Twips to the nearest line, exact halves to the even one; fails with 11 for a pitch of 0.
    float Rounded(double twips) const;
    // The same while the snap is on; else as they are.
    float Snapped(double twips) const;

private:
    void SetSnap(bool snaps);

    frmMain& m_main;
    EditorPorts m_ports;
    std::int16_t m_size = 0;
    bool m_isShown = false;
    bool m_snaps = false;
};

} // namespace quor
