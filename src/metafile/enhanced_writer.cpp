#include "metafile/enhanced_writer.h"

#include "base/bytes.h"
#include "metafile/enhanced_types.h"

#include <algorithm>
#include <cmath>

namespace quor {

namespace {

constexpr std::size_t lengthOffset = 48;
constexpr std::size_t recordsOffset = 52;

} // namespace

EnhancedWriter::EnhancedWriter(double pixelWidth, double pixelHeight)
{
    constexpr std::int64_t sign = 0x464D4520;
    constexpr std::int64_t version = 0x10000;
    constexpr std::int64_t handles = 0xFFFF;
    constexpr double frameUnits = 2540 / 96.0; // hundredths of a millimetre in a pixel
    const auto width = static_cast<std::int64_t>(std::ceil(pixelWidth));
    const auto height = static_cast<std::int64_t>(std::ceil(pixelHeight));
    // A frame of nothing would be no metafile.
    const auto inFrame = [](double pixels) { return std::max<std::int64_t>(1, std::llround(pixels * frameUnits)); };
    const std::int64_t right = inFrame(pixelWidth);
    const std::int64_t bottom = inFrame(pixelHeight);
    // Bounds, frame, sign, version, length, records, handles, three that stay 0, and a device of 96 dots an inch.
    Add(enhanced_types::header,
        {0, 0, width - 1, height - 1, 0,   0,   right, bottom, sign, version, 0,       0,      handles,
         0, 0, 0,         960,        960, 254, 254,   0,      0,    0,       254'000, 254'000});
}

void EnhancedWriter::Put(std::int64_t number)
{
    m_bytes.resize(m_bytes.size() + sizeof(std::uint32_t));
    StoreNumber(m_bytes.data() + m_bytes.size() - sizeof(std::uint32_t), static_cast<std::uint32_t>(number));
}

void EnhancedWriter::Add(std::uint32_t type, std::span<const std::int64_t> numbers, std::span<const std::uint8_t> bytes)
{
    const std::size_t padding = (4 - bytes.size() % 4) % 4;
    Put(type);
    Put(static_cast<std::int64_t>(8 + 4 * numbers.size() + bytes.size() + padding));
    for (const std::int64_t number : numbers) {
        Put(number);
    }
    m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
    m_bytes.insert(m_bytes.end(), padding, 0);
    ++m_records;
}

void EnhancedWriter::AddFont(std::int64_t handle, const std::array<std::int64_t, 5>& measures,
                             std::span<const std::uint8_t> flags, std::span<const std::uint8_t> wideName)
{
    constexpr std::size_t flagsSize = 8;
    constexpr std::size_t mostName = 62;
    constexpr std::size_t restSize = 300; // with what the record holds besides
    std::vector<std::uint8_t> rest(flags.begin(), flags.end());
    rest.resize(flagsSize);
    const auto name = wideName.first(std::min(wideName.size(), mostName));
    rest.insert(rest.end(), name.begin(), name.end());
    rest.resize(restSize);
    Add(enhanced_types::createFont, {handle, measures[0], measures[1], measures[2], measures[3], measures[4]}, rest);
}

void EnhancedWriter::AddText(std::int64_t x, std::int64_t y, std::span<const std::uint8_t> wideLetters)
{
    constexpr std::int64_t fixedSize = 76;        // of the record before the letters
    constexpr std::int64_t oneToOne = 0x3F800000; // as a 32-bit float
    const auto count = static_cast<std::int64_t>(wideLetters.size() / 2);
    if (count > 0) {
        Add(enhanced_types::textOut, {0, 0, 0, 0, 1, oneToOne, oneToOne, x, y, count, fixedSize, 0, 0, 0, 0, 0, 0},
            wideLetters);
    }
}

std::vector<std::uint8_t> EnhancedWriter::Finish()
{
    Add(enhanced_types::endOfFile, {0, 16, 20});
    StoreNumber(m_bytes.data() + lengthOffset, static_cast<std::uint32_t>(m_bytes.size()));
    StoreNumber(m_bytes.data() + recordsOffset, m_records);
    return std::move(m_bytes);
}

} // namespace quor
