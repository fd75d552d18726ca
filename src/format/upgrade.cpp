#include "format/upgrade.h"

#include "base/bytes.h"
#include "base/failure.h"
#include "base/narrow.h"
#include "format/view_file.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quor {

namespace {

using Bytes = std::vector<std::uint8_t>;

// Bytes that go into the payload of each record of a type.
struct Insertion {
    std::uint8_t type;
    std::size_t offset;
    std::array<std::uint8_t, 4> bytes;
    std::size_t count;
};

constexpr Insertion toVersion2[] = {{2, 85, {20, 0}, 2}};
constexpr Insertion toVersion3[] = {{2, 87, {}, 4}, {3, 21, {}, 3}};

[[noreturn]] void FailOutOfRange(const std::string& what)
{
    throw Failure(failures::outOfRange, what);
}

// Takes a piece off the front.
std::span<const std::uint8_t> Take(std::span<const std::uint8_t>& rest, std::size_t count)
{
    if (count > rest.size()) {
        FailOutOfRange("The file ends " + std::to_string(count - rest.size()) + " bytes too early.");
    }
    const auto piece = rest.first(count);
    rest = rest.subspan(count);
    return piece;
}

template <class Number> std::size_t SizeAt(std::span<const std::uint8_t> bytes, std::size_t at, std::string_view what)
{
    const auto value = LoadNumber<Number>(bytes.data() + at);
    if (value < 0) {
        FailOutOfRange(std::string(what) + " is " + std::to_string(value) + '.');
    }
    return static_cast<std::size_t>(value);
}

// A whole record with its frame.
std::span<const std::uint8_t> TakeRecord(std::span<const std::uint8_t>& rest)
{
    auto ahead = rest;
    const auto frame = Take(ahead, view_file::frameSize);
    return Take(rest, view_file::frameSize + SizeAt<std::int16_t>(frame, 1, "The payload's size of a record"));
}

void Append(Bytes& bytes, std::span<const std::uint8_t> more)
{
    bytes.insert(bytes.end(), more.begin(), more.end());
}

void AppendGrown(Bytes& bytes, std::span<const std::uint8_t> record, const Insertion& insertion)
{
    const std::size_t start = bytes.size();
    const auto payload = record.subspan(view_file::frameSize);
    if (payload.size() < insertion.offset) {
        FailOutOfRange("A record of type " + std::to_string(insertion.type) + " has only " +
                       std::to_string(payload.size()) + " bytes.");
    }
    Append(bytes, record.first(view_file::frameSize + insertion.offset));
    Append(bytes, std::span(insertion.bytes).first(insertion.count));
    Append(bytes, payload.subspan(insertion.offset));
    StoreNumber(bytes.data() + start + 1, Narrow<std::int16_t>(payload.size() + insertion.count));
}

// Version and checksum.
void Complete(Bytes& bytes, std::size_t recordsAt, std::uint8_t version)
{
    if (bytes.size() < recordsAt + view_file::checksumSize) {
        FailOutOfRange("The file has no room for a checksum.");
    }
    bytes[view_file::versionAt] = version;
    const auto summed = std::span(bytes).subspan(recordsAt, bytes.size() - view_file::checksumSize - recordsAt);
    StoreNumber(bytes.data() + bytes.size() - view_file::checksumSize, Narrow<std::int32_t>(SumOfBytes(summed)));
}

Bytes Upgrade(std::span<const std::uint8_t> file, std::span<const Insertion> insertions, std::uint8_t version)
{
    constexpr std::string_view inHeader = "A size in the header";
    auto rest = file;
    const auto header = Take(rest, view_file::headerSize);
    const std::size_t recordCount = SizeAt<std::int32_t>(header, view_file::recordCountAt, inHeader);
    const std::size_t nameBlockSize = SizeAt<std::int16_t>(header, view_file::nameBlockSizeAt, inHeader);
    const std::size_t titleSize = SizeAt<std::int16_t>(header, view_file::nameLengthAt, inHeader) +
                                  SizeAt<std::int16_t>(header, view_file::categoryLengthAt, inHeader);
    const std::size_t recordsAt = view_file::headerSize + titleSize;
    Bytes result;
    result.reserve(file.size());
    Append(result, header);
    Append(result, Take(rest, titleSize));
    std::size_t inserted = 0;
    for (std::size_t index = 0; index < recordCount; ++index) {
        const auto record = TakeRecord(rest);
        const auto insertion = std::ranges::find(insertions, record[0], &Insertion::type);
        if (insertion != insertions.end()) {
            AppendGrown(result, record, *insertion);
            inserted += insertion->count;
        } else {
            Append(result, record);
        }
    }
    if (inserted == 0) {
        result.assign(file.begin(), file.end());
    } else {
        StoreNumber(result.data() + view_file::recordBlockSizeAt, Narrow<std::int32_t>(result.size() - recordsAt));
        Append(result, Take(rest, nameBlockSize));
        Take(rest, view_file::checksumSize);
        result.resize(file.size() + inserted);
    }
    Complete(result, recordsAt, version);
    return result;
}

} // namespace

std::vector<std::uint8_t> UpgradeToVersion2(std::span<const std::uint8_t> file)
{
    return Upgrade(file, toVersion2, 2);
}

std::vector<std::uint8_t> UpgradeToVersion3(std::span<const std::uint8_t> file)
{
    return Upgrade(file, toVersion3, 3);
}

std::string BackupPath(std::string_view path)
{
    for (int cut = 0; cut < 4; ++cut) {
        if (path.empty()) {
            throw Failure(failures::invalidCall);
        }
        // Also the bytes that continue the character.
        while (path.size() > 1 && (static_cast<unsigned char>(path.back()) & 0xC0U) == 0x80U) {
            path.remove_suffix(1);
        }
        path.remove_suffix(1);
    }
    return std::string(path) + ".bak";
}

} // namespace quor
