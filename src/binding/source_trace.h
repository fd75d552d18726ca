#pragma once
// Who wants to know of every event that the sources raise, ahead of all who hear it.

#include <cstdint>
#include <string>

namespace quor {

class clsBlnDataSource;
class clsCmdDataSource;
class clsMtrDataSource;
struct MeterLabel;

class SourceTrace {
public:
    virtual void UpdateBlnData(const clsBlnDataSource& source, bool value, bool mute) = 0;
    virtual void LabelData(const clsBlnDataSource& source, const std::string& on, const std::string& off) = 0;
    virtual void UpdateMtrData(const clsMtrDataSource& source, float value, bool mute) = 0;
    virtual void DecPlacesChanged(const clsMtrDataSource& source, std::int16_t places) = 0;
    virtual void LabelData(const clsMtrDataSource& source, const MeterLabel& label) = 0;
    virtual void LabelData(const clsCmdDataSource& source, const std::string& caption) = 0;
    virtual void ToggleEnable(const clsCmdDataSource& source, bool enable) = 0;

protected:
    ~SourceTrace() = default;
};

} // namespace quor
