#pragma once
// A view opened by itself, without the editor around it.

#include "binding/live.h"
#include "document/kinds.h"
#include "document/view_document.h"
#include "widgets/canvas.h"

#include <memory>
#include <string>

namespace quor {

class LoneView {
public:
    explicit LoneView(const ViewPorts& ports)
    {
        constexpr std::int32_t width = 30'000; // twips
        constexpr std::int32_t height = 22'500;
        AddWidgetArrays(m_canvas);
        m_canvas.SetScrollMaxima(width, height);
        m_canvas.SetTracer(*ports.live.Tracer);
        m_view = std::make_unique<clsCustView>(ports, m_canvas);
    }

    void Load(const std::string& path) { m_view->LoadFile(path); }

    Canvas& OwnCanvas() noexcept { return m_canvas; }
    clsCustView& View() noexcept { return *m_view; }

private:
    Canvas m_canvas;
    std::unique_ptr<clsCustView> m_view;
};

} // namespace quor
