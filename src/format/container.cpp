#include "format/container.h"

#include "base/bytes.h"
#include "base/failure.h"
#include "base/narrow.h"
#include "base/text.h"
#include "format/record.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace quor {

namespace {

template <class Number> Number NotNegative(Number value, std::string_view what)
{
    if (value < 0) {
        throw Failure(failures::outOfRange, "The " + std::string(what) + " is " + std::to_string(value) + ".");
    }
    return value;
}

template <class Number> Number HeaderField(std::span<const std::uint8_t> header, std::size_t at, std::string_view what)
{
    return NotNegative(LoadNumber<Number>(header.data() + at), what);
}

} // namespace

std::span<const std::uint8_t> FileWindow::View(std::int64_t position, std::size_t count)
{
    const std::int64_t offset = position - m_start;
    const auto held = static_cast<std::int64_t>(m_bytes.size());
    if (offset < 0 || offset + static_cast<std::int64_t>(count) > held) {
        m_bytes.resize(longestView);
        m_start = position;
        const std::size_t read = m_file.Read(position, m_bytes);
        std::fill(m_bytes.begin() + static_cast<std::ptrdiff_t>(read), m_bytes.end(), std::uint8_t{0});
        return std::span(m_bytes).first(count);
    }
    return std::span(m_bytes).subspan(static_cast<std::size_t>(offset), count);
}

ContainerReader::ContainerReader(OpenFile& file) : m_file(file), m_window(file)
{
    const auto header = m_window.View(0, view_file::headerSize);
    m_header.isViewFile = std::equal(view_file::magic.begin(), view_file::magic.end(), header.begin());
    m_header.version = header[view_file::versionAt];
    if (!m_header.isViewFile || m_header.IsNewer()) {
        return;
    }
    m_header.recordCount = LoadNumber<std::int32_t>(header.data() + view_file::recordCountAt);
    m_header.recordBlockSize = HeaderField<std::int32_t>(header, view_file::recordBlockSizeAt, "record block's size");
    m_header.nameBlockSize = HeaderField<std::int16_t>(header, view_file::nameBlockSizeAt, "name block's size");
    const auto nameLength = HeaderField<std::int16_t>(header, view_file::nameLengthAt, "view name's length");
    const auto categoryLength = HeaderField<std::int16_t>(header, view_file::categoryLengthAt, "category's length");
    const std::int64_t categoryAt = static_cast<std::int64_t>(view_file::headerSize) + nameLength;
    m_header.name = Text(view_file::headerSize, nameLength);
    m_header.category = Text(categoryAt, categoryLength);
    m_header.recordsAt = categoryAt + categoryLength;
    m_walkAt = m_header.recordsAt;
}

std::string ContainerReader::Text(std::int64_t position, std::int16_t length)
{
    return FromAnsi(m_window.View(position, static_cast<std::size_t>(length)));
}

std::int32_t ContainerReader::Sum()
{
    const std::int64_t end = std::min(m_header.ChecksumAt(), m_file.Size());
    std::int64_t sum = 0;
    for (std::int64_t position = m_header.recordsAt; position < end;) {
        const std::int64_t piece = std::min<std::int64_t>(end - position, FileWindow::longestView);
        sum += SumOfBytes(m_window.View(position, static_cast<std::size_t>(piece)));
        position += piece;
    }
    return Narrow<std::int32_t>(sum);
}

std::int32_t ContainerReader::StoredSum()
{
    return LoadNumber<std::int32_t>(m_window.View(m_header.ChecksumAt(), view_file::checksumSize).data());
}

std::vector<std::string> ContainerReader::Names()
{
    NotNegative(m_header.recordCount, "count of records");
    const auto block = m_window.View(m_header.NamesAt(), static_cast<std::size_t>(m_header.nameBlockSize));
    const auto lastText = std::find_if(block.rbegin(), block.rend(), [](std::uint8_t byte) { return byte != 0; });
    const auto used = static_cast<std::size_t>(block.rend() - lastText);
    std::vector<std::string> names;
    for (std::size_t position = 0; position < used;) {
        if (names.size() >= static_cast<std::size_t>(m_header.recordCount)) {
            throw Failure(failures::outOfRange, "The name block has text behind the name of the last record.");
        }
        ExtractZString(block, position, names.emplace_back());
    }
    Narrow<std::int16_t>(m_header.recordCount);
    return names;
}

RecordView ContainerReader::NextRecord()
{
    const auto frame = m_window.View(m_walkAt, view_file::frameSize);
    const std::uint8_t type = frame[0];
    const auto size =
        static_cast<std::size_t>(NotNegative(LoadNumber<std::int16_t>(frame.data() + 1), "payload's size of a record"));
    const auto record = m_window.View(m_walkAt, view_file::frameSize + size);
    m_walkAt += static_cast<std::int64_t>(record.size());
    return {type, record.subspan(view_file::frameSize)};
}

ContainerWriter::ContainerWriter(OpenFile& file, std::int32_t recordCount, std::string_view name,
                                 std::string_view category)
    : m_file(file)
{
    std::vector<std::uint8_t> head(view_file::headerSize);
    std::copy(view_file::magic.begin(), view_file::magic.end(), head.begin());
    head[view_file::versionAt] = view_file::currentVersion;
    StoreNumber(head.data() + view_file::recordCountAt, recordCount);
    AppendAnsi(head, name);
    const std::size_t categoryAt = head.size();
    AppendAnsi(head, category);
    StoreNumber(head.data() + view_file::nameLengthAt, Narrow<std::int16_t>(categoryAt - view_file::headerSize));
    StoreNumber(head.data() + view_file::categoryLengthAt, Narrow<std::int16_t>(head.size() - categoryAt));
    Append(head);
    m_recordsAt = m_end;
}

void ContainerWriter::WriteRecord(std::span<const std::uint8_t> record, std::int32_t sum, std::string_view name)
{
    AddToSum(sum);
    AppendZString(m_names, name);
    if (!std::in_range<std::int16_t>(m_names.size())) {
        throw Failure(failures::overflow, "The names of the elements take more than 32767 bytes in all.");
    }
    Append(record);
    Narrow<std::int32_t>(m_end - m_recordsAt);
}

void ContainerWriter::Finish()
{
    const auto recordBlockSize = Narrow<std::int32_t>(m_end - m_recordsAt);
    const auto nameBlockSize = Narrow<std::int16_t>(m_names.size());
    AddToSum(SumOfBytes(m_names));
    Append(m_names);
    std::array<std::uint8_t, view_file::checksumSize> checksum;
    StoreNumber(checksum.data(), m_sum);
    Append(checksum);
    std::array<std::uint8_t, view_file::nameLengthAt - view_file::recordBlockSizeAt> sizes;
    StoreNumber(sizes.data(), recordBlockSize);
    StoreNumber(sizes.data() + (view_file::nameBlockSizeAt - view_file::recordBlockSizeAt), nameBlockSize);
    m_file.Write(view_file::recordBlockSizeAt, sizes);
}

void ContainerWriter::Append(std::span<const std::uint8_t> bytes)
{
    m_file.Write(m_end, bytes);
    m_end += static_cast<std::int64_t>(bytes.size());
}

void ContainerWriter::AddToSum(std::int64_t value)
{
    m_sum = Narrow<std::int32_t>(m_sum + value);
}

std::int32_t ReadChecksumAtEnd(OpenFile& file)
{
    std::array<std::uint8_t, view_file::checksumSize> bytes{};
    file.Read(file.Size() - static_cast<std::int64_t>(bytes.size()), bytes);
    return LoadNumber<std::int32_t>(bytes.data());
}

} // namespace quor
