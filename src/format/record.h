#pragma once
// The bytes of a record: its texts, a walk that writes a record and one that reads a payload.

#include "format/field_walk.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

// Appends the text in windows-1252 and a zero byte.
void AppendZString(std::vector<std::uint8_t>& bytes, std::string_view text);

// Reads up to a zero byte or the end of the bytes, and moves the position by the text's length plus 1. At or behind the
// end the text is empty.
void ExtractZString(std::span<const std::uint8_t> bytes, std::size_t& position, std::string& text);

// Builds one record in a buffer that keeps its memory from one record to the next. Fails with 6 where a number does
// not fit its byte.
class RecordWriter final : public FieldWalk {
public:
    RecordWriter(std::vector<std::uint8_t>& buffer, std::uint8_t type);

    // Completes the record: the buffer holds it and nothing else, frame included. Gives the sum of its bytes. Fails
    // with 6 if the payload has more than 32,767 bytes.
    std::int32_t Finish();

private:
    void Field(std::string_view name, FieldRef field) override;

    std::uint8_t* Room(std::size_t count);
    void Grow(std::size_t count);

    std::vector<std::uint8_t>& m_buffer;
};

// Reads the fields of a payload. A field that is not wholly there fails with 9, says where, and moves nothing.
class RecordReader final : public FieldWalk {
public:
    explicit RecordReader(std::span<const std::uint8_t> payload) { m_payload = payload; }

    // Of the next field.
    std::size_t Position() const noexcept { return m_position; }

private:
    void Field(std::string_view name, FieldRef field) override;
};

} // namespace quor
