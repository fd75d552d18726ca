#include "bench/rows.h"

#include <cmath>
#include <cstdio>

namespace quor::bench {

namespace {

Row Beside(const Results& results, const std::string& name, std::int64_t size, const std::string& other)
{
    return {name, std::to_string(size), Duration(results.Seconds(Sized(name, size))),
            Duration(results.Seconds(Sized(other, size))) + " " + other};
}

} // namespace

std::string Sized(const std::string& name, std::int64_t size)
{
    return name + "/" + std::to_string(size);
}

Row FasterThan(const Results& results, const std::string& name, std::int64_t size, const std::string& peer,
               double limit)
{
    Row row = Beside(results, name, size, peer);
    row.ratio = results.Seconds(Sized(peer, size)) / results.Seconds(Sized(name, size));
    row.limit = limit;
    row.isAtLeast = true;
    return row;
}

Row NotOver(const Results& results, const std::string& name, std::int64_t size, const std::string& floor, double limit)
{
    Row row = Beside(results, name, size, floor);
    row.ratio = results.Seconds(Sized(name, size)) / results.Seconds(Sized(floor, size));
    row.limit = limit;
    return row;
}

Row Within(const Results& results, const std::string& name, std::int64_t size, double allowed)
{
    const double seconds = results.Seconds(Sized(name, size));
    return {name, std::to_string(size), Duration(seconds), Duration(allowed) + " allowed", seconds / allowed, 1};
}

Row Grown(const Results& results, const std::string& name, double steps, double limit)
{
    const auto [few, many] = std::pair(memorySizes[0], memorySizes[1]);
    const double amongMany = results.Seconds(Sized(name, many)) / steps;
    const double amongFew = results.Seconds(Sized(name, few)) / steps;
    return {name,
            std::to_string(many),
            Duration(amongMany),
            Duration(amongFew) + " among " + std::to_string(few),
            amongMany / amongFew,
            limit};
}

Row Exponent(const Results& results, const std::string& name, std::span<const std::int64_t> sizes)
{
    // Linear but for what the clock and a shared machine add.
    const double mostExponent = 1.1;
    double sumX = 0;
    double sumY = 0;
    double sumXX = 0;
    double sumXY = 0;
    for (const std::int64_t size : sizes) {
        const double x = std::log(static_cast<double>(size));
        const double y = std::log(results.Seconds(Sized(name, size)));
        sumX += x;
        sumY += y;
        sumXX += x * x;
        sumXY += x * y;
    }
    const auto count = static_cast<double>(sizes.size());
    const double exponent = (count * sumXY - sumX * sumY) / (count * sumXX - sumX * sumX);
    return {name + ", exponent",
            std::to_string(sizes.front()) + "-" + std::to_string(sizes.back()),
            "",
            "1 is linear",
            exponent,
            mostExponent};
}

std::string Bytes(double bytes)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.0f B", bytes);
    return text;
}

} // namespace quor::bench
