#pragma once
// Tells what is written to widgets, and their repaints.

#include "tests/journey_driver/format.h"
#include "tests/journey_driver/stage.h"
#include "widgets/widget.h"

#include <string>

namespace quor {

class WidgetTracer final : public SayingVisitor<WidgetTrace> {
public:
    explicit WidgetTracer(Stage& stage) : m_stage(stage) {}

    void Writes(const Widget& widget) override { m_name = widget.Tag(); }
    void Repaints(const Widget& widget) override
    {
        m_name = widget.Tag();
        Line("repaint " + Quoted(m_name));
    }

private:
    void Say(std::string_view name, const std::string& value) override
    {
        Line("write " + Quoted(m_name) + ' ' + std::string(name) + ' ' + value);
    }

    void Line(const std::string& line)
    {
        if (m_stage.IsTraced("widgets")) {
            m_stage.Tell(m_name, line);
        }
    }

    Stage& m_stage;
    std::string m_name;
};

} // namespace quor
