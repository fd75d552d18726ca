#pragma once
// The usual rows of the table.

#include "bench/results.h"

#include <cstdint>
#include <span>
#include <string>

namespace quor::bench {

// A view file's block of names has a 16-bit size, so files are measured with fewer elements than what lives in memory.
inline constexpr std::int64_t fileSizes[] = {100, 1'000, 5'000};
inline constexpr std::int64_t largestFile = 5'000;
inline constexpr std::int64_t memorySizes[] = {1'000, 30'000};

// The name of a benchmark with its size.
std::string Sized(const std::string& name, std::int64_t size);

// How many times the peer's time is the case's own.
Row FasterThan(const Results& results, const std::string& name, std::int64_t size, const std::string& peer,
               double limit);

// How many times the floor's time the case takes.
Row NotOver(const Results& results, const std::string& name, std::int64_t size, const std::string& floor, double limit);

// The time against the time allowed, in seconds.
Row Within(const Results& results, const std::string& name, std::int64_t size, double allowed);

// How the cost among many stands to the cost among few; the benchmark's run has so many steps.
Row Grown(const Results& results, const std::string& name, double steps, double limit);

// The power of the size with which the time grows; about 1 where it is linear.
Row Exponent(const Results& results, const std::string& name, std::span<const std::int64_t> sizes);

std::string Bytes(double bytes);

} // namespace quor::bench
