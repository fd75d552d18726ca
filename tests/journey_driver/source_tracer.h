#pragma once
// Tells what the sources raise.

#include "binding/mtr_data_source.h"
#include "binding/source_trace.h"
#include "elements/status_element.h"
#include "tests/journey_driver/format.h"
#include "tests/journey_driver/stage.h"

#include <string>

namespace quor {

class SourceTracer final : public SourceTrace {
public:
    explicit SourceTracer(Stage& stage) : m_stage(stage) {}

    void UpdateBlnData(const clsBlnDataSource& source, bool value, bool mute) override
    {
        Tell(source, "UpdateBlnData", value, mute);
    }
    void LabelData(const clsBlnDataSource& source, const std::string& on, const std::string& off) override
    {
        Tell(source, "LabelData", on, off);
    }
    void UpdateMtrData(const clsMtrDataSource& source, float value, bool mute) override
    {
        Tell(source, "UpdateMtrData", value, mute);
    }
    void DecPlacesChanged(const clsMtrDataSource& source, std::int16_t places) override
    {
        Tell(source, "DecPlacesChanged", std::int32_t{places});
    }
    void LabelData(const clsMtrDataSource& source, const MeterLabel& label) override
    {
        Tell(source, "LabelData", label.strLabel, label.sngMin, label.sngMax, label.sngSecondLower, label.sngFirstLower,
             label.sngFirstUpper, label.sngSecondUpper);
    }
    void LabelData(const clsCmdDataSource& source, const std::string& caption) override
    {
        Tell(source, "LabelData", caption);
    }
    void ToggleEnable(const clsCmdDataSource& source, bool enable) override { Tell(source, "ToggleEnable", enable); }

private:
    template <class... Arguments>
    void Tell(const ServerListener& source, const std::string& event, const Arguments&... arguments)
    {
        m_stage.Tell(source, event + ((' ' + ValueText(arguments)) + ...));
    }

    Stage& m_stage;
};

} // namespace quor
