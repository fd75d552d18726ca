#pragma once
// Tells what the program does besides what it asks of its ports.

#include "platform/trace.h"
#include "tests/journey_driver/stage.h"

#include <string>

namespace quor {

class Tracer final : public Trace {
public:
    explicit Tracer(Stage& stage) : m_stage(stage) {}

    void BeginStep() { m_status.clear(); }
    void BeginProgram() { m_selected.clear(); }

    void Writes(const Widget& widget, const WrittenProperty& property) const override;
    void Repaints(const Widget& widget) const override;
    void UpdateBlnData(const clsBlnDataSource& source, bool value, bool mute) const override;
    void LabelData(const clsBlnDataSource& source, const std::string& on, const std::string& off) const override;
    void UpdateMtrData(const clsMtrDataSource& source, float value, bool mute) const override;
    void DecPlacesChanged(const clsMtrDataSource& source, std::int16_t places) const override;
    void LabelData(const clsMtrDataSource& source, const MeterLabel& label) const override;
    void LabelData(const clsCmdDataSource& source, const std::string& caption) const override;
    void ToggleEnable(const clsCmdDataSource& source, bool enable) const override;
    void Selects(const Widget* widget) const override;
    void SetsStatus(const std::string& text) const override;
    void SetsTabs(const Band& panel) const override;
    void Calls(std::string_view verb, const std::string& page, const std::string& element) const override;
    void Reports(const ErrorReport& report) const override;
    void Steps(std::int32_t progress) const override;

private:
    template <class... Arguments>
    void Tell(const ServerListener& source, const std::string& event, const Arguments&... arguments) const;

    Stage& m_stage;
    mutable std::string m_selected; // the name of the selected element
    mutable std::string m_status;   // the line that was last told in this step
};

} // namespace quor
