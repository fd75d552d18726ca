#include "tests/journey_driver/tracer.h"

#include "binding/mtr_data_source.h"
#include "elements/status_element.h"
#include "forms/bars.h"
#include "tests/journey_driver/format.h"

namespace quor {

namespace {

class PropertyLines final : public SayingVisitor {
public:
    PropertyLines(Stage& stage, const Widget& widget) : m_stage(stage), m_name(widget.Tag()) {}

private:
    void Say(std::string_view name, const std::string& value) override
    {
        m_stage.Tell(m_name, "write " + Quoted(m_name) + ' ' + std::string(name) + ' ' + value);
    }

    Stage& m_stage;
    const std::string m_name;
};

} // namespace

void Tracer::Writes(const Widget& widget, const WrittenProperty& property) const
{
    if (m_stage.IsTraced("widgets")) {
        PropertyLines lines(m_stage, widget);
        property.visit(lines, property);
    }
}

void Tracer::Repaints(const Widget& widget) const
{
    if (m_stage.IsTraced("widgets")) {
        m_stage.Tell(widget.Tag(), "repaint " + Quoted(widget.Tag()));
    }
}

template <class... Arguments>
void Tracer::Tell(const ServerListener& source, const std::string& event, const Arguments&... arguments) const
{
    m_stage.Tell(source, event + ((' ' + ValueText(arguments)) + ...));
}

void Tracer::UpdateBlnData(const clsBlnDataSource& source, bool value, bool mute) const
{
    Tell(source, "UpdateBlnData", value, mute);
}

void Tracer::LabelData(const clsBlnDataSource& source, const std::string& on, const std::string& off) const
{
    Tell(source, "LabelData", on, off);
}

void Tracer::UpdateMtrData(const clsMtrDataSource& source, float value, bool mute) const
{
    Tell(source, "UpdateMtrData", value, mute);
}

void Tracer::DecPlacesChanged(const clsMtrDataSource& source, std::int16_t places) const
{
    Tell(source, "DecPlacesChanged", std::int32_t{places});
}

void Tracer::LabelData(const clsMtrDataSource& source, const MeterLabel& label) const
{
    Tell(source, "LabelData", label.strLabel, label.sngMin, label.sngMax, label.sngSecondLower, label.sngFirstLower,
         label.sngFirstUpper, label.sngSecondUpper);
}

void Tracer::LabelData(const clsCmdDataSource& source, const std::string& caption) const
{
    Tell(source, "LabelData", caption);
}

void Tracer::ToggleEnable(const clsCmdDataSource& source, bool enable) const
{
    Tell(source, "ToggleEnable", enable);
}

void Tracer::Selects(const Widget* widget) const
{
    const std::string name = widget == nullptr ? "" : widget->Tag();
    if (widget == nullptr) {
        m_stage.out.Line("select none");
    } else if (name != m_selected) {
        m_stage.out.Line("select " + Quoted(name));
    }
    m_selected = name;
}

void Tracer::SetsStatus(const std::string& text) const
{
    // The fields of a page that takes over an element set one and the same text again and again.
    std::string line = "status " + Quoted(text);
    if (line != m_status) {
        m_stage.out.Line(line);
        m_status = std::move(line);
    }
}

void Tracer::SetsTabs(const Band& panel) const
{
    m_status.clear();
    std::string text = "tabs";
    for (const Band* child : panel.Children()) {
        if (child->Visible()) {
            text += ' ' + Quoted(child->Caption);
        }
    }
    m_stage.out.Line(text + " front " + Quoted(panel.CurrentChild() == nullptr ? "" : panel.CurrentChild()->Caption));
}

void Tracer::Calls(std::string_view verb, const std::string& page, const std::string& element) const
{
    if (m_stage.IsTraced("pages")) {
        m_stage.out.Line(std::string(verb) + ' ' + page + (verb == "SetOwner" ? ' ' + Quoted(element) : ""));
    }
}

void Tracer::Reports(const ErrorReport& report) const
{
    m_stage.out.Line("error " + Quoted(report.message) + " number " + ValueText(report.number) + " source " +
                     Quoted(report.source) + " description " + Quoted(report.description) + " ref " +
                     ValueText(report.ref));
}

void Tracer::Steps(std::int32_t progress) const
{
    if (m_stage.IsTraced("screen")) {
        m_stage.out.Line("progress step " + std::to_string(progress));
    }
}

} // namespace quor
