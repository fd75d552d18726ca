#include "format/record.h"

#include "base/bytes.h"
#include "base/failure.h"
#include "base/narrow.h"
#include "base/overloaded.h"
#include "base/text.h"
#include "format/view_file.h"

#include <algorithm>

namespace quor {

namespace {

constexpr std::size_t fontFixedSize = 16;
constexpr std::size_t leastRoom = 32;

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
    PutFixed(to, font.Bold());
    PutFixed(to + 1, font.Charset);
    PutFixed(to + 3, font.Italic);
    PutFixed(to + 4, font.Size);
    PutFixed(to + 12, font.Strikethrough);
    PutFixed(to + 13, font.Underline);
    PutFixed(to + 14, font.Weight());
    return PutZString(to + fontFixedSize, font.Name);
}

[[noreturn]] void FailToRead(std::string_view name, std::size_t count, std::size_t position, std::size_t size)
{
    throw Failure(failures::outOfRange, std::string(name) + " needs " + std::to_string(count) + " bytes at offset " +
                                            std::to_string(position) + " of a record of " + std::to_string(size) +
                                            " bytes.");
}

// Takes the bytes up to a zero byte or the end, and moves the position behind that.
std::span<const std::uint8_t> TakeZString(std::span<const std::uint8_t> bytes, std::size_t& position)
{
    const auto rest = bytes.subspan(std::min(position, bytes.size()));
    const void* zero = rest.empty() ? nullptr : std::memchr(rest.data(), 0, rest.size());
    const std::size_t length =
        zero == nullptr ? rest.size() : static_cast<std::size_t>(static_cast<const std::uint8_t*>(zero) - rest.data());
    position += length + 1;
    return rest.first(length);
}

// The weight last. Fails with 9, font and position unchanged, where the fixed bytes are not all there.
void TakeFontRecord(std::span<const std::uint8_t> bytes, std::size_t& position, Font& font)
{
    if (bytes.size() < fontFixedSize || position > bytes.size() - fontFixedSize) {
        FailToRead("Font", fontFixedSize, position, bytes.size());
    }
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

} // namespace

void AppendZString(std::vector<std::uint8_t>& bytes, std::string_view text)
{
    const std::size_t start = bytes.size();
    bytes.resize(start + RoomForText(text));
    bytes.resize(static_cast<std::size_t>(PutZString(bytes.data() + start, text) - bytes.data()));
}

void ExtractZString(std::span<const std::uint8_t> bytes, std::size_t& position, std::string& text)
{
    const auto taken = TakeZString(bytes, position);
    if (taken.empty()) {
        text.clear();
    } else {
        text = FromAnsi(taken);
    }
}

RecordWriter::RecordWriter(std::vector<std::uint8_t>& buffer, std::uint8_t type) : m_buffer(buffer)
{
    // The last record's size is a good guess for this one's.
    m_buffer.resize(std::max(m_buffer.size(), leastRoom));
    m_buffer[0] = type;
    m_next = m_buffer.data() + view_file::frameSize;
    m_end = m_buffer.data() + m_buffer.size();
}

std::int32_t RecordWriter::Finish()
{
    m_buffer.resize(static_cast<std::size_t>(m_next - m_buffer.data()));
    StoreNumber(m_buffer.data() + 1, Narrow<std::int16_t>(m_buffer.size() - view_file::frameSize));
    return static_cast<std::int32_t>(SumOfBytes(m_buffer));
}

// Where the next bytes go; there is room for so many.
std::uint8_t* RecordWriter::Room(std::size_t count)
{
    if (static_cast<std::size_t>(m_end - m_next) < count) {
        Grow(count);
    }
    return m_next;
}

void RecordWriter::Grow(std::size_t count)
{
    const std::ptrdiff_t written = m_next - m_buffer.data();
    m_buffer.resize(2 * m_buffer.size() + count);
    m_next = m_buffer.data() + written;
    m_end = m_buffer.data() + m_buffer.size();
}

void RecordWriter::Field(std::string_view /*name*/, FieldRef field)
{
    const auto put = [this]<class T>(T value) {
        PutFixed(Room(fixedWidth<T>), value);
        m_next += fixedWidth<T>;
    };
    const auto putText = [this](const std::string& text) { m_next = PutZString(Room(RoomForText(text)), text); };
    std::visit(
        Overloaded{[&](auto value) { put(*value); },
                   [&](Font* value) { m_next = PutFontRecord(Room(fontFixedSize + RoomForText(value->Name)), *value); },
                   [&](std::string* value) { putText(*value); }, [&](NameField value) { putText(*value); },
                   [&](ByteField value) { put(Narrow<std::uint8_t>(*value)); }},
        field);
}

// Fields of fixed width come here only where they aren't wholly there.
void RecordReader::Field(std::string_view name, FieldRef field)
{
    const auto fail = [&](std::size_t count) { FailToRead(name, count, m_position, m_payload.size()); };
    std::visit(Overloaded{[&]<class T>(T* /*value*/) { fail(fixedWidth<T>); },
                          [&](Font* value) { TakeFontRecord(m_payload, m_position, *value); },
                          [&](std::string* value) { ExtractZString(m_payload, m_position, *value); },
                          [&](NameField) { TakeZString(m_payload, m_position); },
                          [&](ByteField) { fail(sizeof(std::uint8_t)); }},
               field);
}

} // namespace quor
