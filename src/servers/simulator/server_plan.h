#pragma once
// What a data server holds and what its catalogue lists, and the file that tells it: one JSON object with "AppAlarms"
// and "Sites", each with its "Units". What is missing there is empty, 0 or false.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

struct MeterPlan {
    std::string label;
    float calibration = 0;         // engineering units a count
    std::uint8_t type = 0;         // 1 reads both ways from zero
    std::array<float, 4> limits{}; // from the second lower to the second upper
};

struct StatusPlan {
    std::string off;
    std::string on;
    std::array<std::string, 2> texts; // first and second, of the channel table
};

struct CommandPlan {
    std::string a;
    std::string b;
};

struct MacroPlan {
    std::string name;
    bool running = false;
};

struct UnitPlan {
    static constexpr std::size_t channels = 16;
    static constexpr std::size_t macroCount = 32;
    static constexpr std::uint8_t highestNumber = 16; // the voice interface

    std::uint8_t number = 0;
    std::string name;
    bool localMode = false;
    bool eventsPending = false;
    std::array<MeterPlan, channels> meters; // channel 1 first
    std::array<StatusPlan, channels> statuses;
    std::array<CommandPlan, channels> commands;
    std::array<MacroPlan, macroCount> macros;
};

struct SitePlan {
    std::string netName;
    bool usingBackup = false;
    bool siteAlarms = false;
    bool catalogOnly = false; // the catalogue lists it and the server doesn't hold it
    std::vector<UnitPlan> units;
};

struct ServerPlan {
    bool appAlarms = false;
    std::vector<SitePlan> sites; // in the order of the server and the catalogue
};

// Fails as ParseJson and JsonValue do for a text that doesn't tell a server.
ServerPlan ReadServerPlan(std::string_view json);

} // namespace quor
