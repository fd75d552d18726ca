#include "apps/view_json/exact_numbers.h"

#include "base/narrow.h"
#include "base/text.h"

#include <bit>
#include <cmath>
#include <cstdio>
#include <limits>

namespace quor {

namespace {

constexpr int sizeUnits = 10'000; // to a point
constexpr std::size_t sizeDigits = 4;
constexpr std::string_view nan = "NaN";
constexpr auto usualNan = std::numeric_limits<float>::quiet_NaN();
constexpr auto infinity = std::numeric_limits<float>::infinity();

} // namespace

double PointsOf(std::int64_t size)
{
    return static_cast<double>(size) / sizeUnits;
}

std::optional<std::int64_t> SizeOfPoints(double points)
{
    const double size = RoundHalfEven(points * sizeUnits);
    return std::abs(size) < 0x1p63 ? std::optional(static_cast<std::int64_t>(size)) : std::nullopt;
}

std::string SizeText(std::int64_t size)
{
    std::string text = std::to_string(size);
    const std::size_t sign = size < 0 ? 1 : 0;
    if (text.size() - sign <= sizeDigits) {
        text.insert(sign, sizeDigits + 1 - (text.size() - sign), '0');
    }
    return text.insert(text.size() - sizeDigits, ".");
}

std::optional<std::int64_t> ReadSize(std::string_view text)
{
    const std::size_t point = text.size() - sizeDigits - 1;
    if (text.size() < sizeDigits + 2 || text[point] != '.') {
        return std::nullopt;
    }
    return ReadNumber<std::int64_t>(std::string(text.substr(0, point)).append(text.substr(point + 1)));
}

std::string NanText(float value)
{
    const auto bits = std::bit_cast<std::uint32_t>(value);
    if (bits == std::bit_cast<std::uint32_t>(usualNan)) {
        return std::string(nan);
    }
    char text[16];
    std::snprintf(text, sizeof text, "NaN(%08x)", bits);
    return text;
}

std::optional<float> ReadNoNumber(std::string_view text)
{
    if (text == nan) {
        return usualNan;
    }
    if (text == "Infinity" || text == "-Infinity") {
        return text.front() == '-' ? -infinity : infinity;
    }
    const auto bits =
        text.size() > nan.size() + 2 ? ReadNumber<std::uint32_t>(text.substr(nan.size() + 1, 8), 16) : std::nullopt;
    const float value = bits ? std::bit_cast<float>(*bits) : 0;
    return std::isnan(value) && NanText(value) == text ? std::optional(value) : std::nullopt;
}

} // namespace quor
