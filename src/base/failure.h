#pragma once
// The one exception of the program: a failure with the number, source and description that a report shows.

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace quor {

// The conventional numbers of run-time failures.
namespace failures {
inline constexpr std::int32_t invalidCall = 5; // also an unknown key
inline constexpr std::int32_t overflow = 6;
inline constexpr std::int32_t outOfMemory = 7;
inline constexpr std::int32_t outOfRange = 9; // also an unknown position
inline constexpr std::int32_t divisionByZero = 11;
inline constexpr std::int32_t typeMismatch = 13;
inline constexpr std::int32_t internal = 51;
inline constexpr std::int32_t fileNotFound = 53;
inline constexpr std::int32_t permissionDenied = 70;
inline constexpr std::int32_t pathFileAccess = 75;
inline constexpr std::int32_t pathNotFound = 76;
inline constexpr std::int32_t objectNotSet = 91;
inline constexpr std::int32_t invalidPropertyValue = 380;
inline constexpr std::int32_t keyInUse = 457;
inline constexpr std::int32_t invalidPicture = 481;
} // namespace failures

class Failure final : public std::exception {
public:
    // An empty description becomes the usual words for the number. An empty source is filled in by the guard that
    // catches the failure.
    explicit Failure(std::int32_t number, std::string description = {}, std::string source = {});

    std::int32_t Number() const noexcept { return m_number; }
    const std::string& Source() const noexcept { return m_source; }
    const std::string& Description() const noexcept { return m_description; }
    const char* what() const noexcept override { return m_description.c_str(); }

private:
    std::int32_t m_number;
    std::string m_source;
    std::string m_description;
};

// The usual words for a number, such as "Overflow".
std::string_view DescriptionOf(std::int32_t number) noexcept;

// What is being handled right now, as a failure: foreign exceptions become 7 (no memory) or 51. Only inside a handler.
Failure CurrentFailure();

} // namespace quor
