#include "document/format/record.h"

#include "base/failure.h"
#include "base/narrow.h"
#include "base/text.h"
#include "document/format/bytes.h"
#include "document/format/view_file.h"

#include <algorithm>
#include <bit>
#include <numeric>

namespace quor {

namespace {

constexpr std::size_t fontFixedSize = 16;
constexpr std::size_t usualRecordSize = 256;
constexpr std::uint8_t trueByte = 255;

std::uint8_t FlagByte(bool flag) noexcept
{
    return flag ? trueByte : std::uint8_t{0};
}

// The longest that a text can be in a record.
std::size_t RoomForText(std::string_view text) noexcept
{
    return text.size() + 1;
}

std::uint8_t* PutZString(std::uint8_t* to, std::string_view text) noexcept
{
    to = WriteAnsi(to, text);
    *to++ = 0;
    return to;
}

std::uint8_t* PutFontRecord(std::uint8_t* to, const Font& font) noexcept
{
    to[0] = FlagByte(font.Bold());
    StoreNumber(to + 1, font.Charset);
    to[3] = FlagByte(font.Italic);
    StoreNumber(to + 4, font.Size);
    to[12] = FlagByte(font.Strikethrough);
    to[13] = FlagByte(font.Underline);
    StoreNumber(to + 14, font.Weight());
    return PutZString(to + fontFixedSize, font.Name);
}

void NeedBytes(std::span<const std::uint8_t> bytes, std::size_t position, std::size_t count, std::string_view name)
{
    if (position > bytes.size() || bytes.size() - position < count) {
        throw Failure(failures::outOfRange, std::string(name) + " needs " + std::to_string(count) +
                                                " bytes at offset " + std::to_string(position) + " of a record of " +
                                                std::to_string(bytes.size()) + " bytes.");
    }
}

} // namespace

void AppendZString(std::vector<std::uint8_t>& bytes, std::string_view text)
{
    AppendAnsi(bytes, text);
    bytes.push_back(0);
}

void ExtractZString(std::span<const std::uint8_t> bytes, std::size_t& position, std::string& text)
{
    const auto rest = bytes.subspan(std::min(position, bytes.size()));
    const auto length = static_cast<std::size_t>(std::find(rest.begin(), rest.end(), 0) - rest.begin());
    text = FromAnsi(rest.first(length));
    position += length + 1;
}

void AppendFontRecord(std::vector<std::uint8_t>& bytes, const Font& font)
{
    const std::size_t start = bytes.size();
    bytes.resize(start + fontFixedSize + RoomForText(font.Name));
    bytes.resize(static_cast<std::size_t>(PutFontRecord(bytes.data() + start, font) - bytes.data()));
}

void ExtractFontRecord(std::span<const std::uint8_t> bytes, std::size_t& position, Font& font)
{
    NeedBytes(bytes, position, fontFixedSize, "Font");
    const std::uint8_t* from = bytes.data() + position;
    position += fontFixedSize;
    font.SetBold(from[0] != 0);
    font.Charset = LoadNumber<std::int16_t>(from + 1);
    font.Italic = from[3] != 0;
    ExtractZString(bytes, position, font.Name);
    font.Size = LoadNumber<std::int64_t>(from + 4);
    font.Strikethrough = from[12] != 0;
    font.Underline = from[13] != 0;
    font.SetWeight(LoadNumber<std::int16_t>(from + 14));
}

// Writer ---------------------------------------------------------------------

RecordWriter::RecordWriter(std::vector<std::uint8_t>& buffer, std::uint8_t type) : m_buffer(buffer)
{
    m_buffer.resize(usualRecordSize);
    m_buffer[0] = type;
    m_size = view_file::frameSize;
}

std::int32_t RecordWriter::Finish()
{
    StoreNumber(m_buffer.data() + 1, Narrow<std::int16_t>(m_size - view_file::frameSize));
    m_buffer.resize(m_size);
    return std::accumulate(m_buffer.begin(), m_buffer.end(), std::int32_t{0});
}

// The end of the record, with room for so many bytes behind it.
std::uint8_t* RecordWriter::Room(std::size_t count)
{
    if (m_buffer.size() - m_size < count) {
        m_buffer.resize(2 * m_buffer.size() + count);
    }
    return m_buffer.data() + m_size;
}

template <class Number> void RecordWriter::Put(Number value)
{
    StoreNumber(Room(sizeof(Number)), value);
    m_size += sizeof(Number);
}

void RecordWriter::Field(std::string_view, bool& value)
{
    Put(FlagByte(value));
}

void RecordWriter::Field(std::string_view, WideFlag& value)
{
    Put(static_cast<std::int16_t>(value.value ? -1 : 0));
}

void RecordWriter::Field(std::string_view, std::uint8_t& value)
{
    Put(value);
}

void RecordWriter::Field(std::string_view, std::int16_t& value)
{
    Put(value);
}

void RecordWriter::Field(std::string_view, std::int32_t& value)
{
    Put(value);
}

void RecordWriter::Field(std::string_view, float& value)
{
    Put(std::bit_cast<std::uint32_t>(value));
}

void RecordWriter::Field(std::string_view, Color& value)
{
    Put(value.value);
}

void RecordWriter::Field(std::string_view, Font& value)
{
    std::uint8_t* to = Room(fontFixedSize + RoomForText(value.Name));
    m_size += static_cast<std::size_t>(PutFontRecord(to, value) - to);
}

void RecordWriter::Field(std::string_view, std::string& value)
{
    std::uint8_t* to = Room(RoomForText(value));
    m_size += static_cast<std::size_t>(PutZString(to, value) - to);
}

void RecordWriter::ByteField(std::string_view, std::int32_t& value)
{
    Put(Narrow<std::uint8_t>(value));
}

void RecordWriter::NameField(std::string_view name, std::string& value)
{
    Field(name, value);
}

// Reader ---------------------------------------------------------------------

template <class Number> Number RecordReader::Take(std::string_view name)
{
    NeedBytes(m_payload, m_position, sizeof(Number), name);
    const auto value = LoadNumber<Number>(m_payload.data() + m_position);
    m_position += sizeof(Number);
    return value;
}

void RecordReader::Field(std::string_view name, bool& value)
{
    value = Take<std::uint8_t>(name) != 0;
}

void RecordReader::Field(std::string_view name, WideFlag& value)
{
    value.value = Take<std::int16_t>(name) != 0;
}

void RecordReader::Field(std::string_view name, std::uint8_t& value)
{
    value = Take<std::uint8_t>(name);
}

void RecordReader::Field(std::string_view name, std::int16_t& value)
{
    value = Take<std::int16_t>(name);
}

void RecordReader::Field(std::string_view name, std::int32_t& value)
{
    value = Take<std::int32_t>(name);
}

void RecordReader::Field(std::string_view name, float& value)
{
    value = std::bit_cast<float>(Take<std::uint32_t>(name));
}

void RecordReader::Field(std::string_view name, Color& value)
{
    value.value = Take<std::int32_t>(name);
}

void RecordReader::Field(std::string_view, Font& value)
{
    ExtractFontRecord(m_payload, m_position, value);
}

void RecordReader::Field(std::string_view, std::string& value)
{
    ExtractZString(m_payload, m_position, value);
}

void RecordReader::ByteField(std::string_view name, std::int32_t& value)
{
    value = Take<std::uint8_t>(name);
}

void RecordReader::NameField(std::string_view, std::string&)
{
    std::string dropped;
    ExtractZString(m_payload, m_position, dropped);
}

} // namespace quor
