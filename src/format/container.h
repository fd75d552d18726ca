#pragma once
// The container of a view file: header, title, record block, name block, checksum.
//
// Counts and sizes in a file are not to be trusted. What a file lacks reads as zero, and costs neither memory nor time.

#include "format/view_file.h"
#include "platform/files.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quor {

// What stands in front of the record block. Of a file with another magic or of a newer version nothing else is known.
struct ViewHeader {
    bool isViewFile = false;
    std::uint8_t version = 0;
    std::int32_t recordCount = 0; // as it stands in the file, negative too: Names looks at it
    std::int32_t recordBlockSize = 0;
    std::int16_t nameBlockSize = 0;
    std::string name;
    std::string category;
    std::int64_t recordsAt = 0;

    bool IsNewer() const noexcept { return version > view_file::currentVersion; }
    bool IsOld() const noexcept { return version < view_file::currentVersion; }
    std::int64_t NamesAt() const noexcept { return recordsAt + recordBlockSize; }
    std::int64_t ChecksumAt() const noexcept { return NamesAt() + nameBlockSize; }
};

// A part of a file held in memory, read a large piece at a time.
class FileWindow {
public:
    explicit FileWindow(OpenFile& file) : m_file(file) {}

    // At most longestView bytes, good until the next call; zero where the file has none.
    std::span<const std::uint8_t> View(std::int64_t position, std::size_t count);

    static constexpr std::size_t longestView = 65'536;

private:
    OpenFile& m_file;
    std::vector<std::uint8_t> m_bytes;
    std::int64_t m_start = 0;
};

// One record of the record block; the payload is good until the next record is read.
struct RecordView {
    std::uint8_t type = 0;
    std::span<const std::uint8_t> payload;
};

class ContainerReader {
public:
    // Reads the header and the title. Fails with 9 where a size in a file that isn't newer is negative.
    explicit ContainerReader(OpenFile& file);

    const ViewHeader& Header() const noexcept { return m_header; }

    // Of both blocks. Fails with 6 above 2,147,483,647.
    std::int32_t Sum();
    std::int32_t StoredSum();

    // The names of the records, the view's own first; those that the block doesn't hold are left out. Fails with 9 if
    // the count of records is negative or there is text behind the last record's name, and with 6 if the count doesn't
    // fit 16 bits.
    std::vector<std::string> Names();

    // The next record of the walk, which the frames lead: it doesn't stop at the end of the block or of the file. Fails
    // with 9 at a negative payload size.
    RecordView NextRecord();

private:
    std::string Text(std::int64_t position, std::int16_t length);

    OpenFile& m_file;
    FileWindow m_window;
    ViewHeader m_header;
    std::int64_t m_walkAt = 0;
};

// Writes a container to an empty file: the records one by one, then Finish.
class ContainerWriter {
public:
    // Fails with 6 where name or category have more than 32,767 bytes.
    ContainerWriter(OpenFile& file, std::int32_t recordCount, std::string_view name, std::string_view category);

    // The record is complete, frame included; the sum is that of its bytes. Fails with 6 where the blocks or the sum
    // grow too large.
    void WriteRecord(std::span<const std::uint8_t> record, std::int32_t sum, std::string_view name);

    // Names, checksum, and the sizes in the header.
    void Finish();

private:
    void Append(std::span<const std::uint8_t> bytes);
    void AddToSum(std::int64_t value);

    OpenFile& m_file;
    std::int64_t m_end = 0;
    std::int64_t m_recordsAt = 0;
    std::int32_t m_sum = 0;
    std::vector<std::uint8_t> m_names;
};

// The last four bytes of a file that has just been written.
std::int32_t ReadChecksumAtEnd(OpenFile& file);

} // namespace quor
