#pragma once
// What a status element watches, and the one Boolean that comes of it.

#include "binding/data_source.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace quor {

// A value or limit that isn't known.
inline constexpr float NoData = -10000.0F;

// What BlnDataType says.
namespace watch {
inline constexpr std::int32_t nothing = 0;
inline constexpr std::int32_t belowSecondLower = 1;
inline constexpr std::int32_t belowFirstLower = 2;
inline constexpr std::int32_t aboveFirstUpper = 3;
inline constexpr std::int32_t aboveSecondUpper = 4;
inline constexpr std::int32_t outsideLimits = 5;
inline constexpr std::int32_t primaryPath = 6;
inline constexpr std::int32_t backupPath = 7;
inline constexpr std::int32_t siteAlarms = 8;
inline constexpr std::int32_t unitAlarms = 9;
inline constexpr std::int32_t anyAlarms = 10;
inline constexpr std::int32_t commandA = 11;
inline constexpr std::int32_t commandB = 12;
inline constexpr std::int32_t meterMute = 13;
inline constexpr std::int32_t statusMute = 14;
inline constexpr std::int32_t localMode = 15;
inline constexpr std::int32_t capturesPending = 16;
inline constexpr std::int32_t macroRunning = 17;
inline constexpr std::int32_t statusOn = 18;
} // namespace watch

// The element that owns a source and hears it. It may end the source while it hears.
class BlnOwner {
public:
    // The value, and whether it isn't to be trusted.
    virtual void m_BlnDataSource_UpdateBlnData(bool blnValue, bool blnMute) = 0;
    virtual void m_BlnDataSource_LabelData(const std::string& /*strCaptionOn*/, const std::string& /*strCaptionOff*/) {}

protected:
    ~BlnOwner() = default;
};

class clsBlnDataSource final : public DataSourceOn<clsBlnDataSource> {
public:
    static constexpr std::string_view name = "BlnDataSource";

    Property<"BlnDataType", std::int32_t> BlnDataType;

    clsBlnDataSource(Live& live, BlnOwner& owner);
    ~clsBlnDataSource();

    bool blnValue() const noexcept { return m_value; }

    // Sets the value from outside and passes it on.
    void ForceValue(bool value, bool mute);

    // Brings the source up to date; what it can't find out shows as false and muted.
    void RefreshData();

    void Fields(FieldWalk& record);
    void Follow();

private:
    void m_Srv_ConfigData(const ConfigDataEvent& event) override;
    void m_Srv_Connected(const std::string& netName, std::int32_t status) override;
    void m_Srv_Disconnected(const std::string& netName, std::int32_t reason) override;
    void m_Srv_RemoteLocalChange(const std::string& netName, std::uint8_t unit, bool localOnly) override;
    void m_Srv_AlarmFlagChange(const std::string& netName, std::uint8_t unit, bool alarmsPending,
                               bool siteAlarms) override;
    void m_Srv_FlagReport(const FlagReportEvent& event) override;
    void m_Srv_MacroStatus(const std::string& netName, std::uint8_t unit, std::uint8_t macro, bool running) override;
    void m_Srv_Values(const ValuesEvent& event) override;

    bool WatchesLimits() const noexcept
    {
        return BlnDataType() >= watch::belowSecondLower && BlnDataType() <= watch::outsideLimits;
    }
    void SetValue(bool value, bool mute);
    void Refresh();
    std::weak_ptr<char> Life(); // expires with the source
    void RaiseUpdate(bool value, bool mute);
    // False if the owner has ended the source by it.
    [[nodiscard]] bool RaiseLabel(const std::string& on, const std::string& off);
    [[nodiscard]] bool Label(const ConfigDataEvent& event);
    void TakeLimits(const ConfigDataEvent& event);
    float FirstLimit() const noexcept;
    bool IsOutside() const noexcept;
    bool OtherSiteAlarms(const std::string& netName) const;

    BlnOwner& m_owner;
    float LimitFirstLower = NoData;
    float LimitSecondLower = NoData;
    float LimitFirstUpper = NoData;
    float LimitSecondUpper = NoData;
    float LastValue = NoData;
    bool m_value = false;
    bool HasData = false;
    std::shared_ptr<char> m_life; // made when it is first asked for
};

} // namespace quor
