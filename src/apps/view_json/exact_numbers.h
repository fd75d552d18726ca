#pragma once
// Numbers of a record that a number of JSON can't hold to the last bit, as texts.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quor {

// The size of a font in points, from what a record holds and back; nothing where a record can't hold it.
double PointsOf(std::int64_t size);
std::optional<std::int64_t> SizeOfPoints(double points);

// The same to the last digit: "922337203685477.5807". Nothing for a text that isn't of this form, or too large.
std::string SizeText(std::int64_t size);
std::optional<std::int64_t> ReadSize(std::string_view text);

// "NaN", or with its bits where they aren't the usual ones: "NaN(ffc00001)".
std::string NanText(float value);

// Of that form, or "Infinity", or "-Infinity".
std::optional<float> ReadNoNumber(std::string_view text);

} // namespace quor
